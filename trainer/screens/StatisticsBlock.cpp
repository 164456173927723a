#include "trainer/screens/StatisticsBlock.h"

#include <algorithm>
#include <cmath>

#include "trainer/engine/BettingCount.h"
#include "trainer/engine/Counter.h"

namespace trainer::screens {

namespace {

using engine::Card;

/// The clump type of balanced cards.
constexpr int NeutralClump = 7;

constexpr bool IsCore(int points) { return points >= 5 && points <= 8; }

/// Low cards on the table less high ones: each low card that is out leaves the shoe better for the player.
int TableBalance(const engine::Session& session) {
  const engine::Round& round = session.CurrentRound();
  int balance = 0;
  const auto weigh = [&balance](Card card) {
    const engine::CardRange range = engine::RangeOf(card.rank);
    if (range == engine::CardRange::Low) ++balance;
    if (range == engine::CardRange::High) --balance;
  };
  for (std::size_t seat = 0; seat < round.SeatCount(); ++seat) {
    for (const auto& hand : round.HandsOf(seat)) {
      for (const Card card : hand.hand.Cards()) weigh(card);
    }
  }
  const auto dealers = round.DealerHand().Cards();
  for (std::size_t i = 0; i < dealers.size(); ++i) {
    if (i != 1 || round.IsOver()) weigh(dealers[i]);
  }
  return balance;
}

}  // namespace

void FillStatistics(const engine::Session& session, const engine::CountSystem& system,
                    tactix::companion::StrategyDataBlock& block) {
  const int decks = session.TheRules().decks;
  const std::vector<Card> seen = session.Seen();
  // Burning cards may have used up the whole shoe. It then counts as having one card left, since a true count needs
  // one.
  const int left = std::max(decks * engine::CardsPerDeck - static_cast<int>(seen.size()), 1);
  const auto countOf = [&seen](auto isCounted) {
    return static_cast<std::int16_t>(
        std::count_if(seen.begin(), seen.end(), [&](Card card) { return isCounted(engine::PointsOf(card.rank)); }));
  };

  engine::Counter counter(system, decks);
  counter.See(seen);
  block.RunningCount = static_cast<std::int16_t>(counter.RunningCount());
  block.TrueCount = static_cast<std::int16_t>(counter.TrueCount(left).value_or(counter.RunningCount()));
  block.AdjustedCount = static_cast<std::int16_t>(engine::BettingCount(system, decks, seen));

  block.AcesDealt = countOf([](int points) { return points == 1; });
  block.FivesDealt = countOf([](int points) { return points == 5; });
  block.TensDealt = countOf([](int points) { return points == 10; });
  block.CoreCardsDealt = countOf(IsCore);

  const double tensLeft = 16.0 * decks - block.TensDealt;
  block.TargetRating = static_cast<std::int32_t>(std::lround(100.0 * tensLeft / left));
  block.BiasRating = session.RoundsAhead();
  block.ClumpType = session.HasRound() ? NeutralClump + TableBalance(session) : NeutralClump;

  const engine::DealerRecord& dealer = session.TheDealer();
  block.DealerBreakPercent = static_cast<float>(dealer.BreakPercent());
  block.DealerStiffHands = static_cast<float>(dealer.StiffHands());
  block.DealerStrongHands = static_cast<float>(dealer.StrongHands());
  block.DealerEndingTotal = static_cast<float>(dealer.EndingTotal());
}

}  // namespace trainer::screens
