#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/decision/Decision.h"

namespace tactix {

/// One of the five plays of a decision box: its letter key, its code as in AdvicePossibilities, its name in the
/// description box, its button and its event.
struct DecisionPlay {
  char letter;
  std::int16_t code;
  std::string_view name;
  PushButton Decision::ChildWidgets::*button;
  Event<> Decision::EventSet::*event;
};

inline constexpr DecisionPlay DecisionPlays[] = {
    {'H', 1, "Hit", &Decision::ChildWidgets::HitButton, &Decision::EventSet::PlayerHits},
    {'S', 2, "Stand", &Decision::ChildWidgets::StandButton, &Decision::EventSet::PlayerStands},
    {'P', 3, "Split", &Decision::ChildWidgets::SplitButton, &Decision::EventSet::PlayerSplits},
    {'D', 4, "Double", &Decision::ChildWidgets::DoubleButton, &Decision::EventSet::PlayerDoublesDown},
    {'G', 5, "Surrender", &Decision::ChildWidgets::SurrenderButton, &Decision::EventSet::PlayerSurrenders},
};

constexpr const DecisionPlay* PlayOfLetter(char letter) {
  for (const DecisionPlay& play : DecisionPlays) {
    if (play.letter == letter) return &play;
  }
  return nullptr;
}

}  // namespace tactix
