#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/companion/IniFile.h"
#include "tactix/companion/PlayingTable.h"
#include "tactix/platform/Export.h"
#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix::companion {

/// A strategy catalogue that is read from an INI file, whole and once: sections [Playing n], the strategies by number,
/// and [Table name], how they are played. docs/strategy-file.md describes the format. A file with anything wrong in it
/// is refused with an IniError.
///
/// The file holds playing strategies only: there are no betting strategies and no count systems.
class TACTIX_EXPORT IniStrategyCatalogue : public StrategyCatalogue {
 public:
  /// Higher numbers are refused: no list reports their rows.
  static constexpr int HighestNumber = 54;

  /// Reads a text; `name` is what errors call it.
  IniStrategyCatalogue(std::string_view text, std::string_view name);
  /// Reads a file on disk.
  explicit IniStrategyCatalogue(const std::filesystem::path& path);

  /// Empty for a number that the file does not have.
  std::string DescribeStrategy(std::int16_t& number) override;
  /// Empty for all.
  std::string DescribeBettingStrategy(std::int16_t& number) override;
  /// Empties the text for all.
  void DescribeStrategy(std::int16_t number, std::string& text) override;
  /// The highest number of a playing strategy, at least 0; that of the betting strategies is 0.
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

 private:
  struct PlayingStrategy {
    std::string description;
    std::string caption;
    std::string plays;
    int playsLine = 0;
  };
  struct NamedTable {
    std::string name;
    PlayingTable table;
  };

  explicit IniStrategyCatalogue(const IniFile& file);
  void ReadPlayingStrategy(const IniFile& file, const IniSection& section, std::string_view number);
  const PlayingStrategy* Find(std::int16_t number) const;

  std::vector<PlayingStrategy> playing_;  // strategy -1 comes first
  std::vector<NamedTable> tables_;
};

}  // namespace tactix::companion
