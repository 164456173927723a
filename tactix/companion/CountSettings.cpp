#include "tactix/companion/CountSettings.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

#include "tactix/companion/private/Words.h"

namespace tactix::companion {

namespace {

struct SettingKey {
  std::string_view name;
  int CountSettings::*setting;
  int lowest;
  int highest;
};

/// In the order of descriptions.
constexpr SettingKey SettingKeys[] = {
    {"level", &CountSettings::Level, 1, 20},
    {"deck-sum", &CountSettings::DeckSum, -1000, 1000},
    {"start", &CountSettings::Start, -1000, 1000},
    {"divisor", &CountSettings::Divisor, 0, 52},
};

bool IsDivisor(int cards) {
  constexpr int divisors[] = {0, 13, 26, 52};
  return std::find(std::begin(divisors), std::end(divisors), cards) != std::end(divisors);
}

}  // namespace

CountSettings ReadCountSettings(const IniFile& file, const IniSection& section) {
  CountSettings settings;
  for (const auto& [name, setting, lowest, highest] : SettingKeys) {
    const IniEntry* const entry = section.Find(name);
    if (!entry) continue;
    const std::optional<int> number = ToNumber(entry->value);
    if (!number || *number < lowest || *number > highest) {
      file.Fail(entry->line, "expected a whole number from " + std::to_string(lowest) + " to " +
                                 std::to_string(highest) + ", found " + Quoted(entry->value));
    }
    settings.*setting = *number;
  }
  if (!IsDivisor(settings.Divisor)) {
    file.Fail(section.Find("divisor")->line,
              "expected 0, 13, 26 or 52 cards, found '" + std::to_string(settings.Divisor) + "'");
  }
  return settings;
}

std::string TextOf(const CountSettings& settings) {
  std::string text;
  for (const SettingKey& key : SettingKeys) text += std::to_string(settings.*(key.setting)) + " ";
  return text;
}

}  // namespace tactix::companion
