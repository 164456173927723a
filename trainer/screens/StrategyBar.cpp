#include "trainer/screens/StrategyBar.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace trainer::screens {

StrategyBar::StrategyBar(QWidget* parent)
    : QWidget(parent),
      marquee_(new tactix::qt::StrategyMarquix(this)),
      betting_(new tactix::qt::BetStrategyList(this)),
      units_(new tactix::qt::UnitSelectionList(this)),
      counts_(new tactix::qt::CountStrategyList(this)) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  marquee_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  row->addWidget(marquee_, 1, Qt::AlignCenter);
  row->addWidget(WithCaption(QStringLiteral("Betting strategy"), betting_), 1, Qt::AlignCenter);
  row->addWidget(WithCaption(QStringLiteral("Bet"), units_), 1, Qt::AlignCenter);
  row->addWidget(WithCaption(QStringLiteral("Count system"), counts_), 1, Qt::AlignCenter);

  marquee_->Caption(QStringLiteral("Seat 1"));
  Introduce(QStringLiteral("Strategy of seat 1"), marquee_);
  marquee_->ControlType(tactix::qt::StrategyMarquix::IsAPlayingMarquix);
  marquee_->LoadStrategiesFromIniFile();
  betting_->LoadStrategiesFromIniFile();
  counts_->LoadStrategiesFromIniFile();
  using tactix::qt::BetStrategyList;
  using tactix::qt::CountStrategyList;
  using tactix::qt::StrategyMarquix;
  connect(marquee_, &StrategyMarquix::StrategySelectionChanged, this, &StrategyBar::PlayingPicked);
  connect(betting_, &BetStrategyList::StrategySelectionChanged, this, &StrategyBar::BettingPicked);
  // The event carries the row: 0 for one unit.
  connect(units_, &tactix::qt::UnitSelectionList::UnitSizeSelected, this,
          [this](int picked) { Q_EMIT UnitsPicked(picked + 1); });
  // The event's number is one less than the system's.
  connect(counts_, &CountStrategyList::StrategySelectionChanged, this,
          [this](int number) { Q_EMIT CountPicked(number + 1); });
}

void StrategyBar::ShowPlaying(std::optional<int> number) {
  const QSignalBlocker quiet(marquee_);
  marquee_->SelectThisStrategy(number.has_value());
  if (number) {
    marquee_->ListIndex(*number);
  } else {
    // A new fill deselects the row and shows "Select a Strategy"; deselecting alone would leave the row's text.
    marquee_->InputPlayingStrategyDescriptions();
  }
}

QWidget* StrategyBar::WithCaption(const QString& caption, QWidget* list) {
  auto* const cell = new QWidget(this);
  auto* const column = new QVBoxLayout(cell);
  column->setContentsMargins(0, 0, 0, 0);
  auto* const label = new QLabel(caption, cell);
  label->setAlignment(Qt::AlignCenter);
  label->setBuddy(list);
  column->addWidget(label);
  Introduce(caption, list);
  list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  column->addWidget(list, 0, Qt::AlignCenter);
  return cell;
}

void StrategyBar::Introduce(const QString& name, QWidget* list) {
  auto* const box = list->findChild<QComboBox*>();
  box->setAccessibleName(name);
  box->installEventFilter(this);
}

bool StrategyBar::eventFilter(QObject* object, QEvent* event) {
  // When an open list closes, its box gets the focus back with this reason.
  if (event->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(event)->reason() == Qt::PopupFocusReason) {
    Q_EMIT Closed();
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace trainer::screens
