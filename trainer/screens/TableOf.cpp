#include "trainer/screens/TableOf.h"

#include "trainer/engine/Words.h"

namespace trainer::screens {

namespace {

QString Text(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QString Capitalised(QString text) {
  if (!text.isEmpty()) text[0] = text[0].toUpper();
  return text;
}

QString OutcomeText(const engine::HandResult& result) {
  QString text = Capitalised(Text(engine::WordFor(result.outcome)));
  if (result.net != 0) text += QStringLiteral(" ") + Text(engine::SignedAmount(result.net));
  return text;
}

TableModel::HandView HandViewOf(const engine::PlayerHand& player, bool active) {
  TableModel::HandView view;
  view.cards.assign(player.hand.Cards().begin(), player.hand.Cards().end());
  view.label = Capitalised(Text(engine::WordFor(player.hand)));
  view.bet = Text(engine::Amount(player.bet));
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
  const auto dealer = round.DealerHand().Cards();
  model.dealer.assign(dealer.begin(), dealer.end());
  model.holeHidden = !round.IsOver();
  model.dealerLabel = round.IsOver() ? QStringLiteral("Dealer: ") + Text(engine::WordFor(round.DealerHand()))
                                     : QStringLiteral("Dealer shows ") + Text(engine::WordFor(round.UpCard()));
  const auto hands = round.HandsOf(0);
  for (std::size_t i = 0; i < hands.size(); ++i) {
    model.hands.push_back(HandViewOf(hands[i], !round.IsOver() && round.ActivePlace() == engine::HandPlace{0, i}));
  }
  const engine::Shoe& shoe = session.TheShoe();
  const auto all = static_cast<double>(shoe.RemainingCount() + shoe.DealtCount());
  model.shoeLeft = static_cast<double>(shoe.RemainingCount()) / all;
  model.cutCardOut = shoe.NeedsShuffle();
  model.banner = RulesText(session.TheRules());
  return model;
}

}  // namespace trainer::screens
