#pragma once

#include "tactix-qt/Decision.h"
#include "trainer/screens/DecisionInput.h"

namespace trainer::screens {

/// Playing with the decision box.
class BoxInput final : public DecisionInput {
  Q_OBJECT

 public:
  explicit BoxInput(QWidget* parent = nullptr);

  tactix::qt::Decision& Box() { return *box_; }

  void Ask(const tactix::DecisionBlock& block) override;
  void Rest() override;
  void NameStrategy(const QString& name) override;

 private:
  tactix::qt::Decision* box_;
};

}  // namespace trainer::screens
