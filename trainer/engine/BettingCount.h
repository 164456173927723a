#pragma once

#include <span>

#include "trainer/engine/Card.h"
#include "trainer/engine/CountSystems.h"

namespace trainer::engine {

/// The count that bets go by: how much better for the player than a fresh shoe the cards left are, in half percents of
/// the bet and rounded down, as far as the system sees it. It says the same in every system, balanced or not and of
/// whatever level: +1 is worth about what one point of a simple count is worth for each deck left.
///
/// 0 for a fresh shoe, for one of which the cards have gone evenly, and for one of which no card is left. Throws
/// std::invalid_argument for fewer decks than one, and for more cards seen than the decks have.
[[nodiscard]] int BettingCount(const CountSystem& system, int decks, std::span<const Card> seen);

}  // namespace trainer::engine
