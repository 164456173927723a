#include "tactix/decision/DecisionBAR2.h"

#include "tactix/decision/private/DecisionToolButtons.h"

namespace tactix {

DecisionBAR2::DecisionBAR2(Site& site) : DecisionToolBarControl(site), Children(site) {
  Build(Children, "Decision BAR-2");
  BuildMenu();
}

DecisionBAR2::~DecisionBAR2() { MarkAsGone(); }

void DecisionBAR2::BuildMenu() {
  struct Item {
    MenuEntry& entry;
    Coded<ButtonStatusPossibilities>* state;  // null for a separator
  };
  const Item items[] = {
      {Children.menuHoleCardButtonsVisible, &VisibilityState(ButtonGroup::HoleCard)},
      {Children.menuSEP1, nullptr},
      {Children.menuHitCardButtonsVisible, &VisibilityState(ButtonGroup::HitCard)},
      {Children.menuSEP2, nullptr},
      {Children.menuTensRatioButtonsVisible, &VisibilityState(ButtonGroup::TensRatio)},
      {Children.menuSEP3, nullptr},
      {Children.menuStrongHandButtonsVisible, &VisibilityState(ButtonGroup::DealerStrength)},
      {Children.menuSEP4, nullptr},
      {Children.menuStatsButtonVisible, &VisibilityState(ButtonGroup::Status)},
  };
  for (const Item& item : items) {
    Children.menuDecisionBarSettings.Add(item.entry);
    if (!item.state) continue;
    // Only changes what will be saved, deliberately: the buttons follow when the host next sets the property, and no
    // notice is sent.
    item.entry.Chosen.Connect([&entry = item.entry, state = item.state] {
      entry.Checked(!entry.Checked());
      *state = entry.Checked() ? ButtonStatusPossibilities::ButtonsArevisible
                               : ButtonStatusPossibilities::ButtonsAreInvisible;
    });
  }
  const auto openAt = [this](const Widget& pressed) {
    return [this, &pressed](const MouseState& mouse) {
      if ((mouse.button & RightButton) == 0) return;
      const bool isOwn = &pressed == &Extender();
      ItsSite().PopUp(Children.menuDecisionBarSettings, Extender(), mouse.x + (isOwn ? 0 : pressed.Left()),
                      mouse.y + (isOwn ? 0 : pressed.Top()));
    };
  };
  Extender().MousePressed.Connect(openAt(Extender()));
  Children.DecisionToolBar.MousePressed.Connect(openAt(Children.DecisionToolBar));
}

void DecisionBAR2::ResetTheHitcardPredictionButtons() { Unpress(ButtonGroup::HitCard); }

void DecisionBAR2::ResetTheHoleCardPredictionButtons() { Unpress(ButtonGroup::HoleCard); }

const MethodTable& DecisionBAR2::Methods() const {
  static const MethodTable table =
      CommonMethods()
          .Method("ResetTheHitcardPredictionButtons", &DecisionBAR2::ResetTheHitcardPredictionButtons)
          .Method("ResetTheHoleCardPredictionButtons", &DecisionBAR2::ResetTheHoleCardPredictionButtons);
  return table;
}

void DecisionBAR2::Terminated() {
  ReleaseTheBlock();
  DecisionToolBarControl::Terminated();
}

}  // namespace tactix
