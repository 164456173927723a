#include "tactix/scoring/DecisionRegiLOG.h"

#include <algorithm>
#include <string_view>
#include "tactix/scoring/private/RegisterMembers.h"

namespace tactix {

namespace {

// Twips. High enough for the register in its higher, after-advice form and the line of feedback under it.
constexpr float DesignHeight = 2280;
constexpr float SizeOfFont = 12;

struct Feedback {
  AfterAdvicePossibilities verdict;
  std::string_view text;
};
constexpr Feedback Feedbacks[] = {
    {AfterAdvicePossibilities::afterYouShouldaHit, "You Shoulda Hit"},
    {AfterAdvicePossibilities::afterYouShouldaStood, "You Shoulda Stood"},
    {AfterAdvicePossibilities::afterYouShouldaSplit, "You Shoulda Split"},
    {AfterAdvicePossibilities::afterYouShouldaDoubled, "You Shoulda Doubled"},
    {AfterAdvicePossibilities::afterYouShouldaSurrendered, "You Shoulda Surrendered"},
    {AfterAdvicePossibilities::afterYourPlayWasCorrect, "--- Correct! ---"},
};

std::string_view FeedbackOn(Coded<AfterAdvicePossibilities> verdict) {
  for (const Feedback& feedback : Feedbacks) {
    if (verdict == feedback.verdict) return feedback.text;
  }
  return "???";
}

}  // namespace

DecisionRegiLOG::DecisionRegiLOG(Site& site) : Control(site), innerSite_(site), Children(innerSite_) {
  tactix::Extender& inner = Children.DecisionRegister.Extender();
  Extender().DesignSize(inner.Width(), DesignHeight);
  Extender().Add(inner, "DecisionRegister");
  Label& line = Children.labelTheShouldRecommendation;
  Extender().Add(line, "labelTheShouldRecommendation");
  line.Caption("What Ya' Shoulda Done!...");
  line.Font({"Comic Sans MS", SizeOfFont, true});
  line.Alignment(TextAlignment::Center);
  Children.DecisionRegister.InitProperties();
  Arrange();
}

DecisionRegiLOG::~DecisionRegiLOG() { MarkAsGone(); }

void DecisionRegiLOG::AfterAdvice(Coded<AfterAdvicePossibilities> verdict) {
  Children.DecisionRegister.AfterAdvice(verdict);
  Children.labelTheShouldRecommendation.Caption(FeedbackOn(verdict));
  Children.labelTheShouldRecommendation.Visible(true);
}

void DecisionRegiLOG::DisplayTheDrillResults(std::int16_t theNumberOfDecisions,
                                             std::int16_t theNumberOfCorrectDecisions) {
  Children.DecisionRegister.DisplayTheDrillResults(theNumberOfDecisions, theNumberOfCorrectDecisions);
}

void DecisionRegiLOG::ResetDecisionData() { Children.DecisionRegister.ResetDecisionData(); }

void DecisionRegiLOG::SetupStatisticsBox(bool breakDecisions) {
  Children.DecisionRegister.SetupStatisticsBox(breakDecisions);
}

void DecisionRegiLOG::Arrange() {
  tactix::Extender& inner = Children.DecisionRegister.Extender();
  const float width = Extender().ScaleWidth();
  inner.Place(0, 0, width, inner.Height());
  Children.labelTheShouldRecommendation.Place(0, inner.Height(), width,
                                              std::max(Extender().ScaleHeight() - inner.Height(), 0.0F));
}

void DecisionRegiLOG::ReadProperties(PropertyBag&) {
  TypeOfDecisionRegister(DecisionRegisterType::StandardDecisionRegister);
}

void DecisionRegiLOG::Displayed() {
  const Weak<DecisionRegiLOG> self(this);
  Control::Displayed();
  // The register may have another height now.
  if (self) Arrange();
}

void DecisionRegiLOG::Resized() { Arrange(); }

const PropertyTable& DecisionRegiLOG::Properties() const {
  static const PropertyTable table = RegisterProperties<DecisionRegiLOG>();
  return table;
}

const MethodTable& DecisionRegiLOG::Methods() const {
  static const MethodTable table = RegisterMethods<DecisionRegiLOG>();
  return table;
}

}  // namespace tactix
