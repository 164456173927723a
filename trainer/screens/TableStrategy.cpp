#include "trainer/screens/TableStrategy.h"

namespace trainer::screens {

namespace {

using engine::Decision;
using tactix::companion::HandKind;
using tactix::companion::PlayCode;
using tactix::companion::PlayingTable;

int PointsIn(engine::Rank rank) { return rank == engine::Rank::Ace ? PlayingTable::Ace : engine::PointsOf(rank); }

PlayCode Look(const PlayingTable& table, const engine::Hand& hand, engine::Rank upCard, bool canSplit) {
  const int up = PointsIn(upCard);
  if (hand.IsPair() && canSplit) return table.Find(HandKind::Pair, PointsIn(hand.Cards()[0].rank), up);
  return table.Find(hand.IsSoft() ? HandKind::Soft : HandKind::Hard, hand.Total(), up);
}

}  // namespace

Decision TableStrategy::Wish(const engine::Hand& hand, engine::Rank upCard, const engine::LegalPlays& legal,
                             const engine::Rules& rules) const {
  const auto unlessForbidden = [&legal](Decision wish, Decision instead) {
    return legal.Allows(wish) ? wish : instead;
  };
  switch (Look(table_, hand, upCard, legal.Allows(Decision::Split))) {
    case PlayCode::Hit:
      return Decision::Hit;
    case PlayCode::Stand:
      return Decision::Stand;
    case PlayCode::DoubleOrHit:
      return unlessForbidden(Decision::Double, Decision::Hit);
    case PlayCode::DoubleOrStand:
      return unlessForbidden(Decision::Double, Decision::Stand);
    case PlayCode::Split:
      return Decision::Split;
    case PlayCode::SplitOrHit:
      return rules.doubleAfterSplit ? Decision::Split : Decision::Hit;
    case PlayCode::SplitOrDouble:
      return rules.doubleAfterSplit ? Decision::Split : unlessForbidden(Decision::Double, Decision::Hit);
    case PlayCode::SplitOrStand:
      return rules.doubleAfterSplit ? Decision::Split : Decision::Stand;
    case PlayCode::SurrenderOrHit:
      return unlessForbidden(Decision::Surrender, Decision::Hit);
    case PlayCode::SurrenderOrStand:
      return unlessForbidden(Decision::Surrender, Decision::Stand);
    case PlayCode::SurrenderOrSplit:
      return unlessForbidden(Decision::Surrender, Decision::Split);
  }
  return Decision::Hit;
}

}  // namespace trainer::screens
