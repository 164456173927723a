#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// One of the five plays of a hand, as all controls know it.
struct Play {
  AdvicePossibilities code;
  char letter;  ///< the key that makes it
  std::string_view name;
  std::string_view shortName;  ///< where there is no room for the name
};

/// In the order of their codes, which is the order in which they are shown.
inline constexpr std::array<Play, 5> Plays = {{
    {AdvicePossibilities::HitAdvised, 'H', "Hit", "Hit"},
    {AdvicePossibilities::StandAdvised, 'S', "Stand", "Stand"},
    {AdvicePossibilities::SplitAdvised, 'P', "Split", "Split"},
    {AdvicePossibilities::DoubleAdvised, 'D', "Double", "Double"},
    {AdvicePossibilities::SurrenderAdvised, 'G', "Surrender", "Surr."},
}};

constexpr const Play& PlayOf(AdvicePossibilities code) {
  return Plays[static_cast<std::size_t>(static_cast<std::int32_t>(code) - 1)];
}

/// The play with this code; null where no play has it.
constexpr const Play* FindPlay(Coded<AdvicePossibilities> code) {
  for (const Play& play : Plays) {
    if (code == play.code) return &play;
  }
  return nullptr;
}

/// The play that a capital letter makes; null where it makes none.
constexpr const Play* FindPlay(char letter) {
  for (const Play& play : Plays) {
    if (play.letter == letter) return &play;
  }
  return nullptr;
}

/// The row about a play in a table of one row a play, each of which is a Play; null without a play.
template <class Rows>
constexpr auto RowOf(const Rows& rows, const Play* play) -> decltype(&rows[0]) {
  for (const auto& row : rows) {
    if (play && row.code == play->code) return &row;
  }
  return nullptr;
}

}  // namespace tactix
