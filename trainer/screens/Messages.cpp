#include "trainer/screens/Messages.h"

#include "trainer/engine/Words.h"

namespace trainer::screens {

QString PredictionText(const QString& what, std::optional<bool> right) {
  if (!right) return {};
  return QStringLiteral(" %1 predicted %2.").arg(what, *right ? QStringLiteral("right") : QStringLiteral("wrong"));
}

QString PlayText(engine::Decision play, const engine::Hand& hand, engine::Rank upCard) {
  const QString join = play == engine::Decision::Stand ? QStringLiteral(" on ") : QStringLiteral(" ");
  const QString article = hand.IsPair() ? QStringLiteral("a ") : QString();
  return ToQt(engine::WordFor(play)) + join + article + ToQt(engine::WordFor(hand)) + QStringLiteral(" against ") +
         ToQt(engine::WordFor(upCard));
}

QString JudgementText(const engine::Judgement& judgement, const engine::Hand& hand, engine::Rank upCard,
                      const QString& strategy) {
  QString text = judgement.IsRight() ? QStringLiteral("Right") : QStringLiteral("Better");
  if (!strategy.isEmpty()) text += QStringLiteral(" by ") + strategy;
  text += QStringLiteral(": ") + PlayText(judgement.advised, hand, upCard) + QLatin1Char('.');
  text += PredictionText(QStringLiteral("Hit card"), judgement.hitCardPrediction);
  text += PredictionText(QStringLiteral("Hole card"), judgement.holeCardPrediction);
  text += PredictionText(QStringLiteral("Dealer's hand"), judgement.dealerPrediction);
  return text;
}

QString DealtRoundText(const engine::Round& round, const engine::Rules& rules) {
  const bool players = round.HandsOf(0)[0].hand.IsBlackjack();
  const bool dealers = round.DealerHand().IsBlackjack();
  if (players && dealers) return QStringLiteral("Blackjack for you and for the dealer: a push.");
  if (players) return PayoutText(rules) + QLatin1Char('.');
  if (dealers) return QStringLiteral("The dealer has blackjack.");
  return {};
}

QString PayoutText(const engine::Rules& rules) {
  return QStringLiteral("Blackjack pays %1 to %2")
      .arg(rules.blackjackPays.numerator)
      .arg(rules.blackjackPays.denominator);
}

}  // namespace trainer::screens
