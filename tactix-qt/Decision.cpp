#include "tactix-qt/Decision.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

Decision::Decision(QWidget* parent) : WidgetOf(parent) {
  using Events = Core::EventSet;
  Relay(&Events::AdviceRequested, &Decision::AdviceRequested);
  Relay(&Events::BurnACardRequested, &Decision::BurnACardRequested);
  Relay(&Events::EvaluationStrategySelected, &Decision::EvaluationStrategySelected);
  Relay(&Events::HitCardHiPrediction, &Decision::HitCardHiPrediction);
  Relay(&Events::HitCardLoPrediction, &Decision::HitCardLoPrediction);
  Relay(&Events::HitCardNeutralPrediction, &Decision::HitCardNeutralPrediction);
  Relay(&Events::HitCardUnknownPrediction, &Decision::HitCardUnknownPrediction);
  Relay(&Events::PlayerDoublesDown, &Decision::PlayerDoublesDown);
  Relay(&Events::PlayerHits, &Decision::PlayerHits);
  Relay(&Events::PlayerSplits, &Decision::PlayerSplits);
  Relay(&Events::PlayerStands, &Decision::PlayerStands);
  Relay(&Events::PlayerSurrenders, &Decision::PlayerSurrenders);
  Relay(&Events::PlugHandCardsInClipboard, &Decision::PlugHandCardsInClipboard);
  Relay(&Events::PlugPromptPlayHands, &Decision::PlugPromptPlayHands);
  Relay(&Events::TensRatioHiPrediction, &Decision::TensRatioHiPrediction);
  Relay(&Events::TensRatioLoPrediction, &Decision::TensRatioLoPrediction);
  Relay(&Events::WholeCardHiPrediction, &Decision::WholeCardHiPrediction);
  Relay(&Events::WholeCardLoPrediction, &Decision::WholeCardLoPrediction);
  Relay(&Events::WholeCardNeutralPrediction, &Decision::WholeCardNeutralPrediction);
  Relay(&Events::WholeCardUnknownPrediction, &Decision::WholeCardUnknownPrediction);
  Relay(&Events::Show, &Decision::ShowRaised);
}

Decision::~Decision() { EndControl(); }

Decision::AdviceButtonAppearance Decision::AllowAdvice() const {
  return Get<AdviceButtonAppearance>(&Core::AllowAdvice);
}
Decision::TypeOfDecisionBox Decision::DecisionBoxType() const { return Get<TypeOfDecisionBox>(&Core::DecisionBoxType); }
int Decision::thisKelvoEdition() const { return Get<int>(&Core::thisKelvoEdition); }
bool Decision::PromptThePlayButtons() const { return Get<bool>(&Core::PromptThePlayButtons); }
bool Decision::PlayButtonPromptStatus() const { return Get<bool>(&Core::PlayButtonPromptStatus); }
QString Decision::ToolTip() const { return Get<QString>(&Core::ToolTip); }
QString Decision::Qualifier() const { return Get<QString>(&Core::Qualifier); }

std::int16_t Decision::ConvertFromPixelsToTwipsX(const Variant& cValue) const {
  return Get<std::int16_t>(&Core::ConvertFromPixelsToTwipsX, cValue);
}
std::int16_t Decision::ConvertFromPixelsToTwipsY(const Variant& cValue) const {
  return Get<std::int16_t>(&Core::ConvertFromPixelsToTwipsY, cValue);
}
std::int16_t Decision::ConvertFromTwipsToPixelsX(const Variant& cValue) const {
  return Get<std::int16_t>(&Core::ConvertFromTwipsToPixelsX, cValue);
}
std::int16_t Decision::ConvertFromTwipsToPixelsY(const Variant& cValue) const {
  return Get<std::int16_t>(&Core::ConvertFromTwipsToPixelsY, cValue);
}

void Decision::setAllowAdvice(AdviceButtonAppearance appearance) { Call(&Core::AllowAdvice, appearance); }
void Decision::setDecisionBoxType(TypeOfDecisionBox type) { Call(&Core::DecisionBoxType, type); }
void Decision::setPromptThePlayButtons(bool prompt) { Call(&Core::PromptThePlayButtons, prompt); }
void Decision::setControlToolTip(const QString& text) { Call(&Core::ToolTip, text); }
void Decision::setQualifier(const QString& ignored) { Call(&Core::Qualifier, ignored); }
void Decision::GiveAdvice(int recommendedAdvice) { Call(&Core::GiveAdvice, recommendedAdvice); }
void Decision::ToolTipMessage(const QString& toolTipStrategy) { Call(&Core::ToolTipMessage, toolTipStrategy); }

void Decision::SetupTheDecisionBox(const DecisionBlock& thisDCB) {
  Run([&](Core& box) { box.SetupTheDecisionBox(thisDCB); });
}
void Decision::SetupTheDecisionBox(const Variant& thisDCB) {
  Run([&](Core& box) { box.SetupTheDecisionBox(thisDCB); });
}
void Decision::SetupDecisionBox(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  Run([&](Core& box) { box.SetupDecisionBox(thisDCB, userKelvoEdition); });
}
void Decision::SetupDecisionBox(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  Run([&](Core& box) { box.SetupDecisionBox(thisDCB, userKelvoEdition); });
}
void Decision::SetupPlayButtons(const DecisionBlock& thisDCB) {
  Run([&](Core& box) { box.SetupPlayButtons(thisDCB); });
}
void Decision::SetupPlayButtons(const Variant& thisDCB) {
  Run([&](Core& box) { box.SetupPlayButtons(thisDCB); });
}
void Decision::HereIsTheDCB(const DecisionBlock& thisDCB) {
  Run([&](Core& box) { box.HereIsTheDCB(thisDCB); });
}
void Decision::HereIsTheDCB(const Variant& thisDCB) {
  Run([&](Core& box) { box.HereIsTheDCB(thisDCB); });
}
void Decision::DecodeThisDCB(const DecisionBlock& thisDCB) {
  Run([&](Core& box) { box.DecodeThisDCB(thisDCB); });
}
void Decision::DecodeThisDCB(const Variant& thisDCB) {
  Run([&](Core& box) { box.DecodeThisDCB(thisDCB); });
}
void Decision::TheKelvoEditionIs(const Variant& theShortKelvoEdition) {
  Call(&Core::TheKelvoEditionIs, theShortKelvoEdition);
}

void Decision::CenterYourSelf() { Call(&Core::CenterYourSelf); }
void Decision::Show(std::int16_t& modalFlag) {
  Run([&](Core& box) { box.Show(modalFlag); });
}
void Decision::DecisionMade() { Call(&Core::DecisionMade); }
void Decision::HandleAdviceConsiderations() { Call(&Core::HandleAdviceConsiderations); }
void Decision::FlashObject(const ObjectRef& buttonToFlash) { Call(&Core::FlashObject, buttonToFlash); }
void Decision::BlinkTime(float timeAmount) { Call(&Core::BlinkTime, timeAmount); }
void Decision::DiddleThePromptShit() { Call(&Core::DiddleThePromptShit); }
void Decision::PredictTheHitCard(int predictionKeys) { Call(&Core::PredictTheHitCard, predictionKeys); }
void Decision::DisplayHitcardSetting(int shiftKeys) { Call(&Core::DisplayHitcardSetting, shiftKeys); }
void Decision::SetDescriptionBoxState(int buttonNumber, int shiftKeys, int leftPosition, const QString& buttonText) {
  Call(&Core::SetDescriptionBoxState, buttonNumber, shiftKeys, leftPosition, buttonText);
}
void Decision::ClearButtonDescriptionBox() { Call(&Core::ClearButtonDescriptionBox); }

}  // namespace tactix::qt
