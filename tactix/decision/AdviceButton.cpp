#include "tactix/decision/AdviceButton.h"

#include <algorithm>
#include <exception>

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

namespace {

constexpr float DesignWidth = 2415;
constexpr float DesignHeight = 870;
constexpr float SizeOfFont = 9.75F;
constexpr std::array<std::string_view, 5> BlinkCaptions = {"&Never", "-", "&Every Time", "-", "1st &Time this Hand"};

}  // namespace

AdviceButton::AdviceButton(Site& site)
    : Control(site), innerSite_(site), Children(site, innerSite_), blinker_(*this, Children.BlinkTimer) {
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(Children.StrategyListBox.Extender(), "StrategyListBox");
  Extender().Add(Children.cmdAdviceButton, "cmdAdviceButton");
  Children.cmdAdviceButton.Caption("&Ask Kelvo for Advice");
  Children.cmdAdviceButton.Font({"Comic Sans MS", SizeOfFont});
  Children.StrategyListBox.InitProperties();
  Children.StrategyListBox.Extender().Visible(false);
  BuildMenu();
  Arrange();

  Children.cmdAdviceButton.Clicked.Connect([this] { Events.Click.Raise(); });
  Children.cmdAdviceButton.MousePressed.Connect([this](const MouseState& mouse) {
    if ((mouse.button & RightButton) == 0) return;
    const PushButton& button = Children.cmdAdviceButton;
    ItsSite().PopUp(Children.mnuAdviceOptions, Extender(), button.Left() + mouse.x, button.Top() + mouse.y);
  });
  Children.StrategyListBox.Events.StrategySelectionChanged.Connect(
      [this](const std::int32_t& strategy) { StrategySelected(strategy); });
}

AdviceButton::~AdviceButton() { MarkAsGone(); }

void AdviceButton::BuildMenu() {
  Children.mnuAdviceOptions.Add(Children.mnuBlinkAdviceButton);
  Children.mnuAdviceOptions.Add(Children.mnuSeparator);
  Children.mnuAdviceOptions.Add(Children.mnuSelectStrategy);
  for (std::size_t i = 0; i < Children.mnuButtonBlink.size(); ++i) {
    MenuEntry& entry = Children.mnuButtonBlink[i];
    const auto mode = static_cast<std::int16_t>(i);
    entry.Caption(BlinkCaptions[i]);
    entry.Index(mode);
    entry.Checked(mode == blinkMode_);
    entry.Chosen.Connect([this, mode] { ChooseBlinkMode(mode); });
    Children.mnuBlinkAdviceButton.Add(entry);
  }
  Children.mnuSelectStrategy.Chosen.Connect([this] { SelectStrategy(); });
}

void AdviceButton::Arrange() {
  // The open list stands at the bottom and is as high as its box, which keeps its height. The button has the rest, or
  // all the room while the list is closed.
  tactix::Extender& list = Children.StrategyListBox.Extender();
  const float width = Extender().ScaleWidth();
  const float height = Extender().ScaleHeight();
  const float listHeight = std::min(Children.StrategyListBox.Children.StrategyListBox.Height(), height / 2);
  Children.cmdAdviceButton.Place(0, 0, width, list.Visible() ? height - listHeight : height);
  list.Place(0, height - listHeight, width, listHeight);
}

ObjectRef AdviceButton::AdviceStrategyList(const ObjectRef& thisStrategyList) {
  ObjectRef same = thisStrategyList;
  Children.StrategyListBox.UseThisStrategyList(same);
  return same;
}

void AdviceButton::BlinkIfNecessary() {
  if (blinkMode_ == static_cast<std::int16_t>(BlinkPossibilities::AdviceButtonBlinkAlways)) {
    blinker_.Flash(Children.cmdAdviceButton.Handle());
  }
}

void AdviceButton::BlinkTime(float timeAmount) { blinker_.Wait(timeAmount); }

void AdviceButton::FlashObject(const ObjectRef& buttonToFlash) { blinker_.Flash(buttonToFlash); }

const std::string& AdviceButton::Caption() const { return Children.cmdAdviceButton.Caption(); }

void AdviceButton::Caption(std::string_view caption) { Children.cmdAdviceButton.Caption(caption); }

bool AdviceButton::DEFAULT() const { return Children.cmdAdviceButton.DEFAULT(); }

void AdviceButton::DEFAULT(bool isDefault) { Children.cmdAdviceButton.DEFAULT(isDefault); }

void AdviceButton::ChooseBlinkMode(std::int16_t mode) {
  Children.mnuButtonBlink[static_cast<std::size_t>(blinkMode_)].Checked(false);
  blinkMode_ = mode;
  Children.mnuButtonBlink[static_cast<std::size_t>(blinkMode_)].Checked(true);
}

void AdviceButton::SelectStrategy() {
  const Weak<AdviceButton> self(this);
  std::exception_ptr failure;
  try {
    if (NeedsAFill()) FillTheList();
  } catch (...) {
    // The list opens nevertheless; the error is reported after that.
    failure = std::current_exception();
  }
  if (self) OpenTheList();
  if (failure) std::rethrow_exception(failure);
}

void AdviceButton::OpenTheList() {
  Children.StrategyListBox.Extender().Visible(true);
  Arrange();
  Events.StrategyListBoxVisibilityChanged.Raise(true);
}

bool AdviceButton::NeedsAFill() const {
  return fillBrokeOff_ || Children.StrategyListBox.Children.StrategyListBox.ListCount() == 0;
}

void AdviceButton::FillTheList() {
  const Weak<AdviceButton> self(this);
  fillBrokeOff_ = true;
  try {
    Children.StrategyListBox.LoadStrategiesFromIniFile();
    if (self) fillBrokeOff_ = false;
  } catch (const Error& error) {
    if (error.Code() != Error::ObjectNotSet) throw;
    // Without a catalogue the list opens empty, for a host that adds rows of its own.
    if (self) fillBrokeOff_ = Children.StrategyListBox.Children.StrategyListBox.ListCount() > 0;
  }
}

void AdviceButton::RefillStrategyList() {
  const Weak<AdviceButton> self(this);
  fillBrokeOff_ = true;
  Children.StrategyListBox.LoadStrategiesFromIniFile();
  if (self) fillBrokeOff_ = false;
}

void AdviceButton::PreselectStrategy(std::int16_t strategy) {
  struct Quiet {
    explicit Quiet(AdviceButton& button) : button_(button) { button.isPreselecting_ = true; }
    ~Quiet() {
      if (button_) button_->isPreselecting_ = false;
    }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;

    const Weak<AdviceButton> button_;
  };
  const Weak<AdviceButton> self(this);
  if (NeedsAFill()) FillTheList();
  if (!self) return;
  const Quiet quiet(*this);
  Children.StrategyListBox.ListIndex(strategy);
}

void AdviceButton::StrategySelected(std::int32_t strategy) {
  if (isPreselecting_) return;
  const Weak<AdviceButton> self(this);
  Children.StrategyListBox.Extender().Visible(false);
  if (!self) return;
  Arrange();
  Events.AdviceStrategySelected.Raise(Variant(strategy));
}

void AdviceButton::Resized() { Arrange(); }

void AdviceButton::GotFocus() { BlinkIfNecessary(); }

const PropertyTable& AdviceButton::Properties() const {
  using Self = AdviceButton;
  static const PropertyTable table =
      PropertyTable()
          .Property("Caption", &Self::Caption, &Self::Caption)
          .Property("DEFAULT", &Self::DEFAULT, &Self::DEFAULT)
          .Property("Enabled", &Self::Enabled, &Self::Enabled)
          .Property("WhichStrategyToUse", &Self::WhichStrategyToUse, &Self::WhichStrategyToUse);
  return table;
}

const MethodTable& AdviceButton::Methods() const {
  using Self = AdviceButton;
  static const MethodTable table = MethodTable()
                                       .Method("AdviceStrategyList", &Self::AdviceStrategyList)
                                       .Method("RefillStrategyList", &Self::RefillStrategyList)
                                       .Method("PreselectStrategy", &Self::PreselectStrategy)
                                       .Method("BlinkIfNecessary", &Self::BlinkIfNecessary)
                                       .Method("BlinkTime", &Self::BlinkTime)
                                       .Method("FlashObject", &Self::FlashObject);
  return table;
}

}  // namespace tactix
