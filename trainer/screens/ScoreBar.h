#pragma once

#include <QWidget>

#include "trainer/engine/Predictions.h"
#include "trainer/engine/Session.h"

class QLabel;

namespace trainer::screens {

/// The line that says how the player is doing: hands, correct decisions, predictions and money.
class ScoreBar : public QWidget {
  Q_OBJECT

 public:
  explicit ScoreBar(QWidget* parent = nullptr);

  void Show(const engine::Tally& tally, const engine::Predictions& predictions);
  /// All of it as one line: "Hands 5, Correct 4 of 6 (66.7 %), Predictions none, Balance -10".
  [[nodiscard]] QString Text() const;

 private:
  QLabel* NewCell(const QString& caption);

  QLabel* hands_;
  QLabel* correct_;
  QLabel* predictions_;
  QLabel* balance_;
};

}  // namespace trainer::screens
