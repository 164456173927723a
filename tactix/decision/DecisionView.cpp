// The design of the decision box: its widgets, menus and places.

#include <algorithm>

#include "tactix/decision/Decision.h"
#include "tactix/decision/private/DecisionPlays.h"

namespace tactix {

namespace {

// Twips.
constexpr float DesignWidth = 7500;
constexpr float DesignHeight = 2820;
constexpr float Margin = 60;
constexpr float PromptHeight = 360;
constexpr float StripHeight = 330;  // above the play buttons, for the description box
constexpr float LowerRowHeight = 840;
constexpr float DescriptionWidth = 1800;
constexpr float AdviceLeft = 256;
constexpr float AdviceWidth = 1416;
constexpr float PredictionsLeft = 3840;  // to the right of the largest advice button
constexpr float LeastPredictionWidth = 750;

}  // namespace

void Decision::BuildWidgets() {
  tactix::Extender& box = Extender();
  ChildWidgets& w = Children;
  box.DesignSize(DesignWidth, DesignHeight);
  box.Add(w.cmdOptions, "cmdOptions");
  box.Add(w.cmdTensRatio, "cmdTensRatio");
  box.Add(w.cmdHoleCard, "cmdHoleCard");
  box.Add(w.AdviceButton.Extender(), "AdviceButton");
  box.Add(w.lblUserControlCaption, "lblUserControlCaption");
  box.Add(w.ManualPlayButtons, "ManualPlayButtons");
  w.ManualPlayButtons.Add(w.HitButton, "HitButton");
  w.ManualPlayButtons.Add(w.StandButton, "StandButton");
  w.ManualPlayButtons.Add(w.SplitButton, "SplitButton");
  w.ManualPlayButtons.Add(w.DoubleButton, "DoubleButton");
  w.ManualPlayButtons.Add(w.SurrenderButton, "SurrenderButton");
  w.ManualPlayButtons.Add(w.picDecision, "picDecision");
  w.picDecision.Add(w.lblDecision, "lblDecision");

  w.HitButton.Caption("HIT");
  w.StandButton.Caption("Stand");
  w.SplitButton.Caption("SPLIT");
  w.DoubleButton.Caption("DOUBLE");
  w.SurrenderButton.Caption("Surrender");
  w.ManualPlayButtons.ToolTipText("H=Hit, S=Stand, P=Split, D=Double, G=Surrender");
  w.cmdHoleCard.Caption("&HoleCard");
  w.cmdTensRatio.Caption("&Tens-Ratio");
  w.cmdOptions.Caption("&Options");
  w.lblUserControlCaption.Caption("  Make Your Selection");
  w.lblUserControlCaption.ToolTipText("for Predictions: [Shift]=High, [Ctrl]=Low, [Alt]=Mid, [Ctrl+Shift]=Unknown");
  w.picDecision.Visible(false);
  w.AdviceButton.InitProperties();
  w.AdviceButton.Extender().Place(AdviceLeft, 0, AdviceWidth, LowerRowHeight);
  Arrange();
}

void Decision::BuildMenus() {
  ChildWidgets& w = Children;
  struct Entry {
    Menu& menu;
    MenuEntry& entry;
    Event<>* event;
  };
  const Entry entries[] = {
      {w.mnuHoleCard, w.mnuHolecardIsHigh, &Events.WholeCardHiPrediction},
      {w.mnuHoleCard, w.mnuHolecardSeparator1, nullptr},
      {w.mnuHoleCard, w.mnuHolecardIsLow, &Events.WholeCardLoPrediction},
      {w.mnuHoleCard, w.mnuHolecardSeparator2, nullptr},
      {w.mnuHoleCard, w.mnuHolecardIsNeutral, &Events.WholeCardNeutralPrediction},
      {w.mnuHoleCard, w.mnuHolecardSeparator3, nullptr},
      {w.mnuHoleCard, w.mnuHolecardIsUnknown, &Events.WholeCardUnknownPrediction},
      {w.mnuTensRatio, w.mnuTensRatioIsHigh, &Events.TensRatioHiPrediction},
      {w.mnuTensRatio, w.mnuTensRatioSeparator, nullptr},
      {w.mnuTensRatio, w.MnuTensRatioIsLow, &Events.TensRatioLoPrediction},
      {w.mnuOptions, w.mnuPrompts, nullptr},
      {w.mnuOptions, w.mnuPromptOn, nullptr},
      {w.mnuOptions, w.mnuPromptOff, nullptr},
      {w.mnuOptions, w.mnuOptionsSeparator, nullptr},
      {w.mnuOptions, w.mnuAdjustBet, nullptr},
      {w.mnuOptions, w.mnuBackupASeat, nullptr},
      {w.mnuOptions, w.mnuBurnACard, &Events.BurnACardRequested},
      {w.mnuOptions, w.mnuPlugClipBoard, &Events.PlugHandCardsInClipboard},
  };
  for (const Entry& row : entries) {
    row.menu.Add(row.entry);
    if (Event<>* event = row.event) row.entry.Chosen.Connect([event] { event->Raise(); });
  }
  // A heading, and two entries that have no function.
  w.mnuPrompts.Enabled(false);
  w.mnuAdjustBet.Enabled(false);
  w.mnuBackupASeat.Enabled(false);
  // Either entry switches the prompt state, whatever its caption says: meant.
  w.mnuPromptOn.Chosen.Connect([this] { DiddleThePromptShit(); });
  w.mnuPromptOff.Chosen.Connect([this] { DiddleThePromptShit(); });
  CheckThePrompt(promptState_);
}

void Decision::Arrange() {
  ChildWidgets& w = Children;
  const float width = std::max(Extender().ScaleWidth() - 2 * Margin, 0.0F);
  const float height = Extender().ScaleHeight();
  const float lowerTop = lowerRowShown_ ? height - LowerRowHeight - Margin : height;
  w.lblUserControlCaption.Place(Margin, Margin, width, PromptHeight);

  const float panelTop = Margin + PromptHeight + Margin;
  const float panelHeight = std::max(lowerTop - Margin - panelTop, 0.0F);
  w.ManualPlayButtons.Place(Margin, panelTop, width, panelHeight);
  const float buttonTop = Margin + StripHeight;
  const float buttonHeight = std::max(panelHeight - buttonTop - 2 * Margin, 0.0F);
  const auto count = static_cast<float>(std::size(DecisionPlays));
  const float buttonWidth = std::max((width - (count + 1) * Margin) / count, 0.0F);
  float left = Margin;
  for (const DecisionPlay& play : DecisionPlays) {
    (w.*play.button).Place(left, buttonTop, buttonWidth, buttonHeight);
    left += buttonWidth + Margin;
  }
  w.picDecision.Place(w.picDecision.Left(), Margin, DescriptionWidth, StripHeight - Margin / 2);
  w.lblDecision.Place(Margin / 2, 0, DescriptionWidth - Margin, StripHeight - Margin / 2);

  tactix::Extender& advice = w.AdviceButton.Extender();
  advice.Place(advice.Left(), lowerTop, advice.Width(), LowerRowHeight);
  const float right = Margin + width;
  left = std::max(std::min(PredictionsLeft, right - 3 * LeastPredictionWidth), Margin);
  const float predictionWidth = std::max((right - left - 2 * Margin) / 3, 0.0F);
  for (PushButton* button : {&w.cmdHoleCard, &w.cmdTensRatio, &w.cmdOptions}) {
    button->Place(left, lowerTop, predictionWidth, LowerRowHeight);
    left += predictionWidth + Margin;
  }
}

}  // namespace tactix
