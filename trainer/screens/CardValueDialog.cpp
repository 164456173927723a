#include "trainer/screens/CardValueDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountValueSelector.h"
#include "trainer/engine/Predictions.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

namespace {

using engine::Card;
using engine::Rank;
using tactix::qt::CountValueSelector;

constexpr Card BlackSeven = {Rank::Seven, engine::Suit::Spades};

bool HasAnAnswer(int halves) {
  return halves >= CountValueSelector::LowestPointValue * engine::HalvesPerPoint &&
         halves <= CountValueSelector::HighestPointValue * engine::HalvesPerPoint;
}

std::vector<Card> CardsToAskFor(const engine::CountSystem& system) {
  std::vector<Card> cards;
  for (int points = 1; points <= 10; ++points) {
    const Card red{static_cast<Rank>(points), engine::Suit::Hearts};
    if (HasAnAnswer(system.HalvesOf(red))) cards.push_back(red);
  }
  if (system.sevens == engine::CountedSevens::Red) cards.push_back(BlackSeven);
  return cards;
}

/// A low card on the table leaves the shoe better for the player, a high one worse.
int ClumpValueOf(Card card) {
  switch (engine::RangeOf(card.rank)) {
    case engine::CardRange::Low:
      return 1;
    case engine::CardRange::Mid:
      return 0;
    case engine::CardRange::High:
      break;
  }
  return -1;
}

QString Signed(double number) { return (number > 0 ? QStringLiteral("+") : QString()) + QString::number(number); }

}  // namespace

CardValueDialog::CardValueDialog(const engine::CountSystem& system, std::uint64_t seed, QWidget* parent)
    : QDialog(parent),
      system_(system),
      random_(seed),
      cards_(CardsToAskFor(system)),
      points_(new CountValueSelector(this)),
      clump_(new tactix::qt::ClumpCardList(this)),
      result_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Card Values"));
  auto* const column = new QVBoxLayout(this);
  auto* const title = new QLabel(ToQt(system.name), this);
  title->setAlignment(Qt::AlignCenter);
  column->addWidget(title);
  auto* const row = new QHBoxLayout;
  for (QWidget* list : {static_cast<QWidget*>(points_), static_cast<QWidget*>(clump_)}) {
    list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    row->addWidget(list);
  }
  column->addLayout(row);
  result_->setObjectName(QStringLiteral("CardValueResult"));
  result_->setAlignment(Qt::AlignCenter);
  column->addWidget(result_);
  auto* const next = new QPushButton(QStringLiteral("&Next card"), this);
  next->setObjectName(QStringLiteral("NextCard"));
  column->addWidget(next);
  connect(next, &QPushButton::clicked, this, &CardValueDialog::NextCard);
  connect(points_, &CountValueSelector::CountValueSelected, this, &CardValueDialog::JudgePoints);
  connect(clump_, &tactix::qt::ClumpCardList::ClumpValueSelected, this, &CardValueDialog::JudgeClump);
  NextCard();
}

QString CardValueDialog::ResultText() const { return result_->text(); }

QString CardValueDialog::CardText() const {
  if (system_.sevens == engine::CountedSevens::All || card_.rank != Rank::Seven) return QStringLiteral("this card");
  return card_ == BlackSeven ? QStringLiteral("a black seven") : QStringLiteral("a red seven");
}

void CardValueDialog::NextCard() {
  card_ = cards_[random_.Below(cards_.size())];
  const int points = engine::PointsOf(card_.rank);
  points_->CardValue(static_cast<CountValueSelector::theCardValuePossibilities>(points));
  clump_->CardValue(static_cast<tactix::qt::ClumpCardList::theClumpCardValuePossibilities>(points));
  result_->setText(QStringLiteral("What is %1 worth?").arg(CardText()));
}

void CardValueDialog::JudgePoints(int points) {
  const int halves = system_.HalvesOf(card_);
  const double worth = static_cast<double>(halves) / engine::HalvesPerPoint;
  // The list has whole points: either neighbour of half a point will do.
  const int off = halves - points * engine::HalvesPerPoint;
  const bool right = off > -engine::HalvesPerPoint && off < engine::HalvesPerPoint;
  const QString what = QStringLiteral("the count of %1 is %2").arg(CardText(), Signed(worth));
  result_->setText(right ? QStringLiteral("Right: %1.").arg(what)
                         : QStringLiteral("No: %1, not %2.").arg(what, Signed(points)));
}

void CardValueDialog::JudgeClump(int value) {
  const int worth = ClumpValueOf(card_);
  const QString what = QStringLiteral("the clump value of %1 is %2").arg(CardText(), Signed(worth));
  result_->setText(value == worth ? QStringLiteral("Right: %1.").arg(what)
                                  : QStringLiteral("No: %1, not %2.").arg(what, Signed(value)));
}

}  // namespace trainer::screens
