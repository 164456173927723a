#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tactix {

/// The properties of a decision block, in the order in which a block is copied.
enum class BlockField {
  SoftTotal,
  HardTotal,
  PlayerName,
  MidCardsAre,
  ManualPlayerRestrictions,
  PlayingLogEnabled,
  PromptPlayButtons,
  HardDoubleIsValid,
  SoftDoubleIsValid,
  SurrenderIsValid,
  StrategyAdvice,
  SplitIsValid,
  HitIsValid,
};

/// The names by which blocks are read, in the order of BlockField.
inline constexpr std::array<std::string_view, 13> BlockFieldNames = {
    "SoftTotal",         "HardTotal",         "PlayerName",        "MidCardsAre",       "ManualPlayerRestrictions",
    "PlayingLogEnabled", "PromptPlayButtons", "HardDoubleIsValid", "SoftDoubleIsValid", "SurrenderIsValid",
    "StrategyAdvice",    "SplitIsValid",      "HitIsValid",
};

constexpr std::string_view NameOf(BlockField field) { return BlockFieldNames[static_cast<std::size_t>(field)]; }

}  // namespace tactix
