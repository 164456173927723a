#include "tactix/counting/SpinCounter.h"

#include <cmath>
#include <utility>

#include "tactix/platform/NumberText.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/Tolerance.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

using Handedness = SpinCounterPossibilities;

constexpr std::string_view CounterValueName = "CounterValue";
constexpr std::string_view MaximumLimitName = "MaximumLimit";
constexpr std::string_view AllowNegNumbersName = "AllowNegNumbers";
constexpr std::string_view ControlHandednessName = "ControlHandedness";
constexpr std::string_view FontName = "Font";

constexpr std::int16_t LowestLimit = 1;
constexpr std::int16_t HighestLimit = 999;

constexpr auto StandardHandedness = static_cast<std::int32_t>(Handedness::RighHandSpinCounter);

// Twips.
constexpr std::int16_t StandardHeight = 360;
constexpr std::int16_t FixedWidth = 1500;

// Pixels.
constexpr float LabelWidth = 67;
constexpr float LabelLeftOfLeftHand = 35;
constexpr float SpinWidth = 33;
constexpr float SpinTopOfTopMount = 360;

constexpr float SizeOfFont = 12;

/// Half of the nearest whole number, as a whole-number division gives it.
float HalfOf(float length) { return std::trunc(std::nearbyint(length) / 2); }

}  // namespace

SpinCounter::SpinCounter(Site& site) : Control(site) {
  Extender().Scale(ScaleUnit::Pixels);
  Extender().DesignSize(FixedWidth, StandardHeight);
  Label& label = Children.labelCardsInStack;
  SpinButton& spin = Children.SpinButton;
  // The number is added last and so lies in front: with BottomMountSpinCounter the two may overlap.
  Extender().Add(spin, "SpinButton");
  Extender().Add(label, "labelCardsInStack");
  label.Caption("(###)");
  label.Font({"Comic Sans MS", SizeOfFont});
  label.Alignment(TextAlignment::Center);
  label.Place(0, 0, LabelWidth, Extender().ScaleHeight());
  spin.Place(LabelWidth, 0, SpinWidth, Extender().ScaleHeight());
  spin.SpunUp.Connect([this] { StepUp(); });
  spin.SpunDown.Connect([this] { StepDown(); });
}

SpinCounter::~SpinCounter() { MarkAsGone(); }

// The number.

std::shared_ptr<CounterValueObject> SpinCounter::ValueObject() {
  if (value_) return value_;
  const Weak<SpinCounter> self(this);
  std::shared_ptr<CounterValueObject> made = CounterValueObject::Create();
  if (!self) return nullptr;
  // The factory may have made the counter create a value of its own; that one is released last.
  const std::shared_ptr<CounterValueObject> before = std::exchange(value_, made);
  return made;
}

// A value is kept alive while one of its functions runs, because the host's code there may destroy the control.

std::int16_t SpinCounter::CounterValue() {
  const std::shared_ptr<const CounterValueObject> value = ValueObject();
  return value ? value->Value() : std::int16_t{0};
}

template <class Step>
bool SpinCounter::Do(const Step& step) {
  const Weak<SpinCounter> self(this);
  if (const std::shared_ptr<CounterValueObject> value = ValueObject()) step(*value);
  return static_cast<bool>(self);
}

template <class Step>
void SpinCounter::Change(const Step& step) {
  if (Do(step)) Refresh();
}

void SpinCounter::CounterValue(std::int16_t value) {
  if (value < 0 ? !allowNegNumbers_ : value > maximumLimit_) return;
  Change([value](CounterValueObject& object) { object.Value(value); });
}

void SpinCounter::StepUp() {
  // NumberWrap and AllowNegNumbers make a difference for stepping down only.
  Change([this](CounterValueObject& object) { object.StepUpToLimit(maximumLimit_); });
}

void SpinCounter::StepDown() {
  Change([this](CounterValueObject& object) {
    if (numberWrap_) {
      object.StepDownWrapping(maximumLimit_);
    } else if (allowNegNumbers_) {
      object.StepDownSigned();
    } else {
      object.StepDownToZero();
    }
  });
}

void SpinCounter::Refresh() {
  const Weak<SpinCounter> self(this);
  const std::int16_t shown = CounterValue();
  if (!self) return;
  Children.labelCardsInStack.Caption("(" + FormatNumber(std::int32_t{shown}, "000") + ")");
  NotifyChanged(CounterValueName);
  if (!self) return;
  std::int16_t newCounterValue = CounterValue();
  if (self) Events.CounterValueHasChanged.Raise(newCounterValue);
}

// The other properties.

void SpinCounter::MaximumLimit(std::int16_t limit) {
  if (limit < LowestLimit || limit > HighestLimit) return;
  maximumLimit_ = limit;
  NotifyChanged(MaximumLimitName);
}

void SpinCounter::AllowNegNumbers(bool allow) {
  allowNegNumbers_ = allow;
  NotifyChanged(AllowNegNumbersName);
}

void SpinCounter::ControlHandedness(Coded<Handedness> handedness) {
  if (handedness < Handedness::LeftHandSpinCounter || handedness > Handedness::BottomMountSpinCounter) {
    ItsSite().Beep();
    return;
  }
  const Weak<SpinCounter> self(this);
  controlHandedness_ = handedness;
  NotifyChanged(ControlHandednessName);
  if (self) LayOut();
}

void SpinCounter::Font(const tactix::Font& font) {
  Children.labelCardsInStack.Font(font);
  NotifyChanged(FontName);
}

void SpinCounter::UseDefaultSize(bool use) {
  if (use) ResetSizeToDefault();
}

// Places.

float SpinCounter::HeightInTwips() const { return Extender().Height() * Extender().TwipsPerUnit(); }

void SpinCounter::HeightInTwips(float height) { Extender().Height(height / Extender().TwipsPerUnit()); }

void SpinCounter::ResetSizeToDefault() {
  const Weak<SpinCounter> self(this);
  defaultHeight_ = StandardHeight;
  HeightInTwips(StandardHeight);
  // Also needed where the height was the same before, as nothing has resized then.
  if (self) Resized();
}

void SpinCounter::LayOut() {
  Label& label = Children.labelCardsInStack;
  SpinButton& spin = Children.SpinButton;
  switch (controlHandedness_.Row()) {
    case Handedness::LeftHandSpinCounter:
      label.Place(LabelLeftOfLeftHand, 0, label.Width(), label.Height());
      spin.Place(0, 0, SpinWidth, spin.Height());
      break;
    case Handedness::RighHandSpinCounter:
      label.Place(0, 0, label.Width(), label.Height());
      spin.Place(LabelWidth, 0, SpinWidth, spin.Height());
      break;
    case Handedness::TopMountSpinCounter:
      // 360 pixels down, far below the number: meant. A host that uses this layout makes the control that high.
      label.Place(0, 0, label.Width(), HalfOf(Extender().ScaleHeight()));
      spin.Place(0, SpinTopOfTopMount, label.Width(), spin.Height());
      break;
    case Handedness::BottomMountSpinCounter:
      // The height is in twips, but its number is used as pixels: meant.
      label.Place(0, defaultHeight_, label.Width(), label.Height());
      spin.Place(0, 0, label.Width(), spin.Height());
      break;
    default:
      break;
  }
}

void SpinCounter::Resized() {
  const Weak<SpinCounter> self(this);
  Extender().Width(FixedWidth / Extender().TwipsPerUnit());
  if (!self) return;
  Children.labelCardsInStack.Height(Extender().ScaleHeight());
  Children.SpinButton.Height(Extender().ScaleHeight());
}

// What the container tells it.

void SpinCounter::TakeAmbientColors() {
  Extender().ForeColor(ItsSite().AmbientForeColor());
  Extender().BackColor(ItsSite().AmbientBackColor());
}

void SpinCounter::AmbientChanged() {
  TakeAmbientColors();
  Control::AmbientChanged();
}

void SpinCounter::InitProperties() {
  const Weak<SpinCounter> self(this);
  MaximumLimit(HighestLimit);
  if (!self) return;
  controlHandedness_ = Handedness::RighHandSpinCounter;
  defaultHeight_ = StandardHeight;
  TakeAmbientColors();
  // A height that does not fit into 16 bits leaves the standard one.
  IgnoringErrors([this] { defaultHeight_ = Variant(HeightInTwips()).ToInteger(); });
}

void SpinCounter::Terminated() {
  // Released last: the destructor of the host's value may use the control, and destroy it.
  const std::shared_ptr<CounterValueObject> released = std::exchange(value_, nullptr);
  Control::Terminated();
}

const PropertyTable& SpinCounter::Properties() const {
  using Self = SpinCounter;
  // The number comes back as it was saved: no limit is checked, and nothing is shown or reported before it changes.
  const auto restoreNumber = [](Self& self, std::int16_t number) {
    self.Do([number](CounterValueObject& value) { value.Value(number); });
  };
  const auto restoreHandedness = [](Self& self, Coded<Handedness> handedness) {
    self.controlHandedness_ = handedness;
    self.LayOut();
  };
  const auto restoreFont = [](Self& self, const tactix::Font& font) { self.Children.labelCardsInStack.Font(font); };
  static const PropertyTable table =
      PropertyTable()
          .Property(CounterValueName, &Self::CounterValue, &Self::CounterValue)
          .Saved(std::int16_t{0}, {.restore = PropertyTable::SetBy(restoreNumber)})
          .Property(AllowNegNumbersName, &Self::AllowNegNumbers, &Self::AllowNegNumbers)
          .Saved(false)
          .Property(MaximumLimitName, &Self::MaximumLimit, &Self::MaximumLimit)
          .Saved(HighestLimit, {.restore = PropertyTable::Into(&Self::maximumLimit_)})
          .SavedBeside({.name = "Height",
                        .defaultValue = PropertyTable::Always(float{StandardHeight}),
                        .value = PropertyTable::GetBy([](Self& self) { return self.HeightInTwips(); }),
                        .restore = PropertyTable::SetBy([](Self& self, float height) { self.HeightInTwips(height); })})
          .Property(ControlHandednessName, &Self::ControlHandedness, &Self::ControlHandedness)
          .Saved(StandardHandedness, {.restore = PropertyTable::SetBy(restoreHandedness)})
          .Property(FontName, &Self::Font, &Self::Font)
          .SavedWithDefault(AmbientFontOf, {.restore = PropertyTable::SetBy(restoreFont)})
          .Property("NumberWrap", &Self::NumberWrap, &Self::NumberWrap)
          .Property("UseDefaultSize", &Self::UseDefaultSize, &Self::UseDefaultSize);
  return table;
}

const MethodTable& SpinCounter::Methods() const {
  static const MethodTable table = MethodTable().Method("ResetSizeToDefault", &SpinCounter::ResetSizeToDefault);
  return table;
}

}  // namespace tactix
