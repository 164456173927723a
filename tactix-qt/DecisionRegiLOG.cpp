#include "tactix-qt/DecisionRegiLOG.h"

#include <memory>
#include <utility>

#include "tactix-qt/Integers.h"

namespace tactix::qt {

DecisionRegiLOG::DecisionRegiLOG(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::DecisionRegiLOG>(ItsSite());
  log_ = control.get();
  Own(std::move(control));
}

DecisionRegiLOG::~DecisionRegiLOG() { EndControl(); }

int DecisionRegiLOG::NumberOfDecisions() const { return log_->NumberOfDecisions(); }
void DecisionRegiLOG::NumberOfDecisions(int count) { log_->NumberOfDecisions(ToInt16(count)); }
int DecisionRegiLOG::NumberOfCorrectDecisions() const { return log_->NumberOfCorrectDecisions(); }
void DecisionRegiLOG::NumberOfCorrectDecisions(int count) { log_->NumberOfCorrectDecisions(ToInt16(count)); }
int DecisionRegiLOG::NumberOfBreakDecisions() const { return log_->NumberOfBreakDecisions(); }
void DecisionRegiLOG::NumberOfBreakDecisions(int count) { log_->NumberOfBreakDecisions(ToInt16(count)); }
DecisionRegiLOG::DecisionRegisterType DecisionRegiLOG::TypeOfDecisionRegister() const {
  return static_cast<DecisionRegisterType>(log_->TypeOfDecisionRegister().Value());
}
void DecisionRegiLOG::TypeOfDecisionRegister(DecisionRegisterType type) {
  log_->TypeOfDecisionRegister(static_cast<std::int32_t>(type));
}
void DecisionRegiLOG::AfterAdvice(AfterAdvicePossibilities verdict) {
  log_->AfterAdvice(static_cast<std::int32_t>(verdict));
}
void DecisionRegiLOG::DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions) {
  log_->DisplayTheDrillResults(ToInt16(theNumberOfDecisions), ToInt16(theNumberOfCorrectDecisions));
}
void DecisionRegiLOG::ResetDecisionData() { log_->ResetDecisionData(); }
void DecisionRegiLOG::SetupStatisticsBox(bool breakDecisions) { log_->SetupStatisticsBox(breakDecisions); }

}  // namespace tactix::qt
