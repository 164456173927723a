#include "tactix-qt/DecisionRegister.h"

#include <memory>
#include <utility>

#include "tactix-qt/Integers.h"

namespace tactix::qt {

DecisionRegister::DecisionRegister(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::DecisionRegister>(ItsSite());
  register_ = control.get();
  Own(std::move(control));
}

DecisionRegister::~DecisionRegister() { EndControl(); }

int DecisionRegister::NumberOfDecisions() const { return register_->NumberOfDecisions(); }
void DecisionRegister::NumberOfDecisions(int count) { register_->NumberOfDecisions(ToInt16(count)); }
int DecisionRegister::NumberOfCorrectDecisions() const { return register_->NumberOfCorrectDecisions(); }
void DecisionRegister::NumberOfCorrectDecisions(int count) { register_->NumberOfCorrectDecisions(ToInt16(count)); }
int DecisionRegister::NumberOfBreakDecisions() const { return register_->NumberOfBreakDecisions(); }
void DecisionRegister::NumberOfBreakDecisions(int count) { register_->NumberOfBreakDecisions(ToInt16(count)); }
DecisionRegister::DecisionRegisterType DecisionRegister::TypeOfDecisionRegister() const {
  return static_cast<DecisionRegisterType>(register_->TypeOfDecisionRegister().Value());
}
void DecisionRegister::TypeOfDecisionRegister(DecisionRegisterType type) {
  register_->TypeOfDecisionRegister(static_cast<std::int32_t>(type));
}
void DecisionRegister::AfterAdvice(AfterAdvicePossibilities verdict) {
  register_->AfterAdvice(static_cast<std::int32_t>(verdict));
}
void DecisionRegister::DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions) {
  register_->DisplayTheDrillResults(ToInt16(theNumberOfDecisions), ToInt16(theNumberOfCorrectDecisions));
}
void DecisionRegister::ResetDecisionData() { register_->ResetDecisionData(); }
void DecisionRegister::SetupStatisticsBox(bool breakDecisions) { register_->SetupStatisticsBox(breakDecisions); }

}  // namespace tactix::qt
