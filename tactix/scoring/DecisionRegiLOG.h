#pragma once

#include <cstdint>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/scoring/DecisionRegister.h"

namespace tactix {

/// A decision register with a line of feedback under it, which tells the player in words what should have been played.
/// Every count and the type live in the register inside. Raises no events and saves nothing.
class TACTIX_EXPORT DecisionRegiLOG : public Control {
 public:
  explicit DecisionRegiLOG(Site& site);
  ~DecisionRegiLOG() override;

  /// As in DecisionRegister.
  std::int16_t NumberOfDecisions() const { return Children.DecisionRegister.NumberOfDecisions(); }
  void NumberOfDecisions(std::int16_t count) { Children.DecisionRegister.NumberOfDecisions(count); }
  std::int16_t NumberOfCorrectDecisions() const { return Children.DecisionRegister.NumberOfCorrectDecisions(); }
  void NumberOfCorrectDecisions(std::int16_t count) { Children.DecisionRegister.NumberOfCorrectDecisions(count); }
  std::int16_t NumberOfBreakDecisions() const { return Children.DecisionRegister.NumberOfBreakDecisions(); }
  void NumberOfBreakDecisions(std::int16_t count) { Children.DecisionRegister.NumberOfBreakDecisions(count); }
  Coded<DecisionRegisterType> TypeOfDecisionRegister() const {
    return Children.DecisionRegister.TypeOfDecisionRegister();
  }
  void TypeOfDecisionRegister(Coded<DecisionRegisterType> type) {
    Children.DecisionRegister.TypeOfDecisionRegister(type);
  }

  /// Passes the verdict on to the register and says it in words; "???" where it stands neither for a play nor for
  /// "correct".
  void AfterAdvice(Coded<AfterAdvicePossibilities> verdict);

  void DisplayTheDrillResults(std::int16_t theNumberOfDecisions, std::int16_t theNumberOfCorrectDecisions);
  void ResetDecisionData();
  void SetupStatisticsBox(bool breakDecisions);

  void ReadProperties(PropertyBag& bag) override;
  void Displayed() override;
  void Resized() override;
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    std::tuple<> All() { return {}; }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    explicit ChildWidgets(Site& innerSite) : DecisionRegister(innerSite) {}

    tactix::DecisionRegister DecisionRegister;
    Label labelTheShouldRecommendation;
  } Children;

 private:
  void Arrange();
};

}  // namespace tactix
