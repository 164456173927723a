#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/companion/BettingPlan.h"
#include "tactix/companion/CountSettings.h"
#include "tactix/companion/IniFile.h"
#include "tactix/companion/PlayingTable.h"
#include "tactix/companion/StrategyEntries.h"
#include "tactix/platform/Export.h"
#include "tactix/shared/Enumerations.h"
#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix::companion {

/// A strategy catalogue that is read from an INI file, whole and once: sections [Playing n], [Betting n] and [Count n],
/// the strategies and count systems by number, and [Table name], how playing strategies are played.
/// docs/strategy-file.md describes the format. A file with anything wrong in it is refused with an IniError.
class TACTIX_EXPORT IniStrategyCatalogue : public StrategyCatalogue {
 public:
  /// Higher numbers are refused: no list reports their rows.
  static constexpr int HighestNumber = 54;
  static constexpr int HighestBettingNumber = 49;
  static constexpr int LowestCountNumber = static_cast<int>(CountStrategyPossibilities::LowestCardCountIndex);
  static constexpr int HighestCountNumber = static_cast<int>(CountStrategyPossibilities::HighestCardCountIndex);

  /// Reads a text; `name` is what errors call it.
  IniStrategyCatalogue(std::string_view text, std::string_view name);
  /// Reads a file on disk.
  explicit IniStrategyCatalogue(const std::filesystem::path& path);

  /// Empty for a number that the file does not have.
  std::string DescribeStrategy(std::int16_t& number) override;
  /// Empty for a number that the file does not have.
  std::string DescribeBettingStrategy(std::int16_t& number) override;
  /// Empties the text for a number that the file does not have.
  void DescribeStrategy(std::int16_t number, std::string& text) override;
  /// The highest numbers of a playing and a betting strategy, at least 0.
  StrategyRange GetStrategyRange() override;
  /// Has no use for the store and does not keep it.
  void AttachCountStrategyStore(const ObjectRef& store) override;

  /// The caption of a playing strategy, never shifted; empty for a number that the file does not have.
  std::string_view CaptionOf(std::int16_t number) const;
  /// The name of the table that a playing strategy plays; empty where it names none. A host with an engine of its own
  /// may go by the name alone.
  std::string_view PlaysOf(std::int16_t number) const;
  /// The table that a playing strategy plays, or null.
  const PlayingTable* TableOf(std::int16_t number) const;
  /// A table by name, or null. Names compare without case.
  const PlayingTable* FindTable(std::string_view name) const;

  /// The caption of a betting strategy, never shifted; empty for a number that the file does not have.
  std::string_view BettingCaptionOf(std::int16_t number) const;
  /// How a betting strategy bets; null where the file does not say.
  const BettingPlan* BettingPlanOf(std::int16_t number) const;

  /// The caption of a count system, never shifted; empty for a number that the file does not have.
  std::string_view CountCaptionOf(std::int16_t number) const;
  /// Null for a count system that is not present or that the file does not have.
  const CountSettings* CountSettingsOf(std::int16_t number) const;

 private:
  struct NamedTable {
    std::string name;
    PlayingTable table;
  };

  explicit IniStrategyCatalogue(const IniFile& file);
  void Read(const IniFile& file, const IniSection& section);
  void ReadTable(const IniFile& file, const IniSection& section, std::string_view name);
  void RefuseMissingTables(const IniFile& file) const;
  void RefuseBettingGaps(const IniFile& file) const;
  const CountEntry* FindCount(std::int16_t number) const;

  std::vector<PlayingEntry> playing_;  // strategy -1 comes first
  std::vector<BettingEntry> betting_;  // strategy -1 comes first
  std::array<CountEntry, HighestCountNumber - LowestCountNumber + 1> counts_;
  std::vector<NamedTable> tables_;
};

}  // namespace tactix::companion
