#include "trainer/screens/HandBlock.h"

#include <string>

namespace trainer::screens {

namespace {

/// "Seat 1", or "Seat 1, hand 2" once the hand has been split.
std::string PlayerName(const engine::Round& round) {
  const engine::HandPlace place = round.ActivePlace();
  std::string name = "Seat " + std::to_string(place.seat + 1);
  if (round.HandsOf(place.seat).size() > 1) name += ", hand " + std::to_string(place.hand + 1);
  return name;
}

}  // namespace

void FillBlock(const engine::Session& session, tactix::DecisionBlock& block) {
  const engine::Round& round = session.CurrentRound();
  const engine::Hand& hand = round.ActiveHand().hand;
  const engine::LegalPlays legal = round.Legal();
  const bool canDouble = legal.Allows(engine::Decision::Double);
  const auto hardTotal = static_cast<std::int16_t>(hand.HardTotal());

  block.PlayerName(PlayerName(round));
  block.HardTotal(hardTotal);
  block.SoftTotal(hand.IsSoft() ? hardTotal : std::int16_t{0});
  block.MidCardsAre("7, 8 or 9");
  block.ManualPlayerRestrictions(true);
  block.HitIsValid(legal.Allows(engine::Decision::Hit));
  block.SplitIsValid(legal.Allows(engine::Decision::Split));
  block.HardDoubleIsValid(canDouble && !hand.IsSoft());
  block.SoftDoubleIsValid(canDouble && hand.IsSoft());
  block.SurrenderIsValid(legal.Allows(engine::Decision::Surrender));
  block.StrategyAdvice(static_cast<std::int16_t>(session.Advised()));
  block.PlayingLogEnabled(true);
}

}  // namespace trainer::screens
