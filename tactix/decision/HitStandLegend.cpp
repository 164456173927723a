#include "tactix/decision/HitStandLegend.h"

#include <string>
#include <string_view>

#include "tactix/shared/Plays.h"

namespace tactix {

namespace {

struct Line : Play {
  std::string_view label;
  HitStandLegend::Option HitStandLegend::ChildWidgets::*option;
  Event<> HitStandLegend::EventSet::*event;
};
using Widgets = HitStandLegend::ChildWidgets;
using LegendEvents = HitStandLegend::EventSet;
constexpr Line Lines[] = {
    {PlayOf(AdvicePossibilities::HitAdvised), "LegendOptionHit", &Widgets::LegendOptionHit,
     &LegendEvents::HitWasSelected},
    {PlayOf(AdvicePossibilities::StandAdvised), "LegendOptionStand", &Widgets::LegendOptionStand,
     &LegendEvents::StandWasSelected},
    {PlayOf(AdvicePossibilities::SplitAdvised), "LegendOptionSplit", &Widgets::LegendOptionSplit,
     &LegendEvents::SplitWasSelected},
    {PlayOf(AdvicePossibilities::DoubleAdvised), "LegendOptionDouble", &Widgets::LegendOptionDouble,
     &LegendEvents::DoubleWasSelected},
    {PlayOf(AdvicePossibilities::SurrenderAdvised), "LegendOptionSurrender", &Widgets::LegendOptionSurrender,
     &LegendEvents::SurrenderWasSelected},
};

// Twips.
constexpr float Margin = 90;
constexpr float LineHeight = 300;
constexpr float LetterWidth = 450;
constexpr float WordWidth = 1230;
constexpr float SizeOfFont = 9.75F;

}  // namespace

HitStandLegend::HitStandLegend(Site& site) : Control(site) {
  Extender().DesignSize(LetterWidth + WordWidth + 2 * Margin, std::size(Lines) * LineHeight + 2 * Margin);
  Panel& panel = Children.panelLegend;
  Extender().Add(panel, "panelLegend");
  panel.ToolTipText("Click Letters or Use Keyboard to make your Decisions");
  Resized();

  // On the extender and not on the labels, so that the whole legend is one stop for the Tab key.
  Extender().OnKeyDown([this](const KeyPress& key) {
    if ((key.shift & CtrlKey) != 0) return;
    if (const Line* line = RowOf(Lines, FindPlay(key.Letter()))) (Events.*line->event).Raise();
  });

  float top = Margin;
  for (const Line& line : Lines) {
    Option& option = Children.*line.option;
    Event<>& event = Events.*line.event;
    float left = Margin;
    for (const auto& [label, caption, width] : {std::tuple{&option[0], std::string{line.letter} + " -", LetterWidth},
                                                {&option[1], std::string(line.name), WordWidth}}) {
      panel.Add(*label, line.label);
      label->Caption(caption);
      label->Font({"Comic Sans MS", SizeOfFont});
      label->Place(left, top, width, LineHeight);
      label->Clicked.Connect([&event] { event.Raise(); });
      left += width;
    }
    top += LineHeight;
  }
}

HitStandLegend::~HitStandLegend() { MarkAsGone(); }

void HitStandLegend::Resized() { Children.panelLegend.Place(0, 0, Extender().ScaleWidth(), Extender().ScaleHeight()); }

}  // namespace tactix
