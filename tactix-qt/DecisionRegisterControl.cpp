#include "tactix-qt/DecisionRegisterControl.h"

#include "tactix-qt/Forwarding.h"
#include "tactix/scoring/DecisionRegiLOG.h"
#include "tactix/scoring/DecisionRegister.h"

namespace tactix::qt {

namespace {

/// An action on either register: they have the same members, but no class of their own in common.
template <class Action>
auto OnEither(Action action) {
  return [action](Control& control) {
    auto* const log = dynamic_cast<tactix::DecisionRegiLOG*>(&control);
    return log ? action(*log) : action(static_cast<tactix::DecisionRegister&>(control));
  };
}

/// A number as they take it.
std::int16_t ToCount(int count) { return ToControl<std::int16_t>(count); }

}  // namespace

DecisionRegisterControl::DecisionRegisterControl(Maker make, QWidget* parent) : WidgetOf(make, parent) {}

DecisionRegisterControl::~DecisionRegisterControl() { EndControl(); }

int DecisionRegisterControl::NumberOfDecisions() const {
  return Read<int>(OnEither([](const auto& scores) { return scores.NumberOfDecisions(); }));
}
int DecisionRegisterControl::NumberOfCorrectDecisions() const {
  return Read<int>(OnEither([](const auto& scores) { return scores.NumberOfCorrectDecisions(); }));
}
int DecisionRegisterControl::NumberOfBreakDecisions() const {
  return Read<int>(OnEither([](const auto& scores) { return scores.NumberOfBreakDecisions(); }));
}
DecisionRegisterControl::DecisionRegisterType DecisionRegisterControl::TypeOfDecisionRegister() const {
  return Read<DecisionRegisterType>(OnEither([](const auto& scores) { return scores.TypeOfDecisionRegister(); }));
}

void DecisionRegisterControl::setNumberOfDecisions(int count) {
  Run(OnEither([&](auto& scores) { scores.NumberOfDecisions(ToCount(count)); }));
}
void DecisionRegisterControl::setNumberOfCorrectDecisions(int count) {
  Run(OnEither([&](auto& scores) { scores.NumberOfCorrectDecisions(ToCount(count)); }));
}
void DecisionRegisterControl::setNumberOfBreakDecisions(int count) {
  Run(OnEither([&](auto& scores) { scores.NumberOfBreakDecisions(ToCount(count)); }));
}
void DecisionRegisterControl::setTypeOfDecisionRegister(DecisionRegisterType type) {
  Run(OnEither([&](auto& scores) { scores.TypeOfDecisionRegister(std::int32_t{type}); }));
}

void DecisionRegisterControl::AfterAdvice(AfterAdvicePossibilities verdict) {
  Run(OnEither([&](auto& scores) { scores.AfterAdvice(std::int32_t{verdict}); }));
}
void DecisionRegisterControl::DisplayTheDrillResults(int theNumberOfDecisions, int theNumberOfCorrectDecisions) {
  Run(OnEither([&](auto& scores) {
    scores.DisplayTheDrillResults(ToCount(theNumberOfDecisions), ToCount(theNumberOfCorrectDecisions));
  }));
}
void DecisionRegisterControl::ResetDecisionData() {
  Run(OnEither([](auto& scores) { scores.ResetDecisionData(); }));
}
void DecisionRegisterControl::SetupStatisticsBox(bool breakDecisions) {
  Run(OnEither([&](auto& scores) { scores.SetupStatisticsBox(breakDecisions); }));
}

}  // namespace tactix::qt
