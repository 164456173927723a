// The room "decision" in the catalogue.

#include "tactix/decision/Decision.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

namespace {

void OpenTheList(HeadlessSite& site, AdviceButton& button) {
  site.ScriptMenu([&button](Menu&) { button.Children.mnuSelectStrategy.Choose(); });
  button.Children.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
}

void PickAStrategy(AdviceButton& button) {
  button.Children.StrategyListBox.AddItem("row");
  button.Children.StrategyListBox.Extender().Visible(true);
  button.Children.StrategyListBox.Children.StrategyListBox.PickRow(0);
}

Raiser PlayRaiser(std::string event, PushButton Decision::ChildWidgets::*button) {
  return {std::move(event),
          [button](HeadlessSite&, Control& control) { (static_cast<Decision&>(control).Children.*button).Click(); }};
}

Raiser PredictionRaiser(std::string event, std::int16_t shift) {
  return {std::move(event), [shift](HeadlessSite&, Control& control) {
            static_cast<Decision&>(control).Children.HitButton.MouseDown({LeftButton, shift, 0, 0});
          }};
}

Raiser MenuRaiser(std::string event, PushButton Decision::ChildWidgets::*button,
                  MenuEntry Decision::ChildWidgets::*entry) {
  return {std::move(event), [button, entry](HeadlessSite& site, Control& control) {
            auto& box = static_cast<Decision&>(control);
            box.DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
            box.SetupTheDecisionBox([] {
              DecisionBlock block;
              block.PlayingLogEnabled(true);
              return block;
            }());
            site.ScriptMenu([chosen = &(box.Children.*entry)](Menu&) { chosen->Choose(); });
            (box.Children.*button).Click();
          }};
}

}  // namespace

CatalogueEntry AdviceButtonEntry() {
  CatalogueEntry entry = EntryOf<AdviceButton>("AdviceButton");
  entry.properties = {
      {"Caption", "&Ask Kelvo for Advice", "&Help"},
      {"DEFAULT", false, true},
      {"Enabled", false, true},
      {"WhichStrategyToUse", 0, 12},
  };
  entry.raisers = {
      RaiserOf<AdviceButton>("Click",
                             [](HeadlessSite&, AdviceButton& button) { button.Children.cmdAdviceButton.Click(); }),
      RaiserOf<AdviceButton>("AdviceStrategySelected",
                             [](HeadlessSite&, AdviceButton& button) { PickAStrategy(button); }),
      RaiserOf<AdviceButton>("StrategyListBoxVisibilityChanged",
                             [](HeadlessSite& site, AdviceButton& button) { OpenTheList(site, button); }),
  };
  entry.neverRaised = {"AdviceRecommendation"};
  return entry;
}

CatalogueEntry DecisionEntry() {
  using Widgets = Decision::ChildWidgets;
  CatalogueEntry entry = EntryOf<Decision>("Decision");
  entry.properties = {
      {"AllowAdvice", 0, 2},
      {"DecisionBoxType", 0, 1},
      {"thisKelvoEdition", 0, {}},
      {"GiveAdvice", {}, 3},
      {"PromptThePlayButtons", false, true, Saved::No, false},  // what is written goes to the copied block
      {"PlayButtonPromptStatus", false, {}},
      {"ToolTip", "", "a tip"},
      {"ToolTipMessage", {}, "Basic"},
      {"Qualifier", "07-08-2001 - 21:00", "now", Saved::No, "07-08-2001 - 21:00"},
  };
  entry.raisers = {
      RaiserOf<Decision>("AdviceRequested",
                         [](HeadlessSite&, Decision& box) {
                           box.DecisionBoxType(1);
                           box.GiveAdvice(1);
                           box.Children.AdviceButton.Children.cmdAdviceButton.Click();
                         }),
      MenuRaiser("BurnACardRequested", &Widgets::cmdOptions, &Widgets::mnuBurnACard),
      RaiserOf<Decision>("EvaluationStrategySelected",
                         [](HeadlessSite&, Decision& box) {
                           box.DecisionBoxType(1);
                           PickAStrategy(box.Children.AdviceButton);
                         }),
      PredictionRaiser("HitCardHiPrediction", ShiftKey),
      PredictionRaiser("HitCardLoPrediction", CtrlKey),
      PredictionRaiser("HitCardNeutralPrediction", AltKey),
      PredictionRaiser("HitCardUnknownPrediction", CtrlKey + ShiftKey),
      PlayRaiser("PlayerDoublesDown", &Widgets::DoubleButton),
      PlayRaiser("PlayerHits", &Widgets::HitButton),
      PlayRaiser("PlayerSplits", &Widgets::SplitButton),
      PlayRaiser("PlayerStands", &Widgets::StandButton),
      PlayRaiser("PlayerSurrenders", &Widgets::SurrenderButton),
      RaiserOf<Decision>("PlayerHits",
                         [](HeadlessSite& site, Decision& box) {
                           box.Children.ManualPlayButtons.SetFocus();
                           site.PressKey({'h', 0});
                         }),
      MenuRaiser("PlugHandCardsInClipboard", &Widgets::cmdOptions, &Widgets::mnuPlugClipBoard),
      MenuRaiser("TensRatioHiPrediction", &Widgets::cmdTensRatio, &Widgets::mnuTensRatioIsHigh),
      MenuRaiser("TensRatioLoPrediction", &Widgets::cmdTensRatio, &Widgets::MnuTensRatioIsLow),
      MenuRaiser("WholeCardHiPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsHigh),
      MenuRaiser("WholeCardLoPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsLow),
      MenuRaiser("WholeCardNeutralPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsNeutral),
      MenuRaiser("WholeCardUnknownPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsUnknown),
  };
  entry.neverRaised = {"PlugPromptPlayHands", "Show"};
  return entry;
}

}  // namespace tactix::tests
