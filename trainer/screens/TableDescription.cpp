#include "trainer/screens/TableDescription.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace trainer::screens {
namespace {

using engine::Card;
using HandView = TableModel::HandView;
using Verdict = TableModel::Verdict;

constexpr std::array<const char*, engine::RankCount> RankWords = {
    QT_TRANSLATE_NOOP("Table", "ace"),   QT_TRANSLATE_NOOP("Table", "two"),   QT_TRANSLATE_NOOP("Table", "three"),
    QT_TRANSLATE_NOOP("Table", "four"),  QT_TRANSLATE_NOOP("Table", "five"),  QT_TRANSLATE_NOOP("Table", "six"),
    QT_TRANSLATE_NOOP("Table", "seven"), QT_TRANSLATE_NOOP("Table", "eight"), QT_TRANSLATE_NOOP("Table", "nine"),
    QT_TRANSLATE_NOOP("Table", "ten"),   QT_TRANSLATE_NOOP("Table", "jack"),  QT_TRANSLATE_NOOP("Table", "queen"),
    QT_TRANSLATE_NOOP("Table", "king")};

constexpr std::array<const char*, engine::SuitCount> SuitWords = {
    QT_TRANSLATE_NOOP("Table", "clubs"), QT_TRANSLATE_NOOP("Table", "diamonds"), QT_TRANSLATE_NOOP("Table", "hearts"),
    QT_TRANSLATE_NOOP("Table", "spades")};

QString Tr(const char* text) { return QCoreApplication::translate("Table", text); }

QString Sentence(const QString& text) {
  constexpr QStringView Ends = u".!?";
  return text.isEmpty() || Ends.contains(text.back()) ? text : text + u'.';
}

QStringList InWords(const std::vector<Card>& cards) {
  QStringList words;
  for (const Card card : cards) words << CardInWords(card);
  return words;
}

QString DescribeDealer(const TableModel& model) {
  if (model.dealer.empty()) return Tr("The dealer has no cards.");
  // The label of a hidden hand repeats the up card, so it is left out.
  if (model.holeHidden) {
    QStringList shown{CardInWords(model.dealer.front())};
    for (std::size_t i = 2; i < model.dealer.size(); ++i) shown << CardInWords(model.dealer[i]);
    return Tr("Dealer shows %1.").arg(shown.join(QStringLiteral(", ")));
  }
  const QString cards = Tr("Dealer has %1.").arg(InWords(model.dealer).join(QStringLiteral(", ")));
  return model.dealerLabel.isEmpty() ? cards : cards + u' ' + Sentence(model.dealerLabel);
}

QString DescribeHand(const HandView& hand, std::size_t number, std::size_t count) {
  QString name = Tr("Your hand");
  if (count > 1) {
    name = hand.active ? Tr("Your hand %1 of %2, being played") : Tr("Your hand %1 of %2");
    name = name.arg(number).arg(count);
  }
  QStringList parts = InWords(hand.cards);
  if (parts.isEmpty()) parts << Tr("no cards");
  if (!hand.label.isEmpty()) parts << hand.label;
  if (!hand.bet.isEmpty()) parts << Tr("bet %1").arg(hand.bet);
  if (!hand.outcome.isEmpty()) parts << hand.outcome;
  return Sentence(name + QStringLiteral(": ") + parts.join(QStringLiteral(", ")));
}

}  // namespace

QString CardInWords(Card card) {
  return Tr("%1 of %2")
      .arg(Tr(RankWords[static_cast<std::size_t>(card.rank) - 1]), Tr(SuitWords[static_cast<std::size_t>(card.suit)]));
}

QString DescribeTable(const TableModel& model) {
  QStringList sentences;
  if (!model.banner.isEmpty()) sentences << Sentence(model.banner);
  sentences << DescribeDealer(model);
  for (std::size_t i = 0; i < model.hands.size(); ++i) {
    sentences << DescribeHand(model.hands[i], i + 1, model.hands.size());
  }
  if (model.verdict == Verdict::Right) sentences << Tr("Right.");
  if (model.verdict == Verdict::Wrong) sentences << Tr("Wrong.");
  if (!model.message.isEmpty()) sentences << Sentence(model.message);
  if (model.shoeLeft >= 0) {
    const double left = std::clamp(model.shoeLeft, 0.0, 1.0);
    sentences << Tr("%1 percent of the shoe is left.").arg(std::lround(left * 100));
  }
  if (model.cutCardOut) sentences << Tr("The cut card is out.");
  return sentences.join(u' ');
}

}  // namespace trainer::screens
