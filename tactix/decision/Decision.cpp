#include "tactix/decision/Decision.h"

#include <initializer_list>
#include <utility>

#include "tactix/decision/private/DecisionPlays.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/private/CaseMapping.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

constexpr double FixedTwipsPerPixel = 12;
constexpr float MenuOffset = 21;

/// The advice button's place for a value of AllowAdvice, and whether it goes to the front right after sizing.
struct AdviceSize {
  AdviceButtonAppearance appearance;
  float left;
  std::int32_t pixels;
  bool inFront;
};
constexpr AdviceSize AdviceSizes[] = {
    {AdviceButtonAppearance::SmallButton, 256, 118, false},
    {AdviceButtonAppearance::MediumButton, 180, 173, false},
    {AdviceButtonAppearance::LargeButton, 1, 310, true},
};

/// A hit-card prediction: its shift state, its word and its event.
struct HitCard {
  std::int16_t keys;
  std::string_view text;
  Event<> Decision::EventSet::*event;
};
constexpr HitCard HitCards[] = {
    {ShiftKey, "High Hitcard", &Decision::EventSet::HitCardHiPrediction},
    {CtrlKey, " Low Hitcard", &Decision::EventSet::HitCardLoPrediction},
    {CtrlKey + ShiftKey, "Unknown Hitcard", &Decision::EventSet::HitCardUnknownPrediction},
    {AltKey, "Neutral Hitcard", &Decision::EventSet::HitCardNeutralPrediction},
};

const HitCard* HitCardOf(std::int16_t keys) {
  for (const HitCard& hitCard : HitCards) {
    if (hitCard.keys == keys) return &hitCard;
  }
  return nullptr;
}

}  // namespace

Decision::Decision(Site& site)
    : Control(site), innerSite_(site), Children(site, innerSite_), blinker_(*this, Children.BlinkTimer) {
  BuildWidgets();
  BuildMenus();
  ConnectWidgets();
}

Decision::~Decision() { MarkAsGone(); }

void Decision::ConnectWidgets() {
  const auto boxKeys = [this](const KeyPress& key) {
    if ((key.shift & CtrlKey) != 0) return;
    if (const DecisionPlay* play = RowOf(DecisionPlays, FindPlay(key.Letter()))) Choose(*play);
  };
  const auto buttonKeys = [this](const KeyPress& key) {
    const DecisionPlay* play = RowOf(DecisionPlays, FindPlay(key.Letter()));
    if (play && (Children.*play->button).Enabled()) Choose(*play);
  };
  Extender().OnKeyDown(boxKeys);
  Children.ManualPlayButtons.OnKeyDown(boxKeys);
  Children.ManualPlayButtons.MouseMoved.Connect([this](const MouseState&) { ClearButtonDescriptionBox(); });
  for (const DecisionPlay& play : DecisionPlays) {
    PushButton& button = Children.*play.button;
    button.OnKeyDown(buttonKeys);
    button.Clicked.Connect([this, &play] { Choose(play); });
    button.MousePressed.Connect([this](const MouseState& mouse) { PredictTheHitCard(mouse.shift); });
    button.MouseMoved.Connect([this, &play](const MouseState& mouse) { PlayButtonMoved(play, mouse); });
  }

  tactix::AdviceButton::EventSet& advice = Children.AdviceButton.Events;
  advice.Click.Connect([this] { AdviceClicked(); });
  advice.AdviceStrategySelected.Connect([this](const Variant& strategy) { StrategyPicked(strategy); });
  advice.StrategyListBoxVisibilityChanged.Connect([this](bool) { Children.AdviceButton.Extender().BringToFront(); });

  Children.cmdHoleCard.Clicked.Connect([this] { OpenMenu(Children.cmdHoleCard, Children.mnuHoleCard); });
  Children.cmdTensRatio.Clicked.Connect([this] { OpenMenu(Children.cmdTensRatio, Children.mnuTensRatio); });
  Children.cmdOptions.Clicked.Connect([this] { OpenMenu(Children.cmdOptions, Children.mnuOptions); });
  Children.cmdOptions.MouseMoved.Connect([this](const MouseState&) { OptionsMoved(); });
}

// Setting up for a hand.

void Decision::SetupTheDecisionBox(const Variant& thisDCB) { SetupTheBox(BlockReader(thisDCB, *this)); }
void Decision::SetupTheDecisionBox(const DecisionBlock& thisDCB) { SetupTheBox(BlockReader(thisDCB, *this)); }

void Decision::SetupTheBox(const BlockReader& block) {
  const Weak<Decision> self(this);
  Decode(block);
  if (self) SetupBox(block);
  if (self) CheckThePrompt(promptState_);
}

// The edition is kept before the block is looked at, even where that is no block. The old edition is released last: it
// may be all that keeps the host's block and the box alive.
void Decision::SetupDecisionBox(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  const ObjectRef before = std::exchange(edition_, userKelvoEdition);
  SetupBox(BlockReader(thisDCB, *this));
}
void Decision::SetupDecisionBox(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  const ObjectRef before = std::exchange(edition_, userKelvoEdition);
  SetupBox(BlockReader(thisDCB, *this));
}

void Decision::SetupBox(const BlockReader& block) {
  // Each read may run host code, which may destroy the box or set it up for another hand.
  const Weak<Decision> self(this);
  std::string text = std::move(scratch_);
  text.assign("Is &");
  block.AppendText(BlockField::MidCardsAre, text);
  if (!self) return;
  Children.mnuHolecardIsNeutral.Caption(text);
  SetupButtons(block);
  if (!self) return;
  Children.AdviceButton.Enabled(true);
  Children.cmdOptions.Enabled(true);
  const bool logEnabled = block.Value(BlockField::PlayingLogEnabled).CountsAsTrue();
  if (!self) return;
  Children.mnuPlugClipBoard.Enabled(logEnabled);
  const std::int16_t advice = block.Value(BlockField::StrategyAdvice).ToInteger();
  if (!self) return;
  advisedDecision_ = advice;
  text.clear();
  AppendDecisionPrompt(block, text);
  if (!self) return;
  Children.lblUserControlCaption.Caption(text);
  scratch_ = std::move(text);
}

void Decision::SetupPlayButtons(const Variant& thisDCB) { SetupButtons(BlockReader(thisDCB, *this)); }
void Decision::SetupPlayButtons(const DecisionBlock& thisDCB) { SetupButtons(BlockReader(thisDCB, *this)); }

void Decision::SetupButtons(const BlockReader& block) {
  const Weak<Decision> self(this);
  const bool restricted = block.Value(BlockField::ManualPlayerRestrictions).CountsAsTrue();
  const auto offered = [&](BlockField field) { return !restricted || block.Value(field).ToBoolean(); };
  const bool split = offered(BlockField::SplitIsValid);
  if (self) Children.SplitButton.Visible(split);
  const bool surrender = offered(BlockField::SurrenderIsValid);
  if (self) Children.SurrenderButton.Visible(surrender);
  // Both are always read: an object that lacks the second must fail even where the first one allows the play.
  const bool hardDouble = offered(BlockField::HardDoubleIsValid);
  const bool softDouble = offered(BlockField::SoftDoubleIsValid);
  if (self) Children.DoubleButton.Visible(hardDouble || softDouble);
}

void Decision::HereIsTheDCB(const Variant& thisDCB) { DecodeThisDCB(thisDCB); }
void Decision::HereIsTheDCB(const DecisionBlock& thisDCB) { DecodeThisDCB(thisDCB); }
void Decision::DecodeThisDCB(const Variant& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void Decision::DecodeThisDCB(const DecisionBlock& thisDCB) { Decode(BlockReader(thisDCB, *this)); }
void Decision::Decode(const BlockReader& block) {
  // A second owner: reading a host's object may destroy the box, and the copy must outlive the reading.
  const Weak<Decision> self(this);
  const std::shared_ptr<DecisionBlock> copy = decodedDCB_;
  DecodeBlock(block, *copy);
  if (self) Touched();
}

// Layout.

void Decision::AllowAdvice(Coded<AdviceButtonAppearance> appearance) {
  allowAdvice_ = appearance;
  Touched();
  tactix::Extender& button = Children.AdviceButton.Extender();
  for (const AdviceSize& size : AdviceSizes) {
    if (appearance != size.appearance) continue;
    button.Place(size.left, button.Top(), ConvertFromPixelsToTwipsY(size.pixels), button.Height());
    size.inFront ? button.BringToFront() : button.SendToBack();
  }
  Children.AdviceButton.Enabled(true);
  button.SendToBack();
  RestackBelowTheOthers();
}

void Decision::RestackBelowTheOthers() {
  Children.cmdHoleCard.SendToBack();
  Children.cmdTensRatio.SendToBack();
  Children.cmdOptions.SendToBack();
}

void Decision::DecisionBoxType(Coded<TypeOfDecisionBox> type) {
  decisionBoxType_ = type;
  Touched();
  ApplyDecisionBoxType();
}

void Decision::ApplyDecisionBoxType() {
  const bool forTable = decisionBoxType_ == TypeOfDecisionBox::forUseWithBlackjackTable;
  if (!forTable && decisionBoxType_ != TypeOfDecisionBox::forUseWithDrills) return;
  // Hiding or disabling a widget may move the focus, and a handler that hears of that may destroy the box.
  const Weak<Decision> self(this);
  lowerRowShown_ = forTable;
  for (Widget* element : std::initializer_list<Widget*>{&Children.cmdHoleCard, &Children.cmdTensRatio,
                                                        &Children.AdviceButton.Extender(), &Children.cmdOptions}) {
    element->Visible(forTable);
    if (!self) return;
  }
  if (forTable) {
    Children.cmdHoleCard.Enabled(true);
    Children.cmdTensRatio.Enabled(true);
    Children.AdviceButton.Enabled(false);
    Children.cmdOptions.Enabled(false);
    if (!self) return;
  }
  Arrange();
}

void Decision::InitProperties() { DecisionBoxType(TypeOfDecisionBox::forUseWithDrills); }

void Decision::ReadProperties(PropertyBag&) { ApplyDecisionBoxType(); }

void Decision::Resized() { Arrange(); }

void Decision::CenterYourSelf() {
  const Weak<Decision> self(this);
  Extender().Left((ItsSite().ScreenWidth() - Extender().Width()) / 2);
  if (self) Extender().Top((ItsSite().ScreenHeight() - Extender().Height()) / 2);
}

std::int16_t Decision::ConvertFromPixelsToTwipsX(const Variant& cValue) const {
  return Variant(cValue.ToDouble() * FixedTwipsPerPixel).ToInteger();
}
std::int16_t Decision::ConvertFromPixelsToTwipsY(const Variant& cValue) const {
  return ConvertFromPixelsToTwipsX(cValue);
}
std::int16_t Decision::ConvertFromTwipsToPixelsX(const Variant& cValue) const {
  return Variant(cValue.ToDouble() / FixedTwipsPerPixel).ToInteger();
}
std::int16_t Decision::ConvertFromTwipsToPixelsY(const Variant& cValue) const {
  return ConvertFromTwipsToPixelsX(cValue);
}

// The edition.

void Decision::TheKelvoEditionIs(const Variant& theShortKelvoEdition) {
  const ObjectRef edition = theShortKelvoEdition.ToObject();
  if (!edition) throw Error(Error::ObjectNotSet);
  const Weak<Decision> self(this);
  const std::int16_t number = edition->Get("thisKelvoEdition").ToInteger();
  if (!self) return;
  thisKelvoEdition_ = number;
  Touched();
  CheckThePrompt(true);
}

void Decision::Show(std::int16_t& modalFlag) {
  const ObjectRef edition = edition_;
  if (!edition) throw Error(Error::ObjectNotSet);
  Variant arguments[] = {modalFlag};
  edition->Call("Show", arguments);
  modalFlag = arguments[0].ToInteger();
}

// Deciding.

void Decision::Choose(const DecisionPlay& play) {
  DecisionMade();
  (Events.*play.event).Raise();
}

void Decision::DecisionMade() {
  Children.lblUserControlCaption.Caption("");
  ClearButtonDescriptionBox();
}

// Advice.

void Decision::GiveAdvice(std::int16_t recommendedAdvice) { advisedDecision_ = recommendedAdvice; }

void Decision::HandleAdviceConsiderations() { Children.AdviceButton.BlinkIfNecessary(); }

void Decision::FlashObject(const ObjectRef& buttonToFlash) { blinker_.Flash(buttonToFlash); }

void Decision::BlinkTime(float timeAmount) { blinker_.Wait(timeAmount); }

void Decision::AdviceClicked() {
  const Weak<Decision> self(this);
  Children.AdviceButton.Extender().BringToFront();
  Children.ManualPlayButtons.SetFocus();
  if (!self) return;
  const DecisionPlay* const advised = RowOf(DecisionPlays, FindPlay(Coded<AdvicePossibilities>(advisedDecision_)));
  if (advised) blinker_.Flash((Children.*advised->button).Handle());
  if (self) Events.AdviceRequested.Raise();
}

void Decision::StrategyPicked(const Variant& strategy) {
  Children.AdviceButton.Extender().SendToBack();
  RestackBelowTheOthers();
  Events.EvaluationStrategySelected.Raise(strategy);
}

void Decision::ToolTipMessage(std::string_view toolTipStrategy) {
  Children.AdviceButton.Extender().ToolTipText("Click this to see Kelvo' recommendation based on: " +
                                               UpperCase(toolTipStrategy));
}

// Prompting.

void Decision::PromptThePlayButtons(bool prompt) {
  decodedDCB_->PromptPlayButtons(prompt);
  Touched();
}

void Decision::DiddleThePromptShit() {
  promptState_ = !promptState_;
  Touched();
  CheckThePrompt(promptState_);
}

void Decision::CheckThePrompt(bool on) {
  Children.mnuPromptOn.Checked(on);
  Children.mnuPromptOff.Checked(!on);
}

void Decision::PlayButtonMoved(const DecisionPlay& play, const MouseState& mouse) {
  if (!promptState_) return;
  const std::int16_t left = Variant((Children.*play.button).Left()).ToInteger();
  SetDescriptionBoxState(static_cast<std::int16_t>(play.code), mouse.shift, left, play.name);
}

void Decision::SetDescriptionBoxState(std::int16_t /*buttonNumber*/, std::int16_t shiftKeys, std::int16_t leftPosition,
                                      std::string_view buttonText) {
  Children.picDecision.Left(leftPosition);
  Children.lblDecision.Caption(buttonText);
  Children.lblDecision.BringToFront();
  DisplayHitcardSetting(shiftKeys);
  Children.picDecision.Visible(true);
}

void Decision::ClearButtonDescriptionBox() { Children.picDecision.Visible(false); }

// Predicting.

void Decision::PredictTheHitCard(std::int16_t predictionKeys) {
  if (const HitCard* hitCard = HitCardOf(predictionKeys)) (Events.*hitCard->event).Raise();
}

void Decision::DisplayHitcardSetting(std::int16_t shiftKeys) {
  if (const HitCard* hitCard = HitCardOf(shiftKeys)) Children.lblDecision.Caption(hitCard->text);
}

void Decision::OpenMenu(PushButton& button, Menu& menu) {
  ItsSite().PopUp(menu, Extender(), button.Left(), button.Top() + MenuOffset);
}

void Decision::OptionsMoved() {
  // While the menu of another button is open, moving onto the options button opens the options menu instead.
  if (Children.mnuHoleCard.IsOpen() || Children.mnuTensRatio.IsOpen()) {
    OpenMenu(Children.cmdOptions, Children.mnuOptions);
  }
}

// Properties of the box itself.

const std::string& Decision::ToolTip() const { return Extender().ToolTipText(); }

void Decision::ToolTip(std::string_view text) { Extender().ToolTipText(text); }

std::string Decision::Qualifier() const { return "07-08-2001 - 21:00"; }

void Decision::Qualifier(std::string_view) {}

const PropertyTable& Decision::Properties() const {
  using Self = Decision;
  static const PropertyTable table =
      PropertyTable()
          .Property("AllowAdvice", &Self::AllowAdvice, &Self::AllowAdvice)
          .Property("DecisionBoxType", &Self::DecisionBoxType, &Self::DecisionBoxType)
          .GetOnly("thisKelvoEdition", &Self::thisKelvoEdition)
          .SetOnly("GiveAdvice", &Self::GiveAdvice)
          .Property("PromptThePlayButtons", &Self::PromptThePlayButtons, &Self::PromptThePlayButtons)
          .GetOnly("PlayButtonPromptStatus", &Self::PlayButtonPromptStatus)
          .Property("ToolTip", &Self::ToolTip, &Self::ToolTip)
          .SetOnly("ToolTipMessage", &Self::ToolTipMessage)
          .Property("Qualifier", &Self::Qualifier, &Self::Qualifier);
  return table;
}

const MethodTable& Decision::Methods() const {
  using Self = Decision;
  static const MethodTable table = MethodTable()
                                       .TakesVariant("SetupTheDecisionBox", &Self::SetupTheDecisionBox)
                                       .TakesVariant("SetupDecisionBox", &Self::SetupDecisionBox)
                                       .TakesVariant("SetupPlayButtons", &Self::SetupPlayButtons)
                                       .TakesVariant("HereIsTheDCB", &Self::HereIsTheDCB)
                                       .TakesVariant("DecodeThisDCB", &Self::DecodeThisDCB)
                                       .Method("TheKelvoEditionIs", &Self::TheKelvoEditionIs)
                                       .Method("CenterYourSelf", &Self::CenterYourSelf)
                                       .Method("Show", &Self::Show)
                                       .Method("ConvertFromPixelsToTwipsX", &Self::ConvertFromPixelsToTwipsX)
                                       .Method("ConvertFromPixelsToTwipsY", &Self::ConvertFromPixelsToTwipsY)
                                       .Method("ConvertFromTwipsToPixelsX", &Self::ConvertFromTwipsToPixelsX)
                                       .Method("ConvertFromTwipsToPixelsY", &Self::ConvertFromTwipsToPixelsY)
                                       .Method("DecisionMade", &Self::DecisionMade)
                                       .Method("HandleAdviceConsiderations", &Self::HandleAdviceConsiderations)
                                       .Method("FlashObject", &Self::FlashObject)
                                       .Method("BlinkTime", &Self::BlinkTime)
                                       .Method("DiddleThePromptShit", &Self::DiddleThePromptShit)
                                       .Method("PredictTheHitCard", &Self::PredictTheHitCard)
                                       .Method("DisplayHitcardSetting", &Self::DisplayHitcardSetting)
                                       .Method("SetDescriptionBoxState", &Self::SetDescriptionBoxState)
                                       .Method("ClearButtonDescriptionBox", &Self::ClearButtonDescriptionBox);
  return table;
}

}  // namespace tactix
