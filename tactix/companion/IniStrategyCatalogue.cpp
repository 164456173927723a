#include "tactix/companion/IniStrategyCatalogue.h"

#include <algorithm>
#include <optional>

#include "tactix/companion/ShiftedText.h"
#include "tactix/companion/Words.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Utf8.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::companion {

namespace {

constexpr int EmptySeat = -1;
static_assert(IniStrategyCatalogue::HighestNumber == StrategyList::HighestReportedRow - 1);

/// The keys of a [Playing n] section; null where it does not have one.
struct PlayingKeys {
  const IniEntry* caption = nullptr;
  const IniEntry* note = nullptr;
  const IniEntry* shifted = nullptr;
  const IniEntry* present = nullptr;
  const IniEntry* plays = nullptr;
};

struct PlayingKey {
  std::string_view name;
  const IniEntry* PlayingKeys::*entry;
};

constexpr PlayingKey AllPlayingKeys[] = {
    {"caption", &PlayingKeys::caption}, {"note", &PlayingKeys::note},   {"shifted", &PlayingKeys::shifted},
    {"present", &PlayingKeys::present}, {"plays", &PlayingKeys::plays},
};

PlayingKeys KeysOf(const IniFile& file, const IniSection& section) {
  PlayingKeys keys;
  for (const IniEntry& entry : section.entries) {
    const auto* const key = std::find_if(std::begin(AllPlayingKeys), std::end(AllPlayingKeys),
                                         [&](const PlayingKey& each) { return SameName(each.name, entry.key); });
    if (key == std::end(AllPlayingKeys)) file.Fail(entry.line, "unknown key " + Quoted(entry.key));
    keys.*(key->entry) = &entry;
  }
  return keys;
}

enum class Flag { No, Yes };

struct FlagText {
  std::string_view text;
  Flag flag;
};

constexpr FlagText FlagTexts[] = {{"yes", Flag::Yes}, {"no", Flag::No}, {"true", Flag::Yes}, {"false", Flag::No}};

Flag FlagOf(const IniFile& file, const IniEntry* entry, Flag otherwise) {
  if (!entry) return otherwise;
  for (const auto& [text, flag] : FlagTexts) {
    if (SameName(text, entry->value)) return flag;
  }
  file.Fail(entry->line, "expected 'yes' or 'no', found " + Quoted(entry->value));
}

/// One of the two texts of a description.
std::string DescribedText(const IniFile& file, const IniEntry* entry, Flag shifted) {
  if (!entry) return {};
  if (entry->value.find(',') != std::string::npos) file.Fail(entry->line, entry->key + " holds a ','");
  if (entry->value.find('\t') != std::string::npos) file.Fail(entry->line, entry->key + " holds a tab");
  if (shifted == Flag::No) return entry->value;
  try {
    return ShiftStrategyText(entry->value);
  } catch (const Error& error) {
    file.Fail(entry->line, entry->key + ": " + error.Description());
  }
}

std::string DescriptionOf(const IniFile& file, const IniSection& section, const PlayingKeys& keys) {
  if (!keys.caption) file.Fail(section.line, Quoted(section.name) + " has no caption");
  if (keys.caption->value.empty()) file.Fail(keys.caption->line, "the caption is empty");
  const Flag shifted = FlagOf(file, keys.shifted, Flag::No);
  const Flag present = FlagOf(file, keys.present, Flag::Yes);
  std::string description = DescribedText(file, keys.note, shifted) + "," + DescribedText(file, keys.caption, shifted) +
                            "," + (shifted == Flag::Yes ? "True " : "False ") +
                            (present == Flag::Yes ? "True" : "False");
  // The lists find the end of the last flag by a blank that the buffer pads with.
  if (CountUtf8(description) >= DescriptionBuffer::Width) {
    file.Fail(keys.caption->line, "caption and note are too long together");
  }
  return description;
}

}  // namespace

IniStrategyCatalogue::IniStrategyCatalogue(std::string_view text, std::string_view name)
    : IniStrategyCatalogue(IniFile(text, name)) {}

IniStrategyCatalogue::IniStrategyCatalogue(const std::filesystem::path& path)
    : IniStrategyCatalogue(IniFile::Read(path)) {}

IniStrategyCatalogue::IniStrategyCatalogue(const IniFile& file) {
  for (const IniSection& section : file.Sections()) {
    const std::string_view kind = WordsOf(section.name).front();
    const std::string_view rest = Trimmed(std::string_view(section.name).substr(kind.size()));
    if (SameName(kind, "Playing")) {
      ReadPlayingStrategy(file, section, rest);
    } else if (SameName(kind, "Table")) {
      if (rest.empty()) file.Fail(section.line, "expected '[Table name]'");
      if (FindTable(rest)) file.Fail(section.line, "table " + Quoted(rest) + " was given before");
      tables_.push_back({std::string(rest), PlayingTable(file, section)});
    } else {
      file.Fail(section.line, "expected '[Playing number]' or '[Table name]', found " + Quoted(section.name));
    }
  }
  if (playing_.empty()) file.Fail(0, "holds no playing strategy");
  for (const PlayingStrategy& strategy : playing_) {
    if (strategy.playsLine == 0 || FindTable(strategy.plays)) continue;
    file.Fail(strategy.playsLine, "there is no table " + Quoted(strategy.plays));
  }
}

void IniStrategyCatalogue::ReadPlayingStrategy(const IniFile& file, const IniSection& section,
                                               std::string_view number) {
  const std::optional<int> strategy = ToNumber(number);
  if (!strategy || *strategy < EmptySeat || *strategy > HighestNumber) {
    file.Fail(section.line, "expected '[Playing -1]' ... '[Playing " + std::to_string(HighestNumber) + "]'");
  }
  const auto index = static_cast<std::size_t>(*strategy - EmptySeat);
  if (index >= playing_.size()) playing_.resize(index + 1);
  PlayingStrategy& entry = playing_[index];
  if (!entry.description.empty()) {
    file.Fail(section.line, "playing strategy " + std::to_string(*strategy) + " was given before");
  }
  const PlayingKeys keys = KeysOf(file, section);
  entry.description = DescriptionOf(file, section, keys);
  entry.caption = keys.caption->value;
  if (!keys.plays) return;
  entry.plays = keys.plays->value;
  entry.playsLine = keys.plays->line;
}

const IniStrategyCatalogue::PlayingStrategy* IniStrategyCatalogue::Find(std::int16_t number) const {
  if (number < EmptySeat) return nullptr;
  const auto index = static_cast<std::size_t>(number - EmptySeat);
  return index < playing_.size() ? &playing_[index] : nullptr;
}

std::string IniStrategyCatalogue::DescribeStrategy(std::int16_t& number) {
  const PlayingStrategy* const strategy = Find(number);
  return strategy ? strategy->description : std::string();
}

std::string IniStrategyCatalogue::DescribeBettingStrategy(std::int16_t&) { return {}; }

void IniStrategyCatalogue::DescribeStrategy(std::int16_t, std::string& text) { text.clear(); }

StrategyRange IniStrategyCatalogue::GetStrategyRange() {
  StrategyRange range;
  const int highest = static_cast<int>(playing_.size()) - 1 + EmptySeat;
  range.HighestPlayingStrategy = static_cast<std::int16_t>(std::max(highest, 0));
  return range;
}

void IniStrategyCatalogue::AttachCountStrategyStore(const ObjectRef&) {}

std::string_view IniStrategyCatalogue::CaptionOf(std::int16_t number) const {
  const PlayingStrategy* const strategy = Find(number);
  return strategy ? std::string_view(strategy->caption) : std::string_view();
}

std::string_view IniStrategyCatalogue::PlaysOf(std::int16_t number) const {
  const PlayingStrategy* const strategy = Find(number);
  return strategy ? std::string_view(strategy->plays) : std::string_view();
}

const PlayingTable* IniStrategyCatalogue::TableOf(std::int16_t number) const { return FindTable(PlaysOf(number)); }

const PlayingTable* IniStrategyCatalogue::FindTable(std::string_view name) const {
  const auto found =
      std::find_if(tables_.begin(), tables_.end(), [&](const NamedTable& each) { return SameName(each.name, name); });
  return found == tables_.end() ? nullptr : &found->table;
}

}  // namespace tactix::companion
