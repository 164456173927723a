#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Blinker.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Timer.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/Panel.h"
#include "tactix/platform/widgets/Picture.h"
#include "tactix/platform/widgets/PushButton.h"
#include "tactix/shared/BlockReader.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/DecisionBlock.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

struct DecisionPlay;

/// The box in which the player makes one playing decision for one hand, asks for advice and predicts cards. The host
/// hands it a decision block for each hand; the box reports what the player does and judges nothing.
///
/// Operations that take a block take a DecisionBlock, or a variant holding any object with a block's properties. They
/// fail with 424 for a variant that holds no object, 91 for a null object, 438 for a property that the object lacks,
/// and with the conversion's error for a value that does not convert. What was done before a failure stays done.
class TACTIX_EXPORT Decision : public Control {
 public:
  explicit Decision(Site& site);
  ~Decision() override;

  /// The size of the advice button; 0 until it is set. Any number is kept; only the three rows size the button. Each
  /// write makes the advice button the default button and puts it behind all others but the three beside it.
  Coded<AdviceButtonAppearance> AllowAdvice() const { return allowAdvice_; }
  void AllowAdvice(Coded<AdviceButtonAppearance> appearance);
  /// The layout, forUseWithDrills by default. Any number is kept; only the two rows change anything.
  Coded<TypeOfDecisionBox> DecisionBoxType() const { return decisionBoxType_; }
  void DecisionBoxType(Coded<TypeOfDecisionBox> type);

  /// The one call that a host needs for each decision: copies the block, shows the plays that it allows and its prompt.
  void SetupTheDecisionBox(const Variant& thisDCB);
  void SetupTheDecisionBox(const DecisionBlock& thisDCB);
  /// Keeps the edition object for Show, whatever the block is, then sets up without copying the block.
  void SetupDecisionBox(const Variant& thisDCB, const ObjectRef& userKelvoEdition);
  void SetupDecisionBox(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition);
  /// Under manual restrictions shows Split, Surrender and Double when they are legal, otherwise all three.
  void SetupPlayButtons(const Variant& thisDCB);
  void SetupPlayButtons(const DecisionBlock& thisDCB);
  /// Both copy the block into the box's own one.
  void HereIsTheDCB(const Variant& thisDCB);
  void HereIsTheDCB(const DecisionBlock& thisDCB);
  void DecodeThisDCB(const Variant& thisDCB);
  void DecodeThisDCB(const DecisionBlock& thisDCB);
  /// The box's own copy of the last block.
  const DecisionBlock& DecodedDCB() const { return *decodedDCB_; }

  /// Reads the edition number from an edition object and checks "Prompt On" in the options menu.
  void TheKelvoEditionIs(const Variant& theShortKelvoEdition);
  /// The number last read, 0 by default.
  std::int16_t thisKelvoEdition() const { return thisKelvoEdition_; }

  /// Moves the control to the middle of the screen.
  void CenterYourSelf();
  /// Calls "Show" of the edition object, which may write to the flag. Fails with 91 without an edition object.
  void Show(std::int16_t& modalFlag);

  /// Fixed at 12 twips to the pixel on both axes, whatever the screen has. Rounded half to even. Fails with 6 where the
  /// result does not fit into 16 bits, and with the error of a value that does not convert.
  std::int16_t ConvertFromPixelsToTwipsX(const Variant& cValue) const;
  std::int16_t ConvertFromPixelsToTwipsY(const Variant& cValue) const;
  std::int16_t ConvertFromTwipsToPixelsX(const Variant& cValue) const;
  std::int16_t ConvertFromTwipsToPixelsY(const Variant& cValue) const;

  /// Clears the prompt line and the description box.
  void DecisionMade();
  /// Replaces the advised decision, coded as in AdvicePossibilities.
  void GiveAdvice(std::int16_t recommendedAdvice);
  /// The advice button inside the box: for its caption, its list of strategies and the strategy selected there.
  tactix::AdviceButton& InnerAdviceButton() { return Children.AdviceButton; }
  const tactix::AdviceButton& InnerAdviceButton() const { return Children.AdviceButton; }
  /// Lets the advice button blink if its settings say so.
  void HandleAdviceConsiderations();
  /// Four rounds of hidden 0.2 s and shown 0.2 s, then sets "DEFAULT". The object needs "Visible" and "DEFAULT".
  void FlashObject(const ObjectRef& buttonToFlash);
  /// How many flashes run, one inside the other: that of the advised button, too, before AdviceRequested is raised.
  /// What the player does while one runs is done with that advice still to come.
  int FlashesUnderWay() const { return blinker_.Flashes(); }
  /// Waits that many seconds while the user interface goes on running. A negative or non-finite time fails with 380.
  void BlinkTime(float timeAmount);

  /// Reading gives the box's prompt state, false by default. Writing leaves that state alone and sets PromptPlayButtons
  /// of the copied block: odd, but meant.
  bool PromptThePlayButtons() const { return promptState_; }
  void PromptThePlayButtons(bool prompt);
  /// PromptPlayButtons of the copied block.
  bool PlayButtonPromptStatus() const { return decodedDCB_->PromptPlayButtons(); }
  /// Switches the prompt state. While it is on, moving the mouse over a play button shows the button's name above it.
  void DiddleThePromptShit();

  /// The box's tool tip, empty by default.
  const std::string& ToolTip() const;
  void ToolTip(std::string_view text);
  /// Names the strategy behind the advice in the advice button's tool tip, in upper case: Latin, Greek and Cyrillic
  /// letters.
  void ToolTipMessage(std::string_view toolTipStrategy);
  /// Always "07-08-2001 - 21:00"; what is written is ignored.
  std::string Qualifier() const;
  void Qualifier(std::string_view ignored);

  /// Raises the hit-card prediction of a shift state: Shift high, Ctrl low, Ctrl+Shift unknown, Alt mid. Any other
  /// state raises nothing.
  void PredictTheHitCard(std::int16_t predictionKeys);
  /// Shows that prediction's name in the description box; other shift states leave its text alone.
  void DisplayHitcardSetting(std::int16_t shiftKeys);
  /// Shows the description box at a left edge in twips, with the prediction of the shift state or, where it has none,
  /// the button's text. The button number is not used.
  void SetDescriptionBoxState(std::int16_t buttonNumber, std::int16_t shiftKeys, std::int16_t leftPosition,
                              std::string_view buttonText);
  void ClearButtonDescriptionBox();

  void InitProperties() override;
  /// Reads nothing: the box saves nothing. Applies the layout.
  void ReadProperties(PropertyBag& bag) override;
  void Resized() override;
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    /// The advice button was clicked and the advised button has flashed.
    Event<> AdviceRequested{1, "AdviceRequested"};
    Event<> BurnACardRequested{2, "BurnACardRequested"};
    /// A strategy was picked from the advice button's list; carries what the advice button reported.
    Event<const Variant&> EvaluationStrategySelected{3, "EvaluationStrategySelected"};
    Event<> HitCardHiPrediction{4, "HitCardHiPrediction"};
    Event<> HitCardLoPrediction{5, "HitCardLoPrediction"};
    Event<> HitCardNeutralPrediction{6, "HitCardNeutralPrediction"};
    Event<> HitCardUnknownPrediction{7, "HitCardUnknownPrediction"};
    Event<> PlayerDoublesDown{8, "PlayerDoublesDown"};
    Event<> PlayerHits{9, "PlayerHits"};
    Event<> PlayerSplits{10, "PlayerSplits"};
    Event<> PlayerStands{11, "PlayerStands"};
    Event<> PlayerSurrenders{12, "PlayerSurrenders"};
    Event<> PlugHandCardsInClipboard{13, "PlugHandCardsInClipboard"};
    /// Declared for hosts; not raised by the box.
    Event<> PlugPromptPlayHands{14, "PlugPromptPlayHands"};
    Event<> TensRatioHiPrediction{15, "TensRatioHiPrediction"};
    Event<> TensRatioLoPrediction{16, "TensRatioLoPrediction"};
    Event<> WholeCardHiPrediction{17, "WholeCardHiPrediction"};
    Event<> WholeCardLoPrediction{18, "WholeCardLoPrediction"};
    Event<> WholeCardNeutralPrediction{19, "WholeCardNeutralPrediction"};
    Event<> WholeCardUnknownPrediction{20, "WholeCardUnknownPrediction"};
    /// Declared for hosts; not raised by the box.
    Event<> Show{21, "Show"};

    auto All() {
      return std::tie(AdviceRequested, BurnACardRequested, EvaluationStrategySelected, HitCardHiPrediction,
                      HitCardLoPrediction, HitCardNeutralPrediction, HitCardUnknownPrediction, PlayerDoublesDown,
                      PlayerHits, PlayerSplits, PlayerStands, PlayerSurrenders, PlugHandCardsInClipboard,
                      PlugPromptPlayHands, TensRatioHiPrediction, TensRatioLoPrediction, WholeCardHiPrediction,
                      WholeCardLoPrediction, WholeCardNeutralPrediction, WholeCardUnknownPrediction, Show);
    }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    ChildWidgets(Site& site, Site& innerSite) : AdviceButton(innerSite), BlinkTimer(site) {}

    PushButton cmdOptions;
    PushButton cmdTensRatio;
    PushButton cmdHoleCard;
    tactix::AdviceButton AdviceButton;
    Label lblUserControlCaption;
    Panel ManualPlayButtons;
    PushButton HitButton;
    PushButton StandButton;
    PushButton SplitButton;
    PushButton DoubleButton;
    PushButton SurrenderButton;
    Picture picDecision;
    Label lblDecision;
    Timer BlinkTimer;

    Menu mnuHoleCard{"&Hole Card"};
    MenuEntry mnuHolecardIsHigh{"is &High"};
    MenuEntry mnuHolecardSeparator1{"-"};
    MenuEntry mnuHolecardIsLow{"is &Low"};
    MenuEntry mnuHolecardSeparator2{"-"};
    MenuEntry mnuHolecardIsNeutral{"is &Mid"};
    MenuEntry mnuHolecardSeparator3{"-"};
    MenuEntry mnuHolecardIsUnknown{"is &Unknown"};

    Menu mnuTensRatio{"&Tens Ratio"};
    MenuEntry mnuTensRatioIsHigh{"is &High"};
    MenuEntry mnuTensRatioSeparator{"-"};
    MenuEntry MnuTensRatioIsLow{"is &Low"};

    Menu mnuOptions{"&Options"};
    MenuEntry mnuPrompts{"&Prompts"};
    MenuEntry mnuPromptOn{"Prompt &On"};
    MenuEntry mnuPromptOff{"Prompt O&ff"};
    MenuEntry mnuOptionsSeparator{"-"};
    MenuEntry mnuAdjustBet{"&Adjust Bet"};
    MenuEntry mnuBackupASeat{"&Backup a Seat"};
    MenuEntry mnuBurnACard{"Burn A &Card"};
    MenuEntry mnuPlugClipBoard{"&Plug Hand in Clipboard"};
  } Children;

 private:
  void BuildWidgets();
  void BuildMenus();
  void ConnectWidgets();
  void Arrange();
  void ApplyDecisionBoxType();
  void RestackBelowTheOthers();
  void CheckThePrompt(bool on);
  void Decode(const BlockReader& block);
  void SetupTheBox(const BlockReader& block);
  void SetupBox(const BlockReader& block);
  void SetupButtons(const BlockReader& block);
  void Choose(const DecisionPlay& play);
  void PlayButtonMoved(const DecisionPlay& play, const MouseState& mouse);
  void AdviceClicked();
  void StrategyPicked(const Variant& strategy);
  void OpenMenu(PushButton& button, Menu& menu);
  void OptionsMoved();

  Blinker blinker_;
  std::shared_ptr<DecisionBlock> decodedDCB_ = std::make_shared<DecisionBlock>();
  std::string scratch_;
  ObjectRef edition_;
  Coded<TypeOfDecisionBox> decisionBoxType_ = TypeOfDecisionBox::forUseWithDrills;
  Coded<AdviceButtonAppearance> allowAdvice_;
  std::int16_t advisedDecision_ = 0;
  std::int16_t thisKelvoEdition_ = 0;
  bool promptState_ = false;
  bool lowerRowShown_ = true;
};

}  // namespace tactix
