#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "trainer/engine/Card.h"
#include "trainer/engine/Rules.h"

namespace trainer::engine {

/// One square of a chart: what to play and, if the table forbids that, what instead.
enum class ChartCell : std::uint8_t {
  H,   ///< hit
  S,   ///< stand
  Dh,  ///< double, else hit
  Ds,  ///< double, else stand
  Rh,  ///< surrender, else hit
  Rs,  ///< surrender, else stand
  Rp,  ///< surrender, else split
  P,   ///< split, else as the total
  T,   ///< as the total
  Pd,  ///< P where split hands may be doubled, else T
  Rd,  ///< P where split hands may be doubled, else Rp
};

inline constexpr std::size_t UpCardCount = 10;

/// The column of a dealer's up card: 2 ... 10, then the ace.
[[nodiscard]] constexpr std::size_t ColumnOf(Rank upCard) {
  const int points = PointsOf(upCard);
  return points == 1 ? UpCardCount - 1 : static_cast<std::size_t>(points) - 2;
}

struct ChartRow {
  std::string_view name;
  std::array<ChartCell, UpCardCount> cells;
};

/// Total-dependent basic strategy for one kind of table, in the order in which a printed chart has it.
///
/// For four to eight decks the squares are those of the charts of the Wizard of Odds (4-8 decks, dealer stands on soft
/// 17 and dealer hits soft 17, with late surrender). Those for one and two decks are computed: the exact values of
/// all first two cards from full decks, no resplit counted, hands of the same total weighed by how often they are
/// dealt.
struct BasicChart {
  std::array<ChartRow, 12> hard;  ///< "7 or less", 8 ... 17, "18 or more"
  std::array<ChartRow, 9> soft;   ///< 12 ... 19, "20 or more"; 12 is a pair of aces that can't be split
  std::array<ChartRow, 10> pair;  ///< A,A, 2,2 ... 10,10
};

/// Three decks are played as four: one square, 16 against 9, is a tie between them.
[[nodiscard]] const BasicChart& ChartFor(const Rules& rules);

}  // namespace trainer::engine
