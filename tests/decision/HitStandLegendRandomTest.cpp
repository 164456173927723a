// What users and hosts do to a legend, in any order and in the middle of each other, against a model.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/decision/HitStandLegend.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/RandomHost.h"

namespace tactix::tests {
namespace {

using Widgets = HitStandLegend::ChildWidgets;

constexpr std::string_view Letters = "HSPDG";
constexpr const char* LegendEvents[] = {"HitWasSelected#1", "StandWasSelected#2", "SplitWasSelected#3",
                                        "DoubleWasSelected#4", "SurrenderWasSelected#5"};
constexpr HitStandLegend::Option Widgets::*LegendOptions[] = {&Widgets::LegendOptionHit, &Widgets::LegendOptionStand,
                                                              &Widgets::LegendOptionSplit, &Widgets::LegendOptionDouble,
                                                              &Widgets::LegendOptionSurrender};

class LegendHost final : public RandomHost<HitStandLegend> {
 public:
  using RandomHost::RandomHost;

  EventRecorder recorder;
  std::vector<std::string> expected;
};

using AnyLegendHost = RandomHost<HitStandLegend>;
LegendHost& HostOf(AnyLegendHost& host) { return static_cast<LegendHost&>(host); }

Widget& AnyPart(HitStandLegend& legend, SequenceRandom& random) {
  if (random.OneIn(3)) return legend.Extender();
  if (random.OneIn(3)) return legend.Children.panelLegend;
  return (legend.Children.*LegendOptions[random.Below(5)])[random.Below(2)];
}

const std::vector<AnyLegendHost::Operation> LegendOperations = {
    {"click", 40,
     [](AnyLegendHost& host, HitStandLegend& legend, SequenceRandom& random) {
       const std::size_t line = random.Below(5);
       Label& label = (legend.Children.*LegendOptions[line])[random.Below(2)];
       const Widget* const around[] = {&label, &legend.Children.panelLegend, &legend.Extender()};
       bool reachable = true;
       for (const Widget* widget : around) reachable = reachable && widget->Visible() && widget->Enabled();
       if (reachable) HostOf(host).expected.emplace_back(LegendEvents[line]);
       label.Click();
     }},
    {"press a key", 40,
     [](AnyLegendHost& host, HitStandLegend&, SequenceRandom& random) {
       constexpr std::int32_t Keys[] = {'H', 's', 'P', 'd', 'G', 'h', 'X', '5', ReturnKey, FunctionKey1, DownArrowKey};
       const std::int32_t code = Keys[random.Below(std::size(Keys))];
       const auto shift = static_cast<std::int16_t>(random.Below(8));
       const Widget* const focus = host.Site().Focus();
       const std::size_t line =
           code < 128 ? Letters.find(static_cast<char>(code >= 'a' ? code - 'a' + 'A' : code)) : Letters.npos;
       if (focus && focus->Usable() && line != Letters.npos && (shift & CtrlKey) == 0) {
         HostOf(host).expected.emplace_back(LegendEvents[line]);
       }
       host.Site().PressKey({code, shift});
     }},
    {"press the mouse", 5,
     [](AnyLegendHost&, HitStandLegend& legend, SequenceRandom& random) {
       AnyPart(legend, random).MouseDown(AnyMouse(random));
     }},
    {"focus", 15,
     [](AnyLegendHost&, HitStandLegend& legend, SequenceRandom& random) { AnyPart(legend, random).SetFocus(); }},
    {"show", 8,
     [](AnyLegendHost&, HitStandLegend& legend, SequenceRandom& random) {
       AnyPart(legend, random).Visible(!random.OneIn(4));
     }},
    {"enable", 8,
     [](AnyLegendHost&, HitStandLegend& legend, SequenceRandom& random) {
       AnyPart(legend, random).Enabled(!random.OneIn(4));
     }},
    {"resize", 4,
     [](AnyLegendHost&, HitStandLegend& legend, SequenceRandom& random) {
       legend.Extender().Place(static_cast<float>(random.Between(-100, 100)), 7,
                               static_cast<float>(random.Between(0, 5000)),
                               static_cast<float>(random.Between(0, 5000)));
     }},
    {"save and restore", 1,
     [](AnyLegendHost& host, HitStandLegend& legend, SequenceRandom&) {
       MemoryPropertyBag bag;
       legend.WriteProperties(bag);
       if (!bag.Names().empty()) host.ReportWrong("something was saved");
       legend.ReadProperties(bag);
     }},
    {"let time pass", 2,
     [](AnyLegendHost& host, HitStandLegend&, SequenceRandom& random) { host.Site().Advance(random.Between(0, 500)); }},
    {"interfere later", 2,
     [](AnyLegendHost& host, HitStandLegend&, SequenceRandom& random) { host.InterfereLater(random); }},
    {"destroy", 1, [](AnyLegendHost& host, HitStandLegend&, SequenceRandom&) { host.DestroyControl(); }},
    {"destroy the window", 1, [](AnyLegendHost& host, HitStandLegend&, SequenceRandom&) { host.DestroyWindow(); }},
};

void PrepareLegend(AnyLegendHost& anyHost, HitStandLegend& legend) {
  LegendHost& host = HostOf(anyHost);
  host.expected.clear();
  host.recorder.Forget();
  host.recorder.Watch(legend.Events.All());
  InterfereFromHandlers(anyHost, legend);
}

std::string CheckLegend(LegendHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  if (!host.Control()) return {};
  HitStandLegend& legend = *host.Control();
  if (host.recorder.Take() != host.expected) return "the events";
  host.expected.clear();
  const Panel& panel = legend.Children.panelLegend;
  if (panel.Left() != 0 || panel.Top() != 0 || panel.Width() != legend.Extender().Width() ||
      panel.Height() != legend.Extender().Height()) {
    return "the panel does not fill the legend";
  }
  if (panel.Children().size() != 10) return "a label has gone";
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  if (!host.Site().Errors().empty()) return "a user's error " + std::to_string(host.Site().Errors()[0].Code());
  return {};
}

TEST(HitStandLegendRandomTest, RaisesWhatItShouldWhateverHappens) {
  EXPECT_TRUE(RunAtRandom<LegendHost>(LegendOperations, PrepareLegend, CheckLegend));
}

}  // namespace
}  // namespace tactix::tests
