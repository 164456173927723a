#pragma once

#include "tactix/decision/DecisionToolBar.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Menu.h"

namespace tactix {

/// The decision toolbar. A right click opens its settings menu, whose entries change what will be saved, not what is
/// shown.
class TACTIX_EXPORT DecisionBAR2 : public DecisionToolBarControl {
 public:
  explicit DecisionBAR2(Site& site);
  ~DecisionBAR2() override;

  /// Unpress the group's Low, Mid and High buttons. Its "? ?" button and the player's predictions stay as they are.
  void ResetTheHitcardPredictionButtons();
  void ResetTheHoleCardPredictionButtons();

  void Terminated() override;
  const MethodTable& Methods() const override;

  struct ChildWidgets : CommonWidgets {
    using CommonWidgets::CommonWidgets;

    Menu menuDecisionBarSettings{"&Decision Bar Settings"};
    MenuEntry menuHoleCardButtonsVisible{"H&ole-card Buttons Visible"};
    MenuEntry menuSEP1{"-"};
    MenuEntry menuHitCardButtonsVisible{"H&it-card Buttons Visible"};
    MenuEntry menuSEP2{"-"};
    MenuEntry menuTensRatioButtonsVisible{"10's &Ratio ButtonsVisible"};
    MenuEntry menuSEP3{"-"};
    MenuEntry menuStrongHandButtonsVisible{"Strong &Hand Buttons Visible"};
    MenuEntry menuSEP4{"-"};
    MenuEntry menuStatsButtonVisible{"&Stats Button Visible"};
  } Children;

 private:
  void BuildMenu();
};

}  // namespace tactix
