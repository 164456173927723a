#pragma once

#include <span>

#include "trainer/engine/Card.h"
#include "trainer/engine/CountSystems.h"

namespace trainer::engine {

/// The count for sizing bets: how much better for the player the cards left are than a fresh shoe, as far as the system
/// sees it, in half percents of the bet, rounded down. It means the same in every system, balanced or not and of
/// whatever level: +1 is worth about what one point of a simple count is worth for each deck left.
///
/// 0 for a fresh shoe, for one whose cards seen are balanced, and for one without a card left. Throws
/// std::invalid_argument for fewer decks than one, and for more cards seen than the decks have.
[[nodiscard]] int BettingCount(const CountSystem& system, int decks, std::span<const Card> seen);

}  // namespace trainer::engine
