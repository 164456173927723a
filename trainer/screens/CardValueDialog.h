#pragma once

#include <QDialog>
#include <vector>

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

  /// The card asked for, one of each kind that the system may tell from others: ace to ten, and sevens of both colours
  /// where it tells them apart. A card whose points the list of answers does not have is not asked for.
  [[nodiscard]] engine::Card Card() const { return card_; }
  [[nodiscard]] QString ResultText() const;

 private:
  void NextCard();
  /// "a red seven", or "this card" where the digit beside the list says it all.
  [[nodiscard]] QString CardText() const;
  void JudgePoints(int points);
  void JudgeClump(int value);

  const engine::CountSystem& system_;
  engine::Random random_;
  std::vector<engine::Card> cards_;
  engine::Card card_;
  tactix::qt::CountValueSelector* points_;
  tactix::qt::ClumpCardList* clump_;
  QLabel* result_;
};

}  // namespace trainer::screens
