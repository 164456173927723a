#include "tactix/companion/IniStrategyCatalogue.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include "tactix/companion/private/Words.h"
#include "tactix/platform/Object.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/private/RowTexts.h"

namespace tactix::companion {

namespace {

static_assert(IniStrategyCatalogue::HighestNumber == StrategyList::HighestReportedRow - 1);
static_assert(IniStrategyCatalogue::HighestBettingNumber == BetStrategyList::HighestReportedRow - 1);

struct NumberRange {
  std::string_view kind;
  std::string_view what;
  int lowest;
  int highest;
};

constexpr NumberRange PlayingNumbers{"Playing", "playing strategy", EmptySeat, IniStrategyCatalogue::HighestNumber};
constexpr NumberRange BettingNumbers{"Betting", "betting strategy", EmptySeat,
                                     IniStrategyCatalogue::HighestBettingNumber};
constexpr NumberRange CountNumbers{"Count", "count system", IniStrategyCatalogue::LowestCountNumber,
                                   IniStrategyCatalogue::HighestCountNumber};

std::string SectionName(std::string_view kind, int number) { return std::string(kind) + " " + std::to_string(number); }

/// The index of the number in a section's name, counted from the lowest number.
std::size_t IndexOf(const IniFile& file, const IniSection& section, std::string_view text, const NumberRange& range) {
  const std::optional<int> number = ToNumber(text);
  if (!number || *number < range.lowest || *number > range.highest) {
    file.Fail(section.line, "expected '[" + SectionName(range.kind, range.lowest) + "]' ... '[" +
                                SectionName(range.kind, range.highest) + "]'");
  }
  return static_cast<std::size_t>(*number - range.lowest);
}

template <class Entry>
void Keep(const IniFile& file, const IniSection& section, const NumberRange& range, std::size_t index, Entry& entry,
          Entry read) {
  if (!entry.description.empty()) {
    const int number = range.lowest + static_cast<int>(index);
    file.Fail(section.line, std::string(range.what) + " " + std::to_string(number) + " was given before");
  }
  entry = std::move(read);
}

template <class Entry>
Entry& EntryAt(std::vector<Entry>& entries, std::size_t index) {
  if (index >= entries.size()) entries.resize(index + 1);
  return entries[index];
}

/// Null for a number that the file does not have.
template <class Entry>
const Entry* Find(const std::vector<Entry>& entries, int number) {
  if (number < EmptySeat) return nullptr;
  const auto index = static_cast<std::size_t>(number - EmptySeat);
  return index < entries.size() && !entries[index].description.empty() ? &entries[index] : nullptr;
}

template <class Entry>
std::int16_t HighestOf(const std::vector<Entry>& entries) {
  const int highest = static_cast<int>(entries.size()) - 1 + EmptySeat;
  return static_cast<std::int16_t>(std::max(highest, 0));
}

template <class Entry>
std::string DescriptionIn(const Entry* entry) {
  return entry ? entry->description : std::string();
}

template <class Entry>
std::string_view CaptionIn(const Entry* entry) {
  return entry ? std::string_view(entry->caption) : std::string_view();
}

}  // namespace

IniStrategyCatalogue::IniStrategyCatalogue(std::string_view text, std::string_view name)
    : IniStrategyCatalogue(IniFile(text, name)) {}

IniStrategyCatalogue::IniStrategyCatalogue(const std::filesystem::path& path)
    : IniStrategyCatalogue(IniFile::Read(path)) {}

IniStrategyCatalogue::IniStrategyCatalogue(const IniFile& file) {
  for (const IniSection& section : file.Sections()) Read(file, section);
  if (playing_.empty()) file.Fail(0, "holds no playing strategy");
  RefuseMissingTables(file);
  RefuseBettingGaps(file);
}

void IniStrategyCatalogue::Read(const IniFile& file, const IniSection& section) {
  const std::string_view kind = WordsOf(section.name).front();
  const std::string_view rest = Trimmed(std::string_view(section.name).substr(kind.size()));
  if (SameName(kind, PlayingNumbers.kind)) {
    const std::size_t index = IndexOf(file, section, rest, PlayingNumbers);
    Keep(file, section, PlayingNumbers, index, EntryAt(playing_, index), ReadPlayingEntry(file, section));
  } else if (SameName(kind, BettingNumbers.kind)) {
    const std::size_t index = IndexOf(file, section, rest, BettingNumbers);
    Keep(file, section, BettingNumbers, index, EntryAt(betting_, index), ReadBettingEntry(file, section));
  } else if (SameName(kind, CountNumbers.kind)) {
    const std::size_t index = IndexOf(file, section, rest, CountNumbers);
    Keep(file, section, CountNumbers, index, counts_[index], ReadCountEntry(file, section));
  } else if (SameName(kind, "Table")) {
    ReadTable(file, section, rest);
  } else {
    file.Fail(section.line,
              "expected '[Playing number]', '[Betting number]', '[Count number]' or '[Table name]', found " +
                  Quoted(section.name));
  }
}

void IniStrategyCatalogue::ReadTable(const IniFile& file, const IniSection& section, std::string_view name) {
  if (name.empty()) file.Fail(section.line, "expected '[Table name]'");
  if (FindTable(name)) file.Fail(section.line, "table " + Quoted(name) + " was given before");
  tables_.push_back({std::string(name), PlayingTable(file, section)});
}

void IniStrategyCatalogue::RefuseMissingTables(const IniFile& file) const {
  for (const PlayingEntry& strategy : playing_) {
    if (strategy.playsLine == 0 || FindTable(strategy.plays)) continue;
    file.Fail(strategy.playsLine, "there is no table " + Quoted(strategy.plays));
  }
}

/// Betting lists leave out a number that has no betting or no playing strategy, and every row after it would then stand
/// for the wrong bets.
void IniStrategyCatalogue::RefuseBettingGaps(const IniFile& file) const {
  for (std::size_t i = 0; i < betting_.size(); ++i) {
    const int number = static_cast<int>(i) + EmptySeat;
    std::string_view missing;
    if (!Find(playing_, number)) missing = PlayingNumbers.kind;
    if (!Find(betting_, number)) missing = BettingNumbers.kind;
    if (missing.empty()) continue;
    const auto given = std::find_if(betting_.begin() + static_cast<std::ptrdiff_t>(i), betting_.end(),
                                    [](const BettingEntry& each) { return !each.description.empty(); });
    const int givenNumber = static_cast<int>(given - betting_.begin()) + EmptySeat;
    file.Fail(given->line, "'" + SectionName(BettingNumbers.kind, givenNumber) + "' needs a '[" +
                               SectionName(missing, number) + "]', or lists have it in the wrong row");
  }
}

std::string IniStrategyCatalogue::DescribeStrategy(std::int16_t& number) {
  return DescriptionIn(Find(playing_, number));
}

std::string IniStrategyCatalogue::DescribeBettingStrategy(std::int16_t& number) {
  return DescriptionIn(Find(betting_, number));
}

void IniStrategyCatalogue::DescribeStrategy(std::int16_t number, std::string& text) {
  text = DescriptionIn(FindCount(number));
}

StrategyRange IniStrategyCatalogue::GetStrategyRange() {
  StrategyRange range;
  range.HighestBettingStrategy = HighestOf(betting_);
  range.HighestPlayingStrategy = HighestOf(playing_);
  return range;
}

void IniStrategyCatalogue::AttachCountStrategyStore(const ObjectRef&) {}

std::string_view IniStrategyCatalogue::CaptionOf(std::int16_t number) const {
  return CaptionIn(Find(playing_, number));
}

std::string_view IniStrategyCatalogue::PlaysOf(std::int16_t number) const {
  const PlayingEntry* const strategy = Find(playing_, number);
  return strategy ? std::string_view(strategy->plays) : std::string_view();
}

const PlayingTable* IniStrategyCatalogue::TableOf(std::int16_t number) const { return FindTable(PlaysOf(number)); }

const PlayingTable* IniStrategyCatalogue::FindTable(std::string_view name) const {
  const auto found =
      std::find_if(tables_.begin(), tables_.end(), [&](const NamedTable& each) { return SameName(each.name, name); });
  return found == tables_.end() ? nullptr : &found->table;
}

std::string_view IniStrategyCatalogue::BettingCaptionOf(std::int16_t number) const {
  return CaptionIn(Find(betting_, number));
}

const BettingPlan* IniStrategyCatalogue::BettingPlanOf(std::int16_t number) const {
  const BettingEntry* const strategy = Find(betting_, number);
  return strategy && strategy->plan ? &*strategy->plan : nullptr;
}

const CountEntry* IniStrategyCatalogue::FindCount(std::int16_t number) const {
  if (number < LowestCountNumber || number > HighestCountNumber) return nullptr;
  return &counts_[static_cast<std::size_t>(number - LowestCountNumber)];
}

std::string_view IniStrategyCatalogue::CountCaptionOf(std::int16_t number) const {
  return CaptionIn(FindCount(number));
}

const CountSettings* IniStrategyCatalogue::CountSettingsOf(std::int16_t number) const {
  const CountEntry* const system = FindCount(number);
  return system && system->settings ? &*system->settings : nullptr;
}

}  // namespace tactix::companion
