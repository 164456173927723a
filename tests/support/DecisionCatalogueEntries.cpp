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

void ChooseToBlinkAlways(CallOutHost& host, AdviceButton& button) {
  host.Site().ScriptMenu([&host, &button](Menu&) {
    const Weak<AdviceButton> self(button);
    host.Calls.Happen(CallOut::PopUp);
    if (self) button.Children.mnuButtonBlink[2].Choose();
  });
  button.Children.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
}

DecisionBlock RestrictedBlock() {
  DecisionBlock block;
  block.ManualPlayerRestrictions(true);
  return block;
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
            const Weak<Decision> self(box);
            box.DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
            if (!self) return;
            box.SetupTheDecisionBox([] {
              DecisionBlock block;
              block.PlayingLogEnabled(true);
              return block;
            }());
            if (!self) return;
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
  using Button = AdviceButton;
  entry.drives = {
      DriveOf<Button>("AdviceStrategyList",
                      [](CallOutHost& host, Button& button) { button.AdviceStrategyList(host.Collection()); }),
      DriveOf<Button>("RefillStrategyList", [](CallOutHost&, Button& button) { button.RefillStrategyList(); }),
      DriveOf<Button>("PreselectStrategy", [](CallOutHost&, Button& button) { button.PreselectStrategy(0); }),
      DriveOf<Button>("BlinkIfNecessary",
                      [](CallOutHost& host, Button& button) {
                        const Weak<Button> self(button);
                        ChooseToBlinkAlways(host, button);
                        if (self) button.BlinkIfNecessary();
                      }),
      DriveOf<Button>("focus that makes it blink",
                      [](CallOutHost& host, Button& button) {
                        const Weak<Button> self(button);
                        ChooseToBlinkAlways(host, button);
                        if (self) host.Site().HeadlessSite::SetFocus(nullptr);
                        if (self) button.Children.cmdAdviceButton.SetFocus();
                      }),
      DriveOf<Button>("BlinkTime", [](CallOutHost&, Button& button) { button.BlinkTime(0.1F); }),
      DriveOf<Button>("FlashObject",
                      [](CallOutHost& host, Button& button) { button.FlashObject(host.FlashedObject()); }),
      DriveOf<Button>("pick with the focus",
                      [](CallOutHost&, Button& button) {
                        const Weak<Button> self(button);
                        button.Children.StrategyListBox.AddItem("row", 0);
                        button.Children.StrategyListBox.Extender().Visible(true);
                        button.Children.StrategyListBox.Children.StrategyListBox.SetFocus();
                        if (self) button.Children.StrategyListBox.Children.StrategyListBox.PickRow(0);
                      }),
  };
  entry.callsOut = {CallOut::Event,         CallOut::Wait,      CallOut::PopUp,
                    CallOut::Focus,         CallOut::Catalogue, CallOut::Collection,
                    CallOut::FlashedObject, CallOut::Factory,   CallOut::ObjectEnds};
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
                           const Weak<Decision> self(box);
                           box.DecisionBoxType(1);
                           if (!self) return;
                           box.GiveAdvice(1);
                           box.Children.AdviceButton.Children.cmdAdviceButton.Click();
                         }),
      MenuRaiser("BurnACardRequested", &Widgets::cmdOptions, &Widgets::mnuBurnACard),
      RaiserOf<Decision>("EvaluationStrategySelected",
                         [](HeadlessSite&, Decision& box) {
                           const Weak<Decision> self(box);
                           box.DecisionBoxType(1);
                           if (self) PickAStrategy(box.Children.AdviceButton);
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
                           const Weak<Decision> self(box);
                           box.Children.ManualPlayButtons.SetFocus();
                           if (self) site.PressKey({'h', 0});
                         }),
      MenuRaiser("PlugHandCardsInClipboard", &Widgets::cmdOptions, &Widgets::mnuPlugClipBoard),
      MenuRaiser("TensRatioHiPrediction", &Widgets::cmdTensRatio, &Widgets::mnuTensRatioIsHigh),
      MenuRaiser("TensRatioLoPrediction", &Widgets::cmdTensRatio, &Widgets::MnuTensRatioIsLow),
      MenuRaiser("WholeCardHiPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsHigh),
      MenuRaiser("WholeCardLoPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsLow),
      MenuRaiser("WholeCardNeutralPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsNeutral),
      MenuRaiser("WholeCardUnknownPrediction", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsUnknown),
  };
  using Box = Decision;
  entry.drives = {
      DriveOf<Box>("SetupTheDecisionBox",
                   [](CallOutHost& host, Box& box) { box.SetupTheDecisionBox(host.DecisionBlock()); }),
      DriveOf<Box>("SetupDecisionBox",
                   [](CallOutHost& host, Box& box) { box.SetupDecisionBox(host.DecisionBlock(), host.Edition()); }),
      DriveOf<Box>("SetupDecisionBox with the library's block",
                   [](CallOutHost& host, Box& box) { box.SetupDecisionBox(DecisionBlock(), host.Edition()); }),
      DriveOf<Box>("SetupPlayButtons", [](CallOutHost& host, Box& box) { box.SetupPlayButtons(host.DecisionBlock()); }),
      DriveOf<Box>("SetupPlayButtons, hiding the focus",
                   [](CallOutHost&, Box& box) {
                     const Weak<Box> self(box);
                     box.SetupPlayButtons(DecisionBlock());
                     box.Children.SplitButton.SetFocus();
                     if (self) box.SetupPlayButtons(RestrictedBlock());
                   }),
      DriveOf<Box>("HereIsTheDCB", [](CallOutHost& host, Box& box) { box.HereIsTheDCB(host.DecisionBlock()); }),
      DriveOf<Box>("DecodeThisDCB", [](CallOutHost& host, Box& box) { box.DecodeThisDCB(host.DecisionBlock()); }),
      DriveOf<Box>("TheKelvoEditionIs",
                   [](CallOutHost& host, Box& box) { box.TheKelvoEditionIs(Variant(host.Edition())); }),
      DriveOf<Box>("CenterYourSelf", [](CallOutHost&, Box& box) { box.CenterYourSelf(); }),
      DriveOf<Box>("Show",
                   [](CallOutHost& host, Box& box) {
                     const Weak<Box> self(box);
                     std::int16_t modalFlag = 0;
                     box.SetupDecisionBox(DecisionBlock(), host.Edition());
                     if (self) box.Show(modalFlag);
                   }),
      DriveOf<Box>("ConvertFromPixelsToTwipsX", [](CallOutHost&, Box& box) { box.ConvertFromPixelsToTwipsX(1); }),
      DriveOf<Box>("ConvertFromPixelsToTwipsY", [](CallOutHost&, Box& box) { box.ConvertFromPixelsToTwipsY(1); }),
      DriveOf<Box>("ConvertFromTwipsToPixelsX", [](CallOutHost&, Box& box) { box.ConvertFromTwipsToPixelsX(1); }),
      DriveOf<Box>("ConvertFromTwipsToPixelsY", [](CallOutHost&, Box& box) { box.ConvertFromTwipsToPixelsY(1); }),
      DriveOf<Box>("DecisionMade", [](CallOutHost&, Box& box) { box.DecisionMade(); }),
      DriveOf<Box>("HandleAdviceConsiderations",
                   [](CallOutHost& host, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) ChooseToBlinkAlways(host, box.Children.AdviceButton);
                     if (self) box.HandleAdviceConsiderations();
                   }),
      DriveOf<Box>("FlashObject", [](CallOutHost& host, Box& box) { box.FlashObject(host.FlashedObject()); }),
      DriveOf<Box>("BlinkTime", [](CallOutHost&, Box& box) { box.BlinkTime(0.1F); }),
      DriveOf<Box>("DiddleThePromptShit", [](CallOutHost&, Box& box) { box.DiddleThePromptShit(); }),
      DriveOf<Box>("PredictTheHitCard", [](CallOutHost&, Box& box) { box.PredictTheHitCard(ShiftKey); }),
      DriveOf<Box>("DisplayHitcardSetting", [](CallOutHost&, Box& box) { box.DisplayHitcardSetting(ShiftKey); }),
      DriveOf<Box>("SetDescriptionBoxState",
                   [](CallOutHost&, Box& box) { box.SetDescriptionBoxState(1, ShiftKey, 60, "HIT"); }),
      DriveOf<Box>("ClearButtonDescriptionBox", [](CallOutHost&, Box& box) { box.ClearButtonDescriptionBox(); }),
      DriveOf<Box>("DecisionBoxType, hiding the focus",
                   [](CallOutHost&, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) box.Children.cmdHoleCard.SetFocus();
                     if (self) box.DecisionBoxType(0);
                   }),
      DriveOf<Box>("DecisionBoxType, hiding the focus of the advice button",
                   [](CallOutHost&, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) box.Children.AdviceButton.Children.cmdAdviceButton.SetFocus();
                     if (self) box.DecisionBoxType(0);
                   }),
      DriveOf<Box>("DecisionBoxType, disabling the focus",
                   [](CallOutHost&, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) box.SetupTheDecisionBox(DecisionBlock());
                     if (self) box.Children.cmdOptions.SetFocus();
                     if (self) box.DecisionBoxType(1);
                   }),
      DriveOf<Box>("mouse over a play button",
                   [](CallOutHost&, Box& box) {
                     if (!box.PromptThePlayButtons()) box.DiddleThePromptShit();
                     box.Children.HitButton.MouseMove({0, 0, 0, 0});
                   }),
      DriveOf<Box>("from one menu to the other",
                   [](CallOutHost& host, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) box.SetupTheDecisionBox(DecisionBlock());
                     if (!self) return;
                     host.Site().ScriptMenu([&host, self](Menu&) {
                       host.Calls.Happen(CallOut::PopUp);
                       if (self) self->Children.cmdOptions.MouseMove({0, 0, 0, 0});
                     });
                     box.Children.cmdHoleCard.Click();
                   }),
      DriveOf<Box>("&Select Strategy",
                   [](CallOutHost& host, Box& box) {
                     const Weak<Box> self(box);
                     box.DecisionBoxType(1);
                     if (self) OpenTheList(host.Site(), box.Children.AdviceButton);
                   }),
  };
  entry.callsOut = {CallOut::Event,     CallOut::Wait,      CallOut::PopUp,         CallOut::Focus,
                    CallOut::Catalogue, CallOut::Edition,   CallOut::DecisionBlock, CallOut::FlashedObject,
                    CallOut::Factory,   CallOut::ObjectEnds};
  entry.neverRaised = {"PlugPromptPlayHands", "Show"};
  return entry;
}

}  // namespace tactix::tests
