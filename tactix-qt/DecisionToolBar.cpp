#include "tactix-qt/DecisionToolBar.h"

#include "tactix-qt/Convert.h"

namespace tactix::qt {

namespace {

using Bar = DecisionToolBarControl;
using Events = tactix::DecisionToolBarControl::EventSet;

struct SignalRow {
  Event<> Events::*event;
  void (Bar::*signal)();
};
constexpr SignalRow SignalRows[] = {
    {&Events::HitButtonWasPressed, &Bar::HitButtonWasPressed},
    {&Events::StandButtonWasPressed, &Bar::StandButtonWasPressed},
    {&Events::SplitButtonWasPressed, &Bar::SplitButtonWasPressed},
    {&Events::DoubleButtonWasPressed, &Bar::DoubleButtonWasPressed},
    {&Events::StatsButtonWasPressed, &Bar::StatsButtonWasPressed},
    {&Events::AdviceButtonWasPressed, &Bar::AdviceButtonWasPressed},
    {&Events::SurrenderButtonWasPressed, &Bar::SurrenderButtonWasPressed},
};

Bar::ButtonStatusPossibilities ToQt(Coded<ButtonStatusPossibilities> status) {
  return static_cast<Bar::ButtonStatusPossibilities>(status.Value());
}
Coded<ButtonStatusPossibilities> FromQt(Bar::ButtonStatusPossibilities status) {
  return static_cast<std::int32_t>(status);
}

}  // namespace

DecisionToolBarControl::DecisionToolBarControl(Maker& make, QWidget* parent) : ControlWidget(parent) {
  auto control = make(ItsSite());
  bar_ = control.get();
  Own(std::move(control));
  for (const SignalRow& row : SignalRows) {
    (bar_->Events.*row.event).Connect([this, signal = row.signal] { Q_EMIT(this->*signal)(); });
  }
  bar_->Events.HereIsThePlayersPromptMessage.Connect(
      [this](const std::string& text) { Q_EMIT HereIsThePlayersPromptMessage(qt::ToQt(text)); });
  bar_->Events.HereIsAResponseBlock.Connect(
      [this](const DecisionBARResponseObject& block) { Q_EMIT HereIsAResponseBlock(block); });
}

DecisionToolBarControl::~DecisionToolBarControl() { EndControl(); }

Bar::DecisionBARAlignment DecisionToolBarControl::Alignment() const {
  return static_cast<DecisionBARAlignment>(bar_->Alignment().Value());
}
void DecisionToolBarControl::Alignment(DecisionBARAlignment alignment) {
  bar_->Alignment(static_cast<std::int32_t>(alignment));
}

Bar::ButtonStatusPossibilities DecisionToolBarControl::HitcardButtonsVisibility() const {
  return ToQt(bar_->HitcardButtonsVisibility());
}
void DecisionToolBarControl::HitcardButtonsVisibility(ButtonStatusPossibilities visibility) {
  bar_->HitcardButtonsVisibility(FromQt(visibility));
}
Bar::ButtonStatusPossibilities DecisionToolBarControl::HolecardButtonsVisibility() const {
  return ToQt(bar_->HolecardButtonsVisibility());
}
void DecisionToolBarControl::HolecardButtonsVisibility(ButtonStatusPossibilities visibility) {
  bar_->HolecardButtonsVisibility(FromQt(visibility));
}
Bar::ButtonStatusPossibilities DecisionToolBarControl::TensRatioButtonVisibility() const {
  return ToQt(bar_->TensRatioButtonVisibility());
}
void DecisionToolBarControl::TensRatioButtonVisibility(ButtonStatusPossibilities visibility) {
  bar_->TensRatioButtonVisibility(FromQt(visibility));
}
Bar::ButtonStatusPossibilities DecisionToolBarControl::DealerStrengthButtonsVisibility() const {
  return ToQt(bar_->DealerStrengthButtonsVisibility());
}
void DecisionToolBarControl::DealerStrengthButtonsVisibility(ButtonStatusPossibilities visibility) {
  bar_->DealerStrengthButtonsVisibility(FromQt(visibility));
}
Bar::ButtonStatusPossibilities DecisionToolBarControl::StatusButtonButtonVisibility() const {
  return ToQt(bar_->StatusButtonButtonVisibility());
}
void DecisionToolBarControl::StatusButtonButtonVisibility(ButtonStatusPossibilities visibility) {
  bar_->StatusButtonButtonVisibility(FromQt(visibility));
}

void DecisionToolBarControl::PlugHitcardButtons(ButtonStatusPossibilities buttonGroupStatus) {
  bar_->PlugHitcardButtons(FromQt(buttonGroupStatus));
}
void DecisionToolBarControl::PlugHoleCardButtons(ButtonStatusPossibilities buttonGroupStatus) {
  bar_->PlugHoleCardButtons(FromQt(buttonGroupStatus));
}
void DecisionToolBarControl::PlugTensRatioButtons(ButtonStatusPossibilities buttonGroupStatus) {
  bar_->PlugTensRatioButtons(FromQt(buttonGroupStatus));
}
void DecisionToolBarControl::PlugDealerStrengthButtons(ButtonStatusPossibilities buttonGroupStatus) {
  bar_->PlugDealerStrengthButtons(FromQt(buttonGroupStatus));
}
void DecisionToolBarControl::PlugStatusButton(ButtonStatusPossibilities buttonStatus) {
  bar_->PlugStatusButton(FromQt(buttonStatus));
}

int DecisionToolBarControl::thisKelvoEdition() const { return bar_->thisKelvoEdition(); }
ObjectRef DecisionToolBarControl::KelvoEdition() const { return bar_->KelvoEdition(); }
void DecisionToolBarControl::KelvoEdition(const ObjectRef& edition) { bar_->KelvoEdition(edition); }
void DecisionToolBarControl::TheKelvoEditionIs(const ObjectRef& theShortKelvoEdition) {
  bar_->TheKelvoEditionIs(theShortKelvoEdition);
}

bool DecisionToolBarControl::ResetPredictionButtons() const { return bar_->ResetPredictionButtons(); }
void DecisionToolBarControl::ResetPredictionButtons(bool reset) { bar_->ResetPredictionButtons(reset); }
DecisionBARResponseObject DecisionToolBarControl::GiveMeYourResponseData() const {
  return bar_->GiveMeYourResponseData();
}

void DecisionToolBarControl::SetupTheDecisionBAR(const DecisionBlock& thisDCB) { bar_->SetupTheDecisionBAR(thisDCB); }
void DecisionToolBarControl::SetupTheDecisionBAR(const Variant& thisDCB) { bar_->SetupTheDecisionBAR(thisDCB); }
void DecisionToolBarControl::SetupDecisionBAR(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  bar_->SetupDecisionBAR(thisDCB, userKelvoEdition);
}
void DecisionToolBarControl::SetupDecisionBAR(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  bar_->SetupDecisionBAR(thisDCB, userKelvoEdition);
}
void DecisionToolBarControl::SetupPlayButtons(const DecisionBlock& thisDCB) { bar_->SetupPlayButtons(thisDCB); }
void DecisionToolBarControl::SetupPlayButtons(const Variant& thisDCB) { bar_->SetupPlayButtons(thisDCB); }
void DecisionToolBarControl::HereIsTheDCB(const DecisionBlock& thisDCB) { bar_->HereIsTheDCB(thisDCB); }
void DecisionToolBarControl::HereIsTheDCB(const Variant& thisDCB) { bar_->HereIsTheDCB(thisDCB); }
void DecisionToolBarControl::DecodeThisDCB(const DecisionBlock& thisDCB) { bar_->DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::DecodeThisDCB(const Variant& thisDCB) { bar_->DecodeThisDCB(thisDCB); }
void DecisionToolBarControl::GetReadyForADecision() { bar_->GetReadyForADecision(); }
void DecisionToolBarControl::ResetYourResponseData() { bar_->ResetYourResponseData(); }
void DecisionToolBarControl::FlashObject(const ObjectRef& buttonToFlash) { bar_->FlashObject(buttonToFlash); }
void DecisionToolBarControl::BlinkTime(float timeAmount) { bar_->BlinkTime(timeAmount); }

}  // namespace tactix::qt
