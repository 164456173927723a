#pragma once

#include "tactix-qt/DecisionBAR2.h"
#include "tactix-qt/HitStandLegend.h"
#include "trainer/screens/DecisionInput.h"

class QLabel;

namespace trainer::screens {

/// Playing with the decision toolbar, and with the legend beside it if wanted. Above the toolbar stands its prompt,
/// below it what the player has predicted.
class ToolBarInput final : public DecisionInput {
  Q_OBJECT

 public:
  explicit ToolBarInput(QWidget* parent = nullptr);

  tactix::qt::DecisionBAR2& Bar() { return *bar_; }
  tactix::qt::HitStandLegend& Legend() { return *legend_; }
  /// Hidden at first. While it is shown it gets the focus, because it takes the letter keys.
  void ShowLegend(bool shown);

  void Ask(const tactix::DecisionBlock& block, int turn) override;
  void Rest() override;
  [[nodiscard]] Guesses CollectGuesses() override;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Connect();
  void ShowRecord();

  QLabel* prompt_;
  QLabel* record_;
  tactix::qt::HitStandLegend* legend_;
  tactix::qt::DecisionBAR2* bar_;
  bool resting_ = false;
};

}  // namespace trainer::screens
