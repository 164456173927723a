#pragma once

#include <array>
#include <cstdint>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/Panel.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// A score panel: how many decisions the player has made, how many of them were correct, and in its after-advice form
/// the play that would have been correct. It judges nothing and checks nothing: the host hands it counts and verdicts.
/// Raises no events and saves nothing.
class TACTIX_EXPORT DecisionRegister : public Control {
 public:
  explicit DecisionRegister(Site& site);
  ~DecisionRegister() override;

  /// The counts, 0 by default. Setting one changes nothing on the panel; the break count is shown nowhere.
  std::int16_t NumberOfDecisions() const { return numberOfDecisions_; }
  void NumberOfDecisions(std::int16_t count) {
    numberOfDecisions_ = count;
    Touched();
  }
  std::int16_t NumberOfCorrectDecisions() const { return numberOfCorrectDecisions_; }
  void NumberOfCorrectDecisions(std::int16_t count) {
    numberOfCorrectDecisions_ = count;
    Touched();
  }
  std::int16_t NumberOfBreakDecisions() const { return numberOfBreakDecisions_; }
  void NumberOfBreakDecisions(std::int16_t count) {
    numberOfBreakDecisions_ = count;
    Touched();
  }

  /// StandardDecisionRegister by default, and again whenever saved properties are read. Decides the register's height,
  /// but only when it is next displayed: 1420 twips, or 1800 after advice; in a container that counts in pixels, the
  /// nearest whole number of pixels.
  Coded<DecisionRegisterType> TypeOfDecisionRegister() const { return typeOfDecisionRegister_; }
  void TypeOfDecisionRegister(Coded<DecisionRegisterType> type) {
    typeOfDecisionRegister_ = type;
    Touched();
  }

  /// Shows the verdict on the last play: a play's name, or a blank line for anything else, "correct" included.
  void AfterAdvice(Coded<AfterAdvicePossibilities> verdict);

  /// Sets both counts and shows them.
  void DisplayTheDrillResults(std::int16_t theNumberOfDecisions, std::int16_t theNumberOfCorrectDecisions);
  /// Shows both counts as 0; the break count stays.
  void ResetDecisionData();
  /// Arranges the panel with or without the line of breaks; without it at first.
  void SetupStatisticsBox(bool breakDecisions);

  void ReadProperties(PropertyBag& bag) override;
  void Displayed() override;
  void Resized() override;
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    std::tuple<> All() { return {}; }
  } Events;

  struct ChildWidgets {
    Panel panelDecisionRegister;
    Label lblCorrectDecisions;
    Label theNumberOfCorrectDecisions;
    Label lblDecisions;
    Label theNumberOfDecisions;
    Label lblBreakDecisions;
    /// Always shows its designed figure, whatever the counts are.
    Label lblBreakPercent;
    /// The verdict's caption, then the verdict.
    std::array<Label, 2> labelAfterAdvice;
  } Children;

 private:
  void BuildWidgets();
  void ShowTheCounts();
  void FitTheRegisterToItsType();
  void HeightInTwips(float height);

  std::int16_t numberOfDecisions_ = 0;
  std::int16_t numberOfCorrectDecisions_ = 0;
  std::int16_t numberOfBreakDecisions_ = 0;
  Coded<DecisionRegisterType> typeOfDecisionRegister_ = DecisionRegisterType::StandardDecisionRegister;
};

}  // namespace tactix
