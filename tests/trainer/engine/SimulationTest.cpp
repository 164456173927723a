#include <gtest/gtest.h>

#include "trainer/engine/Round.h"
#include "trainer/engine/Shoe.h"
#include "trainer/engine/Strategy.h"

namespace trainer::engine {
namespace {

#if defined(NDEBUG)
constexpr int Hands = 200'000;
#else
constexpr int Hands = 40'000;
#endif

/// Per cent of the initial bet that a hand wins or, below 0, loses on average. The same cards every time.
double EdgeOf(const Strategy& strategy, const Rules& rules) {
  Shoe shoe(rules.decks, 2026);
  Money net = 0;
  for (int hand = 0; hand < Hands; ++hand) {
    if (shoe.NeedsShuffle()) shoe.Shuffle();
    Round round(rules, shoe, {100});
    while (!round.IsOver()) {
      round.Play(strategy.Advise(round.ActiveHand().hand, round.UpCard(), round.Legal(), rules));
    }
    net += round.Net();
  }
  return static_cast<double>(net) / Hands;
}

TEST(SimulationTest, BasicStrategyComesNearTheKnownEdgeAndTheNaiveOnesFarBelowIt) {
  const Rules rules;  // six decks, S17, double after split, late surrender: about -0.35 %
  const double basic = EdgeOf(BasicStrategy(), rules);
  const double mimic = EdgeOf(MimicTheDealer(), rules);
  const double neverBust = EdgeOf(NeverBust(), rules);
  EXPECT_GT(basic, -1.2);
  EXPECT_LT(basic, 0.4);
  // Known for mimicking: about -5.5 %.
  EXPECT_GT(mimic, -7.5);
  EXPECT_LT(mimic, basic - 3);
  EXPECT_GT(neverBust, -9);
  EXPECT_LT(neverBust, basic - 3);
}

}  // namespace
}  // namespace trainer::engine
