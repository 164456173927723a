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
            control.Extender().SetFocus();
            site.PressKey({letter, 0});
          }};
}

}  // namespace

CatalogueEntry DecisionBAREntry() { return BarEntry<DecisionBAR>("DecisionBAR"); }

CatalogueEntry DecisionBAR2Entry() { return BarEntry<DecisionBAR2>("DecisionBAR2"); }

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
  entry.groupNames = {"LegendOptionHit", "LegendOptionStand", "LegendOptionSplit", "LegendOptionDouble",
                      "LegendOptionSurrender"};
  return entry;
}

}  // namespace tactix::tests
