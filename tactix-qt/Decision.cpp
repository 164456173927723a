#include "tactix-qt/Decision.h"

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

namespace {

struct SignalRow {
  Event<> tactix::Decision::EventSet::*event;
  void (Decision::*signal)();
};
using Events = tactix::Decision::EventSet;
constexpr SignalRow SignalRows[] = {
    {&Events::AdviceRequested, &Decision::AdviceRequested},
    {&Events::BurnACardRequested, &Decision::BurnACardRequested},
    {&Events::HitCardHiPrediction, &Decision::HitCardHiPrediction},
    {&Events::HitCardLoPrediction, &Decision::HitCardLoPrediction},
    {&Events::HitCardNeutralPrediction, &Decision::HitCardNeutralPrediction},
    {&Events::HitCardUnknownPrediction, &Decision::HitCardUnknownPrediction},
    {&Events::PlayerDoublesDown, &Decision::PlayerDoublesDown},
    {&Events::PlayerHits, &Decision::PlayerHits},
    {&Events::PlayerSplits, &Decision::PlayerSplits},
    {&Events::PlayerStands, &Decision::PlayerStands},
    {&Events::PlayerSurrenders, &Decision::PlayerSurrenders},
    {&Events::PlugHandCardsInClipboard, &Decision::PlugHandCardsInClipboard},
    {&Events::PlugPromptPlayHands, &Decision::PlugPromptPlayHands},
    {&Events::TensRatioHiPrediction, &Decision::TensRatioHiPrediction},
    {&Events::TensRatioLoPrediction, &Decision::TensRatioLoPrediction},
    {&Events::WholeCardHiPrediction, &Decision::WholeCardHiPrediction},
    {&Events::WholeCardLoPrediction, &Decision::WholeCardLoPrediction},
    {&Events::WholeCardNeutralPrediction, &Decision::WholeCardNeutralPrediction},
    {&Events::WholeCardUnknownPrediction, &Decision::WholeCardUnknownPrediction},
    {&Events::Show, &Decision::ShowRaised},
};

}  // namespace

Decision::Decision(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::Decision>(ItsSite());
  decision_ = control.get();
  Own(std::move(control));
  for (const SignalRow& row : SignalRows) {
    (decision_->Events.*row.event).Connect([this, signal = row.signal] { Q_EMIT(this->*signal)(); });
  }
  decision_->Events.EvaluationStrategySelected.Connect(
      [this](const Variant& strategy) { Q_EMIT EvaluationStrategySelected(strategy.ToLong()); });
}

Decision::~Decision() { EndControl(); }

Decision::AdviceButtonAppearance Decision::AllowAdvice() const {
  return static_cast<AdviceButtonAppearance>(decision_->AllowAdvice().Value());
}
void Decision::AllowAdvice(AdviceButtonAppearance appearance) {
  decision_->AllowAdvice(static_cast<std::int32_t>(appearance));
}
Decision::TypeOfDecisionBox Decision::DecisionBoxType() const {
  return static_cast<TypeOfDecisionBox>(decision_->DecisionBoxType().Value());
}
void Decision::DecisionBoxType(TypeOfDecisionBox type) { decision_->DecisionBoxType(static_cast<std::int32_t>(type)); }
int Decision::thisKelvoEdition() const { return decision_->thisKelvoEdition(); }
bool Decision::PromptThePlayButtons() const { return decision_->PromptThePlayButtons(); }
void Decision::PromptThePlayButtons(bool prompt) { decision_->PromptThePlayButtons(prompt); }
bool Decision::PlayButtonPromptStatus() const { return decision_->PlayButtonPromptStatus(); }
QString Decision::ToolTip() const { return ToQt(decision_->ToolTip()); }
void Decision::ToolTip(const QString& text) { decision_->ToolTip(FromQt(text)); }
QString Decision::Qualifier() const { return ToQt(decision_->Qualifier()); }
void Decision::Qualifier(const QString& ignored) { decision_->Qualifier(FromQt(ignored)); }
void Decision::GiveAdvice(int recommendedAdvice) { decision_->GiveAdvice(ToInt16(recommendedAdvice)); }
void Decision::ToolTipMessage(const QString& toolTipStrategy) { decision_->ToolTipMessage(FromQt(toolTipStrategy)); }

std::int16_t Decision::ConvertFromPixelsToTwipsX(const Variant& cValue) const {
  return decision_->ConvertFromPixelsToTwipsX(cValue);
}
std::int16_t Decision::ConvertFromPixelsToTwipsY(const Variant& cValue) const {
  return decision_->ConvertFromPixelsToTwipsY(cValue);
}
std::int16_t Decision::ConvertFromTwipsToPixelsX(const Variant& cValue) const {
  return decision_->ConvertFromTwipsToPixelsX(cValue);
}
std::int16_t Decision::ConvertFromTwipsToPixelsY(const Variant& cValue) const {
  return decision_->ConvertFromTwipsToPixelsY(cValue);
}

void Decision::SetupTheDecisionBox(const DecisionBlock& thisDCB) { decision_->SetupTheDecisionBox(thisDCB); }
void Decision::SetupTheDecisionBox(const Variant& thisDCB) { decision_->SetupTheDecisionBox(thisDCB); }
void Decision::SetupDecisionBox(const DecisionBlock& thisDCB, const ObjectRef& userKelvoEdition) {
  decision_->SetupDecisionBox(thisDCB, userKelvoEdition);
}
void Decision::SetupDecisionBox(const Variant& thisDCB, const ObjectRef& userKelvoEdition) {
  decision_->SetupDecisionBox(thisDCB, userKelvoEdition);
}
void Decision::SetupPlayButtons(const DecisionBlock& thisDCB) { decision_->SetupPlayButtons(thisDCB); }
void Decision::SetupPlayButtons(const Variant& thisDCB) { decision_->SetupPlayButtons(thisDCB); }
void Decision::HereIsTheDCB(const DecisionBlock& thisDCB) { decision_->HereIsTheDCB(thisDCB); }
void Decision::HereIsTheDCB(const Variant& thisDCB) { decision_->HereIsTheDCB(thisDCB); }
void Decision::DecodeThisDCB(const DecisionBlock& thisDCB) { decision_->DecodeThisDCB(thisDCB); }
void Decision::DecodeThisDCB(const Variant& thisDCB) { decision_->DecodeThisDCB(thisDCB); }
void Decision::TheKelvoEditionIs(const Variant& theShortKelvoEdition) {
  decision_->TheKelvoEditionIs(theShortKelvoEdition);
}
void Decision::CenterYourSelf() { decision_->CenterYourSelf(); }
void Decision::Show(std::int16_t& modalFlag) { decision_->Show(modalFlag); }
void Decision::DecisionMade() { decision_->DecisionMade(); }
void Decision::HandleAdviceConsiderations() { decision_->HandleAdviceConsiderations(); }
void Decision::FlashObject(const ObjectRef& buttonToFlash) { decision_->FlashObject(buttonToFlash); }
void Decision::BlinkTime(float timeAmount) { decision_->BlinkTime(timeAmount); }
void Decision::DiddleThePromptShit() { decision_->DiddleThePromptShit(); }
void Decision::PredictTheHitCard(int predictionKeys) { decision_->PredictTheHitCard(ToInt16(predictionKeys)); }
void Decision::DisplayHitcardSetting(int shiftKeys) { decision_->DisplayHitcardSetting(ToInt16(shiftKeys)); }
void Decision::SetDescriptionBoxState(int buttonNumber, int shiftKeys, int leftPosition, const QString& buttonText) {
  decision_->SetDescriptionBoxState(ToInt16(buttonNumber), ToInt16(shiftKeys), ToInt16(leftPosition),
                                    FromQt(buttonText));
}
void Decision::ClearButtonDescriptionBox() { decision_->ClearButtonDescriptionBox(); }

}  // namespace tactix::qt
