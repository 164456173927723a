#include "tactix/companion/BettingPlan.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "tactix/companion/private/Words.h"
#include "tactix/platform/Object.h"

namespace tactix::companion {

namespace {

struct RuleText {
  std::string_view text;
  BettingRule rule;
};

constexpr RuleText RuleTexts[] = {
    {"flat", BettingRule::Flat},
    {"true-count", BettingRule::TrueCount},
    {"win-progression", BettingRule::WinProgression},
    {"win-cycle", BettingRule::WinCycle},
};

BettingRule ToRule(const IniFile& file, const IniEntry& entry, std::string_view word) {
  for (const auto& [text, rule] : RuleTexts) {
    if (SameName(text, word)) return rule;
  }
  file.Fail(entry.line, "expected 'flat', 'true-count', 'win-progression' or 'win-cycle', found " + Quoted(word));
}

int ToUnits(const IniFile& file, const IniEntry& entry, std::string_view word) {
  const std::optional<int> units = ToNumber(word);
  if (!units || *units < 1 || *units > BettingPlan::MostUnits) {
    file.Fail(entry.line,
              "expected units from 1 to " + std::to_string(BettingPlan::MostUnits) + ", found " + Quoted(word));
  }
  return *units;
}

}  // namespace

BettingPlan::BettingPlan(const IniFile& file, const IniEntry& entry) {
  const std::vector<std::string_view> words = WordsOf(entry.value);
  rule_ = ToRule(file, entry, words.empty() ? std::string_view() : words.front());
  const std::size_t steps = words.empty() ? 0 : words.size() - 1;
  if (rule_ == BettingRule::Flat) {
    if (steps != 0) file.Fail(entry.line, "'flat' takes no units");
    units_ = {1};
    return;
  }
  if (steps < 2 || steps > MostSteps) {
    file.Fail(entry.line,
              "expected 2 to " + std::to_string(MostSteps) + " numbers of units, found " + std::to_string(steps));
  }
  for (std::size_t i = 1; i < words.size(); ++i) units_.push_back(ToUnits(file, entry, words[i]));
}

int BettingPlan::UnitsFor(int count, int run) const {
  const int last = static_cast<int>(units_.size()) - 1;
  const int wins = std::max(run, 0);
  int step = 0;
  switch (rule_) {
    case BettingRule::Flat:
      break;
    case BettingRule::TrueCount:
      step = std::clamp(count, 1, last + 1) - 1;
      break;
    case BettingRule::WinProgression:
      step = std::min(wins, last);
      break;
    case BettingRule::WinCycle:
      step = wins % (last + 1);
      break;
  }
  return units_[static_cast<std::size_t>(step)];
}

}  // namespace tactix::companion
