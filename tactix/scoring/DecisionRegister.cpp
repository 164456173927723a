#include "tactix/scoring/DecisionRegister.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "tactix/platform/NumberText.h"
#include "tactix/scoring/private/RegisterMembers.h"
#include "tactix/shared/Plays.h"

namespace tactix {

namespace {

using Widgets = DecisionRegister::ChildWidgets;

// Twips.
constexpr float DesignWidth = 3600;
constexpr float StandardHeight = 1420;
constexpr float AfterAdviceHeight = 1800;
constexpr float Margin = 120;
constexpr float CaptionWidth = 1290;
constexpr float CaptionHeight = 390;
constexpr float ValueLeft = Margin + CaptionWidth + 60;
constexpr float ValueHeight = 280;  // its top lies about 55 lower than its caption's, so both are centred on one line
constexpr float BreaksTop = 890;
constexpr float BreakPercentTop = 950;
constexpr float VerdictTop = StandardHeight;  // below the standard form's edge: only the higher form shows it
constexpr float VerdictHeight = 300;
constexpr float VerdictCaptionWidth = 1740;
constexpr float VerdictLeft = Margin + VerdictCaptionWidth + 60;

constexpr float SizeOfCaptions = 12;
constexpr float SizeOfValues = 9.75F;

/// The tops of the two lines that move up when the line of breaks is shown.
struct Arrangement {
  float decisions;
  float numberOfDecisions;
  float correct;
  float numberOfCorrect;
};
constexpr Arrangement WithBreaks = {110, 165, 500, 560};
constexpr Arrangement WithoutBreaks = {195, 250, 700, 760};

constexpr std::string_view NoVerdict = "______";

struct CountLine {
  Label Widgets::*caption;
  std::string_view captionName;
  std::string_view text;
  std::string_view toolTip;
  float captionTop;
  Label Widgets::*value;
  std::string_view valueName;
  float valueTop;
};
constexpr CountLine CountLines[] = {
    {&Widgets::lblCorrectDecisions, "lblCorrectDecisions", "Correct:", "% of Correct Decisions Made",
     WithoutBreaks.correct, &Widgets::theNumberOfCorrectDecisions, "theNumberOfCorrectDecisions",
     WithoutBreaks.numberOfCorrect},
    {&Widgets::lblDecisions, "lblDecisions", "Decisions:", "# of play Decisions Made", WithoutBreaks.decisions,
     &Widgets::theNumberOfDecisions, "theNumberOfDecisions", WithoutBreaks.numberOfDecisions},
    {&Widgets::lblBreakDecisions, "lblBreakDecisions", "Breaks:", "", BreaksTop, &Widgets::lblBreakPercent,
     "lblBreakPercent", BreakPercentTop},
};

}  // namespace

DecisionRegister::DecisionRegister(Site& site) : Control(site) { BuildWidgets(); }

DecisionRegister::~DecisionRegister() { MarkAsGone(); }

void DecisionRegister::BuildWidgets() {
  Extender().DesignSize(DesignWidth, StandardHeight);
  Panel& panel = Children.panelDecisionRegister;
  Extender().Add(panel, "panelDecisionRegister");
  for (const CountLine& line : CountLines) {
    Label& caption = Children.*line.caption;
    panel.Add(caption, line.captionName);
    caption.Caption(line.text);
    caption.ToolTipText(line.toolTip);
    caption.Font({"Comic Sans MS", SizeOfCaptions});
    caption.Place(Margin, line.captionTop, CaptionWidth, CaptionHeight);
    Label& value = Children.*line.value;
    panel.Add(value, line.valueName);
    value.Heading(line.text);
    value.Font({"MS Sans Serif", SizeOfValues, true});
    value.Place(ValueLeft, line.valueTop, 0, ValueHeight);
  }
  Children.lblBreakPercent.Caption("22.8%");
  Children.lblBreakDecisions.Visible(false);
  Children.lblBreakPercent.Visible(false);

  auto& [caption, verdict] = Children.labelAfterAdvice;
  panel.Add(caption, "labelAfterAdvice1");
  panel.Add(verdict, "labelAfterAdvice2");
  caption.Caption("Correct Desicion:");
  verdict.Caption(NoVerdict);
  verdict.Heading(caption.Caption());
  for (Label* label : {&caption, &verdict}) {
    label->ToolTipText("What the correction decision is");
    label->Font({"Comic Sans MS", SizeOfValues, label == &verdict});
  }
  caption.Place(Margin, VerdictTop, VerdictCaptionWidth, VerdictHeight);
  verdict.Place(VerdictLeft, VerdictTop, 0, VerdictHeight);
  Resized();
}

void DecisionRegister::Resized() {
  const float width = Extender().ScaleWidth();
  Children.panelDecisionRegister.Place(0, 0, width, Extender().ScaleHeight());
  const auto reachTheEdge = [width](Label& label) { label.Width(std::max(width - Margin - label.Left(), 0.0F)); };
  for (const CountLine& line : CountLines) reachTheEdge(Children.*line.value);
  reachTheEdge(Children.labelAfterAdvice[1]);
}

void DecisionRegister::AfterAdvice(Coded<AfterAdvicePossibilities> verdict) {
  // A verdict that names a play has that play's code.
  const Play* const play = FindPlay(Coded<AdvicePossibilities>(verdict.Value()));
  Label& label = Children.labelAfterAdvice[1];
  label.Caption(play ? play->shortName : NoVerdict);
  label.Visible(true);
}

void DecisionRegister::DisplayTheDrillResults(std::int16_t theNumberOfDecisions,
                                              std::int16_t theNumberOfCorrectDecisions) {
  numberOfCorrectDecisions_ = theNumberOfCorrectDecisions;
  numberOfDecisions_ = theNumberOfDecisions;
  Touched();
  ShowTheCounts();
}

void DecisionRegister::ResetDecisionData() { DisplayTheDrillResults(0, 0); }

void DecisionRegister::ShowTheCounts() {
  float percentage = 0;
  if (numberOfDecisions_ != 0) {
    percentage = static_cast<float>(static_cast<double>(numberOfCorrectDecisions_) / numberOfDecisions_);
  }
  Children.theNumberOfDecisions.Caption(FormatNumber(numberOfDecisions_, "#,###"));
  Children.theNumberOfCorrectDecisions.Caption(FormatNumber(numberOfCorrectDecisions_, "#,###") + " - (" +
                                               FormatNumber(percentage, "##.0%") + ")");
}

void DecisionRegister::SetupStatisticsBox(bool breakDecisions) {
  const Arrangement& tops = breakDecisions ? WithBreaks : WithoutBreaks;
  Children.lblDecisions.Top(tops.decisions);
  Children.theNumberOfDecisions.Top(tops.numberOfDecisions);
  Children.lblCorrectDecisions.Top(tops.correct);
  Children.theNumberOfCorrectDecisions.Top(tops.numberOfCorrect);
  Children.lblBreakPercent.Visible(breakDecisions);
  Children.lblBreakDecisions.Visible(breakDecisions);
}

void DecisionRegister::HeightInTwips(float height) {
  // Half to even.
  Extender().Height(std::nearbyint(height / Extender().TwipsPerUnit()));
}

void DecisionRegister::FitTheRegisterToItsType() {
  if (typeOfDecisionRegister_ == DecisionRegisterType::StandardDecisionRegister) {
    HeightInTwips(StandardHeight);
  } else if (typeOfDecisionRegister_ == DecisionRegisterType::AfterAdviceDecisionRegister) {
    const Weak<DecisionRegister> self(this);
    HeightInTwips(AfterAdviceHeight);
    if (self) AfterAdvice(AfterAdvicePossibilities::afterNoAdvice);
  }
}

void DecisionRegister::ReadProperties(PropertyBag&) {
  TypeOfDecisionRegister(DecisionRegisterType::StandardDecisionRegister);
}

void DecisionRegister::Displayed() {
  const Weak<DecisionRegister> self(this);
  FitTheRegisterToItsType();
  if (self) ShowTheCounts();
}

const PropertyTable& DecisionRegister::Properties() const {
  static const PropertyTable table = RegisterProperties<DecisionRegister>();
  return table;
}

const MethodTable& DecisionRegister::Methods() const {
  static const MethodTable table = RegisterMethods<DecisionRegister>();
  return table;
}

}  // namespace tactix
