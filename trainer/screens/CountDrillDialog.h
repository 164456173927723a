#pragma once

#include <QDialog>
#include <cstdint>
#include <optional>

#include "trainer/engine/CountDrill.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTimer;

namespace tactix::qt {
class SpinCounter;
}

namespace trainer::screens {

class CardView;

/// Practice in counting: cards are dealt at the speed that the player chooses; then the player enters the running count
/// and is told how far off it was.
class CountDrillDialog : public QDialog {
  Q_OBJECT

 public:
  /// Deals from that many decks; each drill draws its cards from the next seed. The system must live as long as the
  /// dialog.
  CountDrillDialog(const engine::CountSystem& system, int decks, std::uint64_t seed, QWidget* parent = nullptr);

  /// The drill that runs or has run last; null before the first.
  [[nodiscard]] const engine::CountDrill* Drill() const { return drill_ ? &*drill_ : nullptr; }
  [[nodiscard]] QString ResultText() const;

 private:
  QWidget* MakeSettings();
  QWidget* MakeAnswer();
  void Start();
  void DealOne();
  void AskForTheCount();
  void Judge();

  const engine::CountSystem& system_;
  int decks_;
  std::uint64_t seed_;
  std::optional<engine::CountDrill> drill_;
  QTimer* timer_;
  CardView* card_;
  QComboBox* speed_;
  QComboBox* length_;
  QPushButton* start_;
  tactix::qt::SpinCounter* answer_;
  QPushButton* check_;
  QLabel* progress_;
  QLabel* result_;
};

}  // namespace trainer::screens
