#pragma once

#include <string>
#include <string_view>

#include "trainer/engine/Card.h"
#include "trainer/engine/Decision.h"
#include "trainer/engine/Hand.h"
#include "trainer/engine/Round.h"

namespace trainer::engine {

/// "Hit", "Stand", "Split", "Double" or "Surrender".
[[nodiscard]] std::string_view WordFor(Decision decision);
/// "ace", "2" ... "10"; faces are tens.
[[nodiscard]] std::string WordFor(Rank rank);
/// "blackjack", "pair of 8s", "soft 17", "16", "bust with 23".
[[nodiscard]] std::string WordFor(const Hand& hand);
/// "wins", "loses", "push", "blackjack", "surrendered", "bust".
[[nodiscard]] std::string_view WordFor(Outcome outcome);
/// As Amount, with "+" or "-" before all but zero.
[[nodiscard]] std::string SignedAmount(Money cents);
/// Cents as "12.50", or as "12" without odd cents.
[[nodiscard]] std::string Amount(Money cents);

}  // namespace trainer::engine
