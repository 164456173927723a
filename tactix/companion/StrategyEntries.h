#pragma once

#include <optional>
#include <string>

#include "tactix/companion/BettingPlan.h"
#include "tactix/companion/CountSettings.h"
#include "tactix/companion/IniFile.h"

namespace tactix::companion {

/// The sections of a strategy file as the catalogue keeps them. The description is the text that a list takes apart; it
/// is empty for a number that the file does not have.
struct PlayingEntry {
  std::string description;
  std::string caption;
  std::string plays;
  int playsLine = 0;
};

struct BettingEntry {
  std::string description;
  std::string caption;
  std::optional<BettingPlan> plan;
  int line = 0;
};

struct CountEntry {
  std::string description;
  std::string caption;
  std::optional<CountSettings> settings;  ///< of a system that is present
};

PlayingEntry ReadPlayingEntry(const IniFile& file, const IniSection& section);
BettingEntry ReadBettingEntry(const IniFile& file, const IniSection& section);
CountEntry ReadCountEntry(const IniFile& file, const IniSection& section);

}  // namespace tactix::companion
