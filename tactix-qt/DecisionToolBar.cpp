#include "tactix-qt/DecisionToolBar.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

using Bar = DecisionToolBarControl;

Bar::DecisionToolBarControl(Maker make, QWidget* parent) : WidgetOf(make, parent) {
  using Events = Core::EventSet;
  Relay(&Events::HitButtonWasPressed, &Bar::HitButtonWasPressed);
  Relay(&Events::StandButtonWasPressed, &Bar::StandButtonWasPressed);
  Relay(&Events::SplitButtonWasPressed, &Bar::SplitButtonWasPressed);
  Relay(&Events::DoubleButtonWasPressed, &Bar::DoubleButtonWasPressed);
  Relay(&Events::StatsButtonWasPressed, &Bar::StatsButtonWasPressed);
  Relay(&Events::AdviceButtonWasPressed, &Bar::AdviceButtonWasPressed);
  Relay(&Events::SurrenderButtonWasPressed, &Bar::SurrenderButtonWasPressed);
  Relay(&Events::HereIsThePlayersPromptMessage, &Bar::HereIsThePlayersPromptMessage);
  Relay(&Events::HereIsAResponseBlock, &Bar::HereIsAResponseBlock);
}

Bar::~DecisionToolBarControl() { EndControl(); }

Bar::DecisionBARAlignment Bar::Alignment() const { return Get<DecisionBARAlignment>(&Core::Alignment); }
Bar::ButtonStatusPossibilities Bar::HitcardButtonsVisibility() const {
  return Get<ButtonStatusPossibilities>(&Core::HitcardButtonsVisibility);
}
Bar::ButtonStatusPossibilities Bar::HolecardButtonsVisibility() const {
  return Get<ButtonStatusPossibilities>(&Core::HolecardButtonsVisibility);
}
Bar::ButtonStatusPossibilities Bar::TensRatioButtonVisibility() const {
  return Get<ButtonStatusPossibilities>(&Core::TensRatioButtonVisibility);
}
Bar::ButtonStatusPossibilities Bar::DealerStrengthButtonsVisibility() const {
  return Get<ButtonStatusPossibilities>(&Core::DealerStrengthButtonsVisibility);
}
Bar::ButtonStatusPossibilities Bar::StatusButtonButtonVisibility() const {
  return GetOr(ButtonsAreInvisible, &Core::StatusButtonButtonVisibility);
}
int Bar::thisKelvoEdition() const { return Get<int>(&Core::thisKelvoEdition); }
ObjectRef Bar::KelvoEdition() const { return GetOr(ObjectRef(), &Core::KelvoEdition); }
bool Bar::ResetPredictionButtons() const { return Get<bool>(&Core::ResetPredictionButtons); }
DecisionBARResponseObject Bar::GiveMeYourResponseData() const {
  return Get<DecisionBARResponseObject>(&Core::GiveMeYourResponseData);
}

void Bar::setAlignment(DecisionBARAlignment alignment) { Call(&Core::Alignment, alignment); }
void Bar::setHitcardButtonsVisibility(ButtonStatusPossibilities visibility) {
  Call(&Core::HitcardButtonsVisibility, visibility);
}
void Bar::setHolecardButtonsVisibility(ButtonStatusPossibilities visibility) {
  Call(&Core::HolecardButtonsVisibility, visibility);
}
void Bar::setTensRatioButtonVisibility(ButtonStatusPossibilities visibility) {
  Call(&Core::TensRatioButtonVisibility, visibility);
}
void Bar::setDealerStrengthButtonsVisibility(ButtonStatusPossibilities visibility) {
  Call(&Core::DealerStrengthButtonsVisibility, visibility);
}
void Bar::setStatusButtonButtonVisibility(ButtonStatusPossibilities visibility) {
  Call(&Core::StatusButtonButtonVisibility, visibility);
}
void Bar::setKelvoEdition(const ObjectRef& edition) { Call(&Core::KelvoEdition, edition); }
void Bar::setResetPredictionButtons(bool reset) { Call(&Core::ResetPredictionButtons, reset); }

void Bar::PlugHitcardButtons(ButtonStatusPossibilities status) { Call(&Core::PlugHitcardButtons, status); }
void Bar::PlugHoleCardButtons(ButtonStatusPossibilities status) { Call(&Core::PlugHoleCardButtons, status); }
void Bar::PlugTensRatioButtons(ButtonStatusPossibilities status) { Call(&Core::PlugTensRatioButtons, status); }
void Bar::PlugDealerStrengthButtons(ButtonStatusPossibilities status) {
  Call(&Core::PlugDealerStrengthButtons, status);
}
void Bar::PlugStatusButton(ButtonStatusPossibilities status) { Call(&Core::PlugStatusButton, status); }
void Bar::TheKelvoEditionIs(const ObjectRef& edition) { Call(&Core::TheKelvoEditionIs, edition); }

void Bar::SetupTheDecisionBAR(const DecisionBlock& block) {
  Run([&](Core& bar) { bar.SetupTheDecisionBAR(block); });
}
void Bar::SetupTheDecisionBAR(const Variant& block) {
  Run([&](Core& bar) { bar.SetupTheDecisionBAR(block); });
}
void Bar::SetupDecisionBAR(const DecisionBlock& block, const ObjectRef& edition) {
  Run([&](Core& bar) { bar.SetupDecisionBAR(block, edition); });
}
void Bar::SetupDecisionBAR(const Variant& block, const ObjectRef& edition) {
  Run([&](Core& bar) { bar.SetupDecisionBAR(block, edition); });
}
void Bar::SetupPlayButtons(const DecisionBlock& block) {
  Run([&](Core& bar) { bar.SetupPlayButtons(block); });
}
void Bar::SetupPlayButtons(const Variant& block) {
  Run([&](Core& bar) { bar.SetupPlayButtons(block); });
}
void Bar::HereIsTheDCB(const DecisionBlock& block) {
  Run([&](Core& bar) { bar.HereIsTheDCB(block); });
}
void Bar::HereIsTheDCB(const Variant& block) {
  Run([&](Core& bar) { bar.HereIsTheDCB(block); });
}
void Bar::DecodeThisDCB(const DecisionBlock& block) {
  Run([&](Core& bar) { bar.DecodeThisDCB(block); });
}
void Bar::DecodeThisDCB(const Variant& block) {
  Run([&](Core& bar) { bar.DecodeThisDCB(block); });
}
void Bar::GetReadyForADecision() { Call(&Core::GetReadyForADecision); }
void Bar::ResetYourResponseData() { Call(&Core::ResetYourResponseData); }
void Bar::FlashObject(const ObjectRef& button) { Call(&Core::FlashObject, button); }
void Bar::BlinkTime(float seconds) { Call(&Core::BlinkTime, seconds); }

void Bar::resetAlignment() { Reset("Alignment"); }
void Bar::resetHitcardButtonsVisibility() { Reset("HitcardButtonsVisibility"); }
void Bar::resetHolecardButtonsVisibility() { Reset("HolecardButtonsVisibility"); }
void Bar::resetTensRatioButtonVisibility() { Reset("TensRatioButtonVisibility"); }
void Bar::resetDealerStrengthButtonsVisibility() { Reset("DealerStrengthButtonsVisibility"); }
void Bar::resetStatusButtonButtonVisibility() { Reset("StatusButtonButtonVisibility"); }

bool Bar::ReadingCreates(std::string_view property) const {
  return property == "KelvoEdition" && !control().HasKelvoEdition();
}

}  // namespace tactix::qt
