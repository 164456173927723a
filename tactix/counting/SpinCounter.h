#pragma once

#include <cstdint>
#include <memory>
#include <tuple>

#include "tactix/counting/CounterValueObject.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/SpinButton.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// A whole number that the player steps up and down, shown as three digits in brackets: a count, or the cards in a
/// stack. The number lives in a CounterValueObject, which is created on first use; where nothing creates one, whatever
/// needs it fails with 91. A restored number is shown only after its first change.
///
/// Setters ignore what is out of their range.
class TACTIX_EXPORT SpinCounter : public Control {
 public:
  explicit SpinCounter(Site& site);
  ~SpinCounter() override;

  /// The number, 0 by default: 0 to MaximumLimit, and anything below 0 where AllowNegNumbers is on. A change is shown,
  /// announced and reported.
  std::int16_t CounterValue();
  void CounterValue(std::int16_t value);
  /// Whether there is a number yet: reading it creates one.
  bool HasCounterValue() const { return value_ != nullptr; }
  /// 1 to 999; 999 by default. A saved one is restored even if it is outside that range.
  std::int16_t MaximumLimit() const { return maximumLimit_; }
  void MaximumLimit(std::int16_t limit);
  /// Whether stepping down from the lower end goes on at MaximumLimit; false by default. Neither saved nor announced.
  /// Stepping up never wraps.
  bool NumberWrap() const { return numberWrap_; }
  void NumberWrap(bool wrap) {
    numberWrap_ = wrap;
    Touched();
  }
  /// Whether numbers below 0 are allowed; false by default. Turning it off leaves the number as it is.
  bool AllowNegNumbers() const { return allowNegNumbers_; }
  void AllowNegNumbers(bool allow);
  /// Where the number and the spin button stand, RighHandSpinCounter by default. Setting any other number changes
  /// nothing and beeps.
  Coded<SpinCounterPossibilities> ControlHandedness() const { return controlHandedness_; }
  void ControlHandedness(Coded<SpinCounterPossibilities> handedness);
  /// The number's font, "Comic Sans MS" as designed; a saved one defaults to the ambient font.
  const tactix::Font& Font() const { return Children.labelCardsInStack.Font(); }
  void Font(const tactix::Font& font);
  /// A switch that acts and does not stay: setting it runs ResetSizeToDefault, and it always reads false.
  bool UseDefaultSize() const { return false; }
  void UseDefaultSize(bool use);

  /// Makes the control 360 twips high. Its width is always 1500.
  void ResetSizeToDefault();

  void InitProperties() override;
  void Resized() override;
  void AmbientChanged() override;
  void Terminated() override;
  /// Restoring raises no event and notifies AllowNegNumbers only.
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    /// After each accepted change and each step, also one that a limit has stopped; carries the number. What the
    /// handler writes to it is ignored.
    Event<std::int16_t&> CounterValueHasChanged{1, "CounterValueHasChanged"};

    auto All() { return std::tie(CounterValueHasChanged); }
  } Events;

  /// Their places are in pixels.
  struct ChildWidgets {
    tactix::SpinButton SpinButton;
    Label labelCardsInStack;
  } Children;

 private:
  /// Null where making it has destroyed the control.
  std::shared_ptr<CounterValueObject> ValueObject();
  /// Does something with the value. False when the control is gone.
  template <class Step>
  bool Do(const Step& step);
  template <class Step>
  void Change(const Step& step);
  void StepUp();
  void StepDown();
  void Refresh();
  void LayOut();
  void TakeAmbientColors();
  /// The control's height in twips.
  float HeightInTwips() const;
  void HeightInTwips(float height);

  std::shared_ptr<CounterValueObject> value_;
  Coded<SpinCounterPossibilities> controlHandedness_ = SpinCounterPossibilities::RighHandSpinCounter;
  std::int16_t maximumLimit_ = 999;
  std::int16_t defaultHeight_ = 360;
  bool numberWrap_ = false;
  bool allowNegNumbers_ = false;
};

}  // namespace tactix
