// The decision toolbars and the legend in the catalogue.

#include "tactix/decision/DecisionBAR.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tactix/decision/HitStandLegend.h"
#include "tests/support/Catalogue.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {

namespace {

template <class Bar>
Raiser ButtonRaiser(std::string event, std::string key) {
  return {std::move(event), [key = std::move(key)](HeadlessSite&, Control& control) {
            static_cast<Bar&>(control).Children.DecisionToolBar.Button(key).Click();
          }};
}

template <class Bar>
std::vector<Drive> BarDrives() {
  return {
      DriveOf<Bar>("SetupTheDecisionBAR",
                   [](CallOutHost& host, Bar& bar) { bar.SetupTheDecisionBAR(host.DecisionBlock()); }),
      DriveOf<Bar>("SetupTheDecisionBAR without an edition",
                   [](CallOutHost& host, Bar& bar) {
                     const Weak<Bar> self(bar);
                     bar.KelvoEdition(nullptr);
                     if (self) bar.SetupTheDecisionBAR(host.DecisionBlock());
                   }),
      DriveOf<Bar>("SetupDecisionBAR",
                   [](CallOutHost& host, Bar& bar) { bar.SetupDecisionBAR(host.DecisionBlock(), host.Edition()); }),
      DriveOf<Bar>("SetupDecisionBAR with the library's block",
                   [](CallOutHost& host, Bar& bar) { bar.SetupDecisionBAR(DecisionBlock(), host.Edition()); }),
      DriveOf<Bar>("SetupPlayButtons", [](CallOutHost& host, Bar& bar) { bar.SetupPlayButtons(host.DecisionBlock()); }),
      DriveOf<Bar>("HereIsTheDCB", [](CallOutHost& host, Bar& bar) { bar.HereIsTheDCB(host.DecisionBlock()); }),
      DriveOf<Bar>("DecodeThisDCB", [](CallOutHost& host, Bar& bar) { bar.DecodeThisDCB(host.DecisionBlock()); }),
      DriveOf<Bar>("KelvoEdition", [](CallOutHost& host, Bar& bar) { bar.KelvoEdition(host.Edition()); }),
      DriveOf<Bar>("KelvoEdition where there is none",
                   [](CallOutHost&, Bar& bar) {
                     const Weak<Bar> self(bar);
                     bar.KelvoEdition(nullptr);
                     if (self) bar.KelvoEdition();
                   }),
      DriveOf<Bar>("TheKelvoEditionIs", [](CallOutHost& host, Bar& bar) { bar.TheKelvoEditionIs(host.Edition()); }),
      DriveOf<Bar>("PlugHitcardButtons", [](CallOutHost&, Bar& bar) { bar.PlugHitcardButtons(0); }),
      DriveOf<Bar>("PlugHoleCardButtons", [](CallOutHost&, Bar& bar) { bar.PlugHoleCardButtons(0); }),
      DriveOf<Bar>("PlugTensRatioButtons", [](CallOutHost&, Bar& bar) { bar.PlugTensRatioButtons(0); }),
      DriveOf<Bar>("PlugDealerStrengthButtons", [](CallOutHost&, Bar& bar) { bar.PlugDealerStrengthButtons(0); }),
      DriveOf<Bar>("PlugStatusButton", [](CallOutHost&, Bar& bar) { bar.PlugStatusButton(0); }),
      DriveOf<Bar>("GetReadyForADecision",
                   [](CallOutHost&, Bar& bar) {
                     bar.ResetPredictionButtons(true);
                     bar.GetReadyForADecision();
                   }),
      DriveOf<Bar>("ResetYourResponseData", [](CallOutHost&, Bar& bar) { bar.ResetYourResponseData(); }),
      DriveOf<Bar>("GiveMeYourResponseData", [](CallOutHost&, Bar& bar) { bar.GiveMeYourResponseData(); }),
      DriveOf<Bar>("FlashObject", [](CallOutHost& host, Bar& bar) { bar.FlashObject(host.FlashedObject()); }),
      DriveOf<Bar>("BlinkTime", [](CallOutHost&, Bar& bar) { bar.BlinkTime(0.1F); }),
      DriveOf<Bar>("click of Advice",
                   [](CallOutHost&, Bar& bar) {
                     const Weak<Bar> self(bar);
                     DecisionBlock block;
                     block.StrategyAdvice(2);
                     bar.SetupDecisionBAR(block, bar.KelvoEdition());
                     if (self) bar.Children.DecisionToolBar.Button("Advice").Click();
                   }),
      DriveOf<Bar>("click of a prediction",
                   [](CallOutHost&, Bar& bar) { bar.Children.DecisionToolBar.Buttons().back()->Click(); }),
  };
}

template <class Bar>
CatalogueEntry BarEntry(std::string name) {
  CatalogueEntry entry = EntryOf<Bar>(std::move(name));
  // With an edition from the start, so that reading it needs nobody who makes one.
  const ObjectRef edition = std::make_shared<PropertyObject>();
  entry.make = [edition](Site& site) {
    auto bar = std::make_unique<Bar>(site);
    bar->KelvoEdition(edition);
    return bar;
  };
  entry.properties = {
      {"Alignment", 2, 1, Saved::Yes, std::nullopt, std::nullopt, 2},
      {"HitcardButtonsVisibility", 0, -1, Saved::Yes},
      {"HolecardButtonsVisibility", 0, 5, Saved::Yes, std::nullopt, "HoleCardButtonsVisibility"},
      {"TensRatioButtonVisibility", 0, -1, Saved::Yes, std::nullopt, "TensRatioButtonsVisibility"},
      {"DealerStrengthButtonsVisibility", 0, -1, Saved::Yes},
      {"StatusButtonButtonVisibility", 0, -1, Saved::Yes, 0, "StatusButtonVisibility"},
      {"thisKelvoEdition", 0, {}},
      {"KelvoEdition", edition, ObjectRef(std::make_shared<PropertyObject>())},
      {"ResetPredictionButtons", false, true},
  };
  entry.raisers = {
      ButtonRaiser<Bar>("HitButtonWasPressed", "Hit"),
      ButtonRaiser<Bar>("StandButtonWasPressed", "Stand"),
      ButtonRaiser<Bar>("SplitButtonWasPressed", "Split"),
      ButtonRaiser<Bar>("DoubleButtonWasPressed", "Double"),
      ButtonRaiser<Bar>("SurrenderButtonWasPressed", "Surrender"),
      ButtonRaiser<Bar>("StatsButtonWasPressed", "ClumpStatistics"),
      RaiserOf<Bar>("HereIsThePlayersPromptMessage",
                    [](HeadlessSite&, Bar& bar) { bar.SetupTheDecisionBAR(DecisionBlock()); }),
      RaiserOf<Bar>(
          "HereIsThePlayersPromptMessage",
          [](HeadlessSite&, Bar& bar) { bar.SetupDecisionBAR(Variant(std::make_shared<DecisionBlock>()), nullptr); }),
  };
  entry.drives = BarDrives<Bar>();
  entry.callsOut = {CallOut::Event,   CallOut::Notice,        CallOut::Wait,      CallOut::Focus,
                    CallOut::BagRead, CallOut::BagWrite,      CallOut::Edition,   CallOut::DecisionBlock,
                    CallOut::Factory, CallOut::FlashedObject, CallOut::ObjectEnds};
  entry.passesOver = {{"ReadProperties", {CallOut::BagRead}}};
  entry.neverRaised = {"AdviceButtonWasPressed", "HereIsAResponseBlock"};
  entry.failedWrite = FailedWrite::Reported;
  return entry;
}

Raiser LabelRaiser(std::string event, HitStandLegend::Option HitStandLegend::ChildWidgets::*option, std::size_t label) {
  return {std::move(event), [option, label](HeadlessSite&, Control& control) {
            (static_cast<HitStandLegend&>(control).Children.*option)[label].Click();
          }};
}

Raiser LetterRaiser(std::string event, char letter) {
  return {std::move(event), [letter](HeadlessSite& site, Control& control) {
            const Weak<Control> legend(control);
            control.Extender().SetFocus();
            if (legend) site.PressKey({letter, 0});
          }};
}

}  // namespace

CatalogueEntry DecisionBAREntry() { return BarEntry<DecisionBAR>("DecisionBAR"); }

CatalogueEntry DecisionBAR2Entry() {
  using Bar = DecisionBAR2;
  CatalogueEntry entry = BarEntry<Bar>("DecisionBAR2");
  entry.drives.insert(entry.drives.end(),
                      {
                          DriveOf<Bar>("ResetTheHitcardPredictionButtons",
                                       [](CallOutHost&, Bar& bar) { bar.ResetTheHitcardPredictionButtons(); }),
                          DriveOf<Bar>("ResetTheHoleCardPredictionButtons",
                                       [](CallOutHost&, Bar& bar) { bar.ResetTheHoleCardPredictionButtons(); }),
                          DriveOf<Bar>("settings menu",
                                       [](CallOutHost& host, Bar& bar) {
                                         host.Site().ScriptMenu([&host](Menu&) { host.Calls.Happen(CallOut::PopUp); });
                                         bar.Extender().MouseDown({RightButton, 0, 0, 0});
                                       }),
                      });
  entry.callsOut.insert(CallOut::PopUp);
  return entry;
}

CatalogueEntry HitStandLegendEntry() {
  using Widgets = HitStandLegend::ChildWidgets;
  CatalogueEntry entry = EntryOf<HitStandLegend>("HitStandLegend");
  entry.raisers = {
      LabelRaiser("HitWasSelected", &Widgets::LegendOptionHit, 0),
      LabelRaiser("HitWasSelected", &Widgets::LegendOptionHit, 1),
      LabelRaiser("StandWasSelected", &Widgets::LegendOptionStand, 0),
      LabelRaiser("SplitWasSelected", &Widgets::LegendOptionSplit, 1),
      LabelRaiser("DoubleWasSelected", &Widgets::LegendOptionDouble, 0),
      LabelRaiser("SurrenderWasSelected", &Widgets::LegendOptionSurrender, 1),
      LetterRaiser("HitWasSelected", 'h'),
      LetterRaiser("SurrenderWasSelected", 'G'),
  };
  entry.callsOut = {CallOut::Event, CallOut::Focus, CallOut::ObjectEnds};
  entry.groupNames = {"LegendOptionHit", "LegendOptionStand", "LegendOptionSplit", "LegendOptionDouble",
                      "LegendOptionSurrender"};
  return entry;
}

}  // namespace tactix::tests
