#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>

#include "trainer/engine/Session.h"

namespace trainer::screens {

/// The first seed whose first round is as wanted. The round is dealt; `isWanted` may play on with it.
inline std::uint64_t SeedWhere(const std::function<bool(engine::Session&)>& isWanted, const engine::Rules& rules = {}) {
  for (std::uint64_t seed = 1; seed < 100000; ++seed) {
    engine::Session session(rules, seed);
    session.Deal();
    if (isWanted(session)) return seed;
  }
  throw std::logic_error("no seed deals such a round");
}

inline const engine::Hand& HandOf(const engine::Session& session) { return session.CurrentRound().ActiveHand().hand; }

/// All five plays are legal.
inline bool IsSplittable(const engine::Session& session) {
  return !session.IsOver() && session.CurrentRound().Legal().Allows(engine::Decision::Split);
}

/// Hard 13 or 14 and no pair, against a ten: basic strategy hits.
inline bool IsStiff(const engine::Session& session) {
  if (session.IsOver() || IsSplittable(session)) return false;
  const engine::Hand& hand = HandOf(session);
  return !hand.IsSoft() && hand.Total() >= 13 && hand.Total() <= 14 &&
         engine::PointsOf(session.CurrentRound().UpCard()) == 10;
}

}  // namespace trainer::screens
