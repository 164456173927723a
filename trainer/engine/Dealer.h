#pragma once

#include "trainer/engine/Hand.h"
#include "trainer/engine/Rules.h"

namespace trainer::engine {

/// Whether a dealer with this hand takes another card: below 17, and with a soft 17 where the rules say so.
[[nodiscard]] inline bool DealerDraws(const Hand& hand, const Rules& rules) {
  return hand.Total() < 17 || (hand.Total() == 17 && hand.IsSoft() && rules.dealerHitsSoft17);
}

}  // namespace trainer::engine
