#include "tactix/companion/StrategyEntries.h"

#include "tactix/companion/private/StrategySection.h"

namespace tactix::companion {

namespace {

std::string FlagsOf(const StrategySection& section) {
  return std::string(section.shifted ? "True " : "False ") + (section.present ? "True" : "False");
}

}  // namespace

PlayingEntry ReadPlayingEntry(const IniFile& file, const IniSection& section) {
  const StrategySection read = ReadStrategySection(file, section, {"plays"});
  PlayingEntry entry{DescriptionOf(file, read, FlagsOf(read)), read.caption, {}, 0};
  if (const IniEntry* const plays = section.Find("plays")) {
    entry.plays = plays->value;
    entry.playsLine = plays->line;
  }
  return entry;
}

BettingEntry ReadBettingEntry(const IniFile& file, const IniSection& section) {
  const StrategySection read = ReadStrategySection(file, section, {"plan"});
  // The digit must come first: betting lists take the first character as the flag, and a "\" there would end their
  // fill.
  const std::string ending = std::string(read.present ? "1" : "0") + (read.shifted ? "\\" : "");
  BettingEntry entry{DescriptionOf(file, read, ending), read.caption, {}, section.line};
  if (const IniEntry* const plan = section.Find("plan")) entry.plan.emplace(file, *plan);
  return entry;
}

CountEntry ReadCountEntry(const IniFile& file, const IniSection& section) {
  const StrategySection read = ReadStrategySection(file, section, {"level", "deck-sum", "start", "divisor"});
  const CountSettings settings = ReadCountSettings(file, section);
  CountEntry entry{DescriptionOf(file, read, FlagsOf(read) + " " + TextOf(settings)), read.caption, {}};
  if (read.present) entry.settings = settings;
  return entry;
}

}  // namespace tactix::companion
