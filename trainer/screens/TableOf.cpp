#include "trainer/screens/TableOf.h"

#include "trainer/engine/Words.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

namespace {

QString Capitalised(QString text) {
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

QString OutcomeText(const engine::HandResult& result) {
  QString text = Capitalised(ToQt(engine::WordFor(result.outcome)));
  if (result.net != 0) text += QStringLiteral(" ") + ToQt(engine::SignedAmount(result.net));
  return text;
}

TableModel::HandView HandViewOf(const engine::PlayerHand& player, bool active) {
  TableModel::HandView view;
  view.cards.assign(player.hand.Cards().begin(), player.hand.Cards().end());
  view.label = Capitalised(ToQt(engine::WordFor(player.hand)));
  view.bet = ToQt(engine::Amount(player.bet));
  if (player.result) view.outcome = OutcomeText(*player.result);
  view.active = active;
  return view;
}

QString RulesText(const engine::Rules& rules) {
  return QStringLiteral("%1 %2, dealer %3 soft 17")
      .arg(rules.decks)
      .arg(rules.decks == 1 ? QStringLiteral("deck") : QStringLiteral("decks"))
      .arg(rules.dealerHitsSoft17 ? QStringLiteral("hits") : QStringLiteral("stands on"));
}

}  // namespace

TableModel TableOf(const engine::Session& session) {
  const engine::Round& round = session.CurrentRound();
  TableModel model;
  model.holeHidden = !round.IsOver();
  // What the player may not see does not leave the session.
  const auto dealer = round.DealerHand().Cards().first(model.holeHidden ? 1 : round.DealerHand().Cards().size());
  model.dealer.assign(dealer.begin(), dealer.end());
  model.dealerLabel = round.IsOver() ? QStringLiteral("Dealer: ") + ToQt(engine::WordFor(round.DealerHand()))
                                     : QStringLiteral("Dealer shows ") + ToQt(engine::WordFor(round.UpCard()));
  const auto hands = round.HandsOf(0);
  for (std::size_t i = 0; i < hands.size(); ++i) {
    model.hands.push_back(HandViewOf(hands[i], !round.IsOver() && round.ActivePlace() == engine::HandPlace{0, i}));
  }
  const engine::Shoe& shoe = session.TheShoe();
  const auto all = static_cast<double>(shoe.RemainingCount() + shoe.DealtCount());
  model.shoeLeft = static_cast<double>(shoe.RemainingCount()) / all;
  model.cutCardOut = shoe.NeedsShuffle();
  model.banner = RulesText(session.TheRules());
  model.feltText = PayoutText(session.TheRules());
  return model;
}

}  // namespace trainer::screens
