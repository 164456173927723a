#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "tactix/companion/IniFile.h"
#include "tactix/platform/Export.h"

namespace tactix::companion {

/// One square of a playing table: what to play and, where the table's rules or the hand forbid that, what instead.
enum class PlayCode : std::uint8_t {
  Hit,               ///< H
  Stand,             ///< S
  DoubleOrHit,       ///< D
  DoubleOrStand,     ///< Ds
  Split,             ///< P
  SplitOrHit,        ///< Ph: split where split hands may be doubled, else hit
  SplitOrDouble,     ///< Pd: split where split hands may be doubled, else double, else hit
  SplitOrStand,      ///< Ps: split where split hands may be doubled, else stand
  SurrenderOrHit,    ///< R
  SurrenderOrStand,  ///< Rs
  SurrenderOrSplit,  ///< Rp
};

/// The code as a table file has it, "Ds" for DoubleOrStand.
TACTIX_EXPORT std::string_view TextOf(PlayCode code);
/// Nothing for a text that is no code. Case does not count.
TACTIX_EXPORT std::optional<PlayCode> ToPlayCode(std::string_view text);

enum class HandKind : std::uint8_t { Hard, Soft, Pair };

/// A playing strategy: a play for every hand against every up card.
class TACTIX_EXPORT PlayingTable {
 public:
  static constexpr int Ace = 11;

  /// Reads a section's rows, `hard 12-14 = ...`; an error names the file and the line of the row, or that of the
  /// section where a row is missing.
  PlayingTable(const IniFile& file, const IniSection& section);

  /// The play for a hard total 4 ... 21, a soft total 12 ... 21 (12: two aces that cannot be split) or a pair of cards
  /// of 2 ... 10 points or aces, against an up card of 2 ... 10 points or an ace. Fails with 9 for any other. A pair
  /// that cannot be split again is looked up by its total.
  PlayCode Find(HandKind kind, int totalOrCard, int upCard) const;

  bool operator==(const PlayingTable&) const = default;

 private:
  static constexpr std::size_t UpCards = 10;
  static constexpr std::size_t Ranks = 22;
  using Row = std::array<PlayCode, UpCards>;

  std::array<std::array<Row, Ranks>, 3> rows_{};
};

}  // namespace tactix::companion
