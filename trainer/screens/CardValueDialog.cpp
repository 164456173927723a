#include "trainer/screens/CardValueDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountValueSelector.h"
#include "trainer/engine/Predictions.h"
#include "trainer/engine/Words.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

namespace {

constexpr int CardKinds = 10;

engine::Card RedCardOf(int points) { return {static_cast<engine::Rank>(points), engine::Suit::Hearts}; }

/// A low card on the table leaves the shoe better for the player, a high one worse.
int ClumpValueOf(engine::Card card) {
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
      points_(new tactix::qt::CountValueSelector(this)),
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
  connect(points_, &tactix::qt::CountValueSelector::CountValueSelected, this, &CardValueDialog::JudgePoints);
  connect(clump_, &tactix::qt::ClumpCardList::ClumpValueSelected, this, &CardValueDialog::JudgeClump);
  NextCard();
}

QString CardValueDialog::ResultText() const { return result_->text(); }

void CardValueDialog::NextCard() {
  card_ = 1 + static_cast<int>(random_.Below(CardKinds));
  points_->CardValue(static_cast<tactix::qt::CountValueSelector::theCardValuePossibilities>(card_));
  clump_->CardValue(static_cast<tactix::qt::ClumpCardList::theClumpCardValuePossibilities>(card_));
  result_->setText(QStringLiteral("What is this card worth?"));
}

void CardValueDialog::JudgePoints(int points) {
  const int halves = system_.HalvesOf(RedCardOf(card_));
  const double worth = static_cast<double>(halves) / engine::HalvesPerPoint;
  // The list has whole points: either neighbour of half a point will do.
  const int off = halves - points * engine::HalvesPerPoint;
  const bool right = off > -engine::HalvesPerPoint && off < engine::HalvesPerPoint;
  result_->setText(right ? QStringLiteral("Right: the count is %1.").arg(Signed(worth))
                         : QStringLiteral("No: the count is %1, not %2.").arg(Signed(worth), Signed(points)));
}

void CardValueDialog::JudgeClump(int value) {
  const int worth = ClumpValueOf(RedCardOf(card_));
  result_->setText(value == worth
                       ? QStringLiteral("Right: the clump value is %1.").arg(Signed(worth))
                       : QStringLiteral("No: the clump value is %1, not %2.").arg(Signed(worth), Signed(value)));
}

}  // namespace trainer::screens
