#pragma once

#include <QDialog>

#include "trainer/engine/CountSystems.h"
#include "trainer/engine/Random.h"

class QLabel;

namespace tactix::qt {
class ClumpCardList;
class CountValueSelector;
}  // namespace tactix::qt

namespace trainer::screens {

/// Practice in card values: for one card after the other the player gives the points that the count system gives it,
/// and its clump value.
class CardValueDialog : public QDialog {
  Q_OBJECT

 public:
  /// The system must live as long as the dialog. The same seed asks for the same cards.
  CardValueDialog(const engine::CountSystem& system, std::uint64_t seed, QWidget* parent = nullptr);

  /// The points of the card asked for, 1 (ace) to 10; a seven is a red one.
  [[nodiscard]] int Card() const { return card_; }
  [[nodiscard]] QString ResultText() const;

 private:
  void NextCard();
  void JudgePoints(int points);
  void JudgeClump(int value);

  const engine::CountSystem& system_;
  engine::Random random_;
  int card_ = 0;
  tactix::qt::CountValueSelector* points_;
  tactix::qt::ClumpCardList* clump_;
  QLabel* result_;
};

}  // namespace trainer::screens
