#pragma once

#include <vector>

#include "tactix-qt/Decision.h"
#include "trainer/screens/DecisionInput.h"

namespace trainer::screens {

/// Playing with the decision box.
class BoxInput final : public DecisionInput {
  Q_OBJECT

 public:
  explicit BoxInput(QWidget* parent = nullptr);

  tactix::qt::Decision& Box() { return *box_; }

  void Ask(const tactix::DecisionBlock& block, int turn) override;
  void Rest() override;
  void NameStrategy(const QString& name) override;

 private:
  void BeginTurn(int turn);
  int TakeTurnOfAdvice();

  tactix::qt::Decision* box_;
  int turn_ = 0;
  std::vector<int> askedIn_;  // the turns of the flashes that run, the outermost first, as far as those are over
};

}  // namespace trainer::screens
