#include "trainer/screens/ScoreBar.h"

#include <QHBoxLayout>
#include <QLabel>

#include "trainer/engine/Words.h"
#include "trainer/screens/Messages.h"

namespace trainer::screens {

ScoreBar::ScoreBar(QWidget* parent) : QWidget(parent) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  hands_ = NewCell(tr("Hands"));
  correct_ = NewCell(tr("Correct"));
  predictions_ = NewCell(tr("Predictions"));
  balance_ = NewCell(tr("Balance"));
  setAccessibleName(tr("Score"));
}

// Every cell keeps its place: the line is glanced at while its numbers change.
QLabel* ScoreBar::NewCell(const QString& caption) {
  auto* const cell = new QHBoxLayout;
  auto* const title = new QLabel(caption, this);
  auto* const value = new QLabel(this);
  QFont bold = value->font();
  bold.setBold(true);
  value->setFont(bold);
  value->setAccessibleName(caption);
  cell->addStretch(1);
  cell->addWidget(title);
  cell->addWidget(value);
  cell->addStretch(1);
  static_cast<QHBoxLayout*>(layout())->addLayout(cell, 1);
  return value;
}

void ScoreBar::Show(const engine::Tally& tally, const engine::Predictions& predictions) {
  hands_->setText(QString::number(tally.hands));
  const QString none = tr("none");
  const QString ratio = tr("%1 of %2");
  correct_->setText(
      tally.decisions == 0
          ? none
          : tr("%1 of %2 (%3 %)").arg(tally.correct).arg(tally.decisions).arg(tally.CorrectPercent(), 0, 'f', 1));
  predictions_->setText(predictions.Made() == 0 ? none : ratio.arg(predictions.Right()).arg(predictions.Made()));
  balance_->setText(ToQt(engine::SignedAmount(tally.net)));
  setAccessibleDescription(Text());
}

QString ScoreBar::Text() const {
  QStringList parts;
  for (const QLabel* value : {hands_, correct_, predictions_, balance_}) {
    parts << value->accessibleName() + QLatin1Char(' ') + value->text();
  }
  return parts.join(QStringLiteral(", "));
}

}  // namespace trainer::screens
