#pragma once

#include "tactix/decision/Decision.h"
#include "tactix/shared/Plays.h"

namespace tactix {

/// A play's button and event in a decision box.
struct DecisionPlay : Play {
  PushButton Decision::ChildWidgets::*button;
  Event<> Decision::EventSet::*event;
};

inline constexpr DecisionPlay DecisionPlays[] = {
    {PlayOf(AdvicePossibilities::HitAdvised), &Decision::ChildWidgets::HitButton, &Decision::EventSet::PlayerHits},
    {PlayOf(AdvicePossibilities::StandAdvised), &Decision::ChildWidgets::StandButton,
     &Decision::EventSet::PlayerStands},
    {PlayOf(AdvicePossibilities::SplitAdvised), &Decision::ChildWidgets::SplitButton,
     &Decision::EventSet::PlayerSplits},
    {PlayOf(AdvicePossibilities::DoubleAdvised), &Decision::ChildWidgets::DoubleButton,
     &Decision::EventSet::PlayerDoublesDown},
    {PlayOf(AdvicePossibilities::SurrenderAdvised), &Decision::ChildWidgets::SurrenderButton,
     &Decision::EventSet::PlayerSurrenders},
};

}  // namespace tactix
