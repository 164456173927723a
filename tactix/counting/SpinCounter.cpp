#include "tactix/counting/SpinCounter.h"

#include <cmath>
#include <utility>

#include "tactix/platform/NumberText.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/SavedProperties.h"
#include "tactix/platform/Tolerance.h"

namespace tactix {

namespace {

using Handedness = SpinCounterPossibilities;

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

/// Whole-number division, of the nearest whole number.
float HalfOf(float length) { return std::trunc(std::nearbyint(length) / 2); }

}  // namespace

SpinCounter::SpinCounter(Site& site) : Control(site) {
  Extender().Scale(ScaleUnit::Pixels);
  Extender().DesignSize(FixedWidth, StandardHeight);
  Label& label = Children.labelCardsInStack;
  SpinButton& spin = Children.SpinButton;
  // The number is in front: mounted at the bottom, the two overlap.
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
  // One that the factory has had the counter make meanwhile ends last.
  const std::shared_ptr<CounterValueObject> before = std::exchange(value_, made);
  return made;
}

// The value is kept while it is asked: it is the host's, and may end the control.

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
  // Up is up: neither wrapping nor negative numbers make a difference here.
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
  NotifyChanged("CounterValue");
  if (!self) return;
  std::int16_t newCounterValue = CounterValue();
  if (self) Events.CounterValueHasChanged.Raise(newCounterValue);
}

// The other properties.

void SpinCounter::MaximumLimit(std::int16_t limit) {
  if (limit < LowestLimit || limit > HighestLimit) return;
  maximumLimit_ = limit;
  NotifyChanged("MaximumLimit");
}

void SpinCounter::AllowNegNumbers(bool allow) {
  allowNegNumbers_ = allow;
  NotifyChanged("AllowNegNumbers");
}

void SpinCounter::ControlHandedness(Coded<Handedness> handedness) {
  if (handedness < Handedness::LeftHandSpinCounter || handedness > Handedness::BottomMountSpinCounter) {
    ItsSite().Beep();
    return;
  }
  const Weak<SpinCounter> self(this);
  controlHandedness_ = handedness;
  NotifyChanged("ControlHandedness");
  if (self) LayOut();
}

void SpinCounter::Font(const tactix::Font& font) {
  Children.labelCardsInStack.Font(font);
  NotifyChanged("Font");
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
  // Also where that was the height before.
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
      // Far below the number: a host that mounts it at the top makes the control as high as that.
      label.Place(0, 0, label.Width(), HalfOf(Extender().ScaleHeight()));
      spin.Place(0, SpinTopOfTopMount, label.Width(), spin.Height());
      break;
    case Handedness::BottomMountSpinCounter:
      // The height is taken as it stands, in pixels.
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
  // A height beyond a 16-bit number leaves the standard one.
  IgnoringErrors([this] { defaultHeight_ = Variant(HeightInTwips()).ToInteger(); });
}

void SpinCounter::ReadProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag);
  saved.Read("CounterValue", std::int16_t{0}, [this](const Variant& read) {
    const std::int16_t number = read.ToInteger();
    Do([number](CounterValueObject& value) { value.Value(number); });
  });
  saved.Read("AllowNegNumbers", false, [this](const Variant& allow) { AllowNegNumbers(allow.ToBoolean()); });
  saved.Read("MaximumLimit", HighestLimit, [this](const Variant& limit) { maximumLimit_ = limit.ToInteger(); });
  saved.Read("Height", float{StandardHeight}, [this](const Variant& height) { HeightInTwips(height.ToSingle()); });
  saved.Read("ControlHandedness", StandardHandedness, [this](const Variant& handedness) {
    controlHandedness_ = handedness.ToLong();
    LayOut();
  });
  saved.Read(
      "Font", [this] { return ItsSite().AmbientFont(); },
      [this](const Variant& font) { Children.labelCardsInStack.Font(font.ToFont()); });
}

void SpinCounter::WriteProperties(PropertyBag& bag) {
  SavedProperties saved(*this, bag);
  saved.Write(
      "CounterValue", [this] { return CounterValue(); }, std::int16_t{0});
  saved.Write(
      "AllowNegNumbers", [this] { return allowNegNumbers_; }, false);
  saved.Write(
      "MaximumLimit", [this] { return maximumLimit_; }, HighestLimit);
  saved.Write(
      "Height", [this] { return HeightInTwips(); }, float{StandardHeight});
  saved.Write(
      "ControlHandedness", [this] { return controlHandedness_.Value(); }, StandardHandedness);
  saved.Write(
      "Font", [this] { return Font(); }, [this] { return ItsSite().AmbientFont(); });
}

void SpinCounter::Terminated() {
  // Ends last: the host's value may look at the control, and destroy it.
  const std::shared_ptr<CounterValueObject> released = std::exchange(value_, nullptr);
  Control::Terminated();
}

const PropertyTable& SpinCounter::Properties() const {
  using Self = SpinCounter;
  static const PropertyTable table =
      PropertyTable()
          .Property<Self>("CounterValue", &Self::CounterValue, &Self::CounterValue)
          .Property<Self>("MaximumLimit", &Self::MaximumLimit, &Self::MaximumLimit)
          .Property<Self>("NumberWrap", &Self::NumberWrap, &Self::NumberWrap)
          .Property<Self>("AllowNegNumbers", &Self::AllowNegNumbers, &Self::AllowNegNumbers)
          .Property<Self>("ControlHandedness", &Self::ControlHandedness, &Self::ControlHandedness)
          .Property<Self>("Font", &Self::Font, &Self::Font)
          .Property<Self>("UseDefaultSize", &Self::UseDefaultSize, &Self::UseDefaultSize);
  return table;
}

}  // namespace tactix
