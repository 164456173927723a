#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "tactix/decision/Blinker.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/Timer.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/strategy/StrategyList.h"

namespace tactix {

/// The button with which a player asks for playing advice. A right click opens its options: whether it blinks when the
/// focus comes to it, and the list from which the strategy behind the advice is chosen. The list fills itself from the
/// catalogue when it is first opened. Where the catalogue fails, the list still opens, with the rows that it got. The
/// error then goes to the site's Unhandled, and the next opening fills the list again.
class TACTIX_EXPORT AdviceButton : public Control {
 public:
  explicit AdviceButton(Site& site);
  ~AdviceButton() override;

  /// Hands the host's strategies to the list inside and returns the same object. Null fails with 91.
  ObjectRef AdviceStrategyList(const ObjectRef& thisStrategyList);
  /// Flashes the button when the blink mode is AdviceButtonBlinkAlways; no other mode blinks.
  void BlinkIfNecessary();
  /// Waits that many seconds while the user interface goes on running. A negative or non-finite time fails with 380.
  void BlinkTime(float timeAmount);
  /// Four rounds of hidden 0.2 s and shown 0.2 s, then sets "DEFAULT". The object needs "Visible" and "DEFAULT".
  void FlashObject(const ObjectRef& buttonToFlash);

  /// The caption of the button, "&Ask Kelvo for Advice" by default.
  const std::string& Caption() const;
  void Caption(std::string_view caption);
  /// The default-button flag of the button, false by default.
  bool DEFAULT() const;
  void DEFAULT(bool isDefault);
  /// The same flag: hosts "enable" the button to make it the default one. It never disables the button.
  bool Enabled() const { return DEFAULT(); }
  void Enabled(bool enabled) { DEFAULT(enabled); }
  /// Stored for the host, 0 by default.
  std::int16_t WhichStrategyToUse() const { return whichStrategyToUse_; }
  void WhichStrategyToUse(std::int16_t strategy) {
    whichStrategyToUse_ = strategy;
    Touched();
  }

  // The list inside. Players open it with "Select Strategy"; it fills itself from the catalogue when it is first
  // opened.

  /// Fills the list anew, for a catalogue that has changed. Fails as StrategyList::LoadStrategiesFromIniFile does.
  void RefillStrategyList();
  /// Selects a strategy in the list, which is filled first where it has no rows yet. Raises nothing: it is the host's
  /// choice, not the player's. A strategy without a row fails with 380.
  void PreselectStrategy(std::int16_t strategy);
  /// The list itself, to add rows of the host's own or to look at it.
  StrategyList& InnerList() { return Children.StrategyListBox; }
  const StrategyList& InnerList() const { return Children.StrategyListBox; }

  void Resized() override;
  void GotFocus() override;
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    Event<> Click{1, "Click"};
    /// Declared for hosts; not raised by the button.
    Event<bool> AdviceRecommendation{2, "AdviceRecommendation"};
    /// A strategy was picked from the list; carries its number.
    Event<const Variant&> AdviceStrategySelected{3, "AdviceStrategySelected"};
    /// "Select Strategy" was chosen and the list is open.
    Event<bool> StrategyListBoxVisibilityChanged{4, "StrategyListBoxVisibilityChanged"};

    auto All() {
      return std::tie(Click, AdviceRecommendation, AdviceStrategySelected, StrategyListBoxVisibilityChanged);
    }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    explicit ChildWidgets(Site& site, Site& innerSite) : StrategyListBox(innerSite), BlinkTimer(site) {}

    PushButton cmdAdviceButton;
    StrategyList StrategyListBox;
    Timer BlinkTimer;
    Menu mnuAdviceOptions{"Advice &Options"};
    MenuEntry mnuBlinkAdviceButton{"&Blink Advice Button"};
    /// Indexed by BlinkPossibilities; 1 and 3 are separators.
    std::array<MenuEntry, 5> mnuButtonBlink;
    MenuEntry mnuSeparator{"-"};
    MenuEntry mnuSelectStrategy{"&Select Strategy"};
  } Children;

 private:
  void BuildMenu();
  void Arrange();
  void ChooseBlinkMode(std::int16_t mode);
  void SelectStrategy();
  void OpenTheList();
  bool NeedsAFill() const;
  void FillTheList();
  void StrategySelected(std::int32_t strategy);

  Blinker blinker_;
  bool fillBrokeOff_ = false;
  bool isPreselecting_ = false;
  std::int16_t blinkMode_ = 0;
  std::int16_t whichStrategyToUse_ = 0;
};

}  // namespace tactix
