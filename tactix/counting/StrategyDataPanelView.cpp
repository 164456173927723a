// The design of the strategy data panel: its widgets and their places.

#include <string_view>

#include "tactix/counting/StrategyDataPanel.h"

namespace tactix {

namespace {

using Widgets = StrategyDataPanel::ChildWidgets;

// Twips. Under the title stand four columns of four rows: counts, cards dealt, clump play, dealer.
constexpr float Margin = 90;
constexpr float TitleTop = 60;
constexpr float TitleHeight = 330;
constexpr float RowsTop = 480;
constexpr float RowHeight = 285;
constexpr float RowCount = 4;
constexpr float LabelHeight = 255;
constexpr float LineWidth = 30;
constexpr float DesignHeight = RowsTop + RowCount * RowHeight + Margin;

constexpr float SizeOfTitle = 9.75F;
constexpr float SizeOfText = 8.25F;

struct Column {
  float left;
  float captionWidth;
  float valueWidth;

  constexpr float Width() const { return captionWidth + valueWidth; }
  constexpr float Right() const { return left + Width(); }
};
constexpr float Gap = 150;
constexpr Column Counts = {Margin, 990, 570};
constexpr Column Cards = {Counts.Right() + Gap, 990, 510};
constexpr Column ClumpPlay = {Cards.Right() + Gap, 900, 1080};
constexpr Column Dealer = {ClumpPlay.Right() + Gap, 900, 930};
constexpr float DesignWidth = Dealer.Right() + Margin;

constexpr float TopOf(int row) { return RowsTop + static_cast<float>(row) * RowHeight; }

struct Heading {
  Label Widgets::*label;
  std::string_view name;
  std::string_view caption;
  const Column& column;
};
constexpr Heading Headings[] = {
    {&Widgets::labelClumpPlay, "labelClumpPlay", "Clump Play", ClumpPlay},
    {&Widgets::labelDealer, "labelDealer", "Dealer", Dealer},
    {&Widgets::labelCount, "labelCount", "Count", Counts},
};

struct Pair {
  Label Widgets::*caption;
  std::string_view captionName;
  std::string_view captionText;
  std::string_view captionTip;
  Label Widgets::*value;
  std::string_view valueName;
  std::string_view valueText;
  std::string_view valueTip;
  const Column& column;
  int row;
};
constexpr Pair Pairs[] = {
    {&Widgets::labelStrength, "labelStrength", "Strength",
     "The Dealer's Hand-Strength - Computed as a Ratio - 1.0 is 50-50", &Widgets::datDealerStrength,
     "datDealerStrength", "unknown", "Computed as Dealer-StrongHands \\ Dealer-StiffHands", Dealer, 1},
    {&Widgets::labelEndTotal, "labelEndTotal", "End Total",
     "The Dealer Ending Total s/b 18.52 against a \"Random Shuffle\"", &Widgets::datEndingTotal, "datEndingTotal",
     "NN.NN", "The Dealer Ending Total for THIS Shoe - Press F3 for more Details", Dealer, 2},
    {&Widgets::labelBreakPercent, "labelBreakPercent", "Break %",
     "The Dealer Break % s/b 28.3% against a \"Random Shuffle\"", &Widgets::datDealerBreaks, "datDealerBreaks", "NN.N%",
     "The Dealer Break % for THIS Shoe - Press F3 for more Details", Dealer, 3},
    {&Widgets::labelCardFlow, "labelCardFlow", "Card-flow",
     "Indicates the Clump Favorability of the Cards on the Table", &Widgets::datClumpType, "datClumpType", "Dealer +",
     "varies from Dealer + (Super House Favorable) to Player + (Super Player Favorable)", ClumpPlay, 1},
    {&Widgets::labelBias, "labelBias", "B.I.A.S.", "", &Widgets::datBiasRating, "datBiasRating", "", "", ClumpPlay, 2},
    {&Widgets::labelTarget, "labelTarget", "Target", "", &Widgets::datTargetRating, "datTargetRating", "", "",
     ClumpPlay, 3},
    {&Widgets::labelAces, "labelAces", "Aces", "Aces are Blackjack-favorable for the Player", &Widgets::datAces,
     "datAces", "", "The # of Aces Dealt in this Deck/Shoe", Cards, 0},
    {&Widgets::labelFives, "labelFives", "Fives", "5's Favor the Dealer", &Widgets::datFives, "datFives", "",
     "The # of 5's Dealt in this Deck/Shoe", Cards, 1},
    {&Widgets::labelTens, "labelTens", "Tens", "Ten-Value Cards are more   Player-favorable", &Widgets::dat10Count,
     "dat10Count", "", "The # of 10's Dealt in this Deck/Shoe", Cards, 2},
    {&Widgets::labelCoreCards, "labelCoreCards", "Core Cards", "Core Cards: 5, 6, 7 & 8 - Favor the Dealer",
     &Widgets::datCoreCards, "datCoreCards", "", "The # of Core Card's Dealt in this Deck/Shoe", Cards, 3},
    {&Widgets::labelAdjustedCount, "labelAdjustedCount", "Adj. Count", "", &Widgets::datAdjustedCount,
     "datAdjustedCount", "-99", "", Counts, 3},
};

struct Separator {
  Line Widgets::*line;
  std::string_view name;
  float left;
  float top;
  float width;
  float height;
};
constexpr float UnderHeading = TopOf(1) - LineWidth;
constexpr float Middle = (Gap - LineWidth) / 2;
constexpr Separator Separators[] = {
    {&Widgets::lineStrategy, "lineStrategy", Margin, TitleTop + TitleHeight, DesignWidth - 2 * Margin, LineWidth},
    {&Widgets::Line1, "Line1", Counts.Right() + Middle, RowsTop, LineWidth, RowCount* RowHeight},
    {&Widgets::Line2, "Line2", Cards.Right() + Middle, RowsTop, LineWidth, RowCount* RowHeight},
    {&Widgets::Line3, "Line3", ClumpPlay.left, UnderHeading, ClumpPlay.Width(), LineWidth},
    {&Widgets::Line4, "Line4", Dealer.left, UnderHeading, Dealer.Width(), LineWidth},
    {&Widgets::lineDealerDataSeparator, "lineDealerDataSeparator", ClumpPlay.Right() + Middle, RowsTop, LineWidth,
     RowCount* RowHeight},
};

}  // namespace

void StrategyDataPanel::BuildWidgets() {
  Extender().DesignSize(DesignWidth, DesignHeight);
  Panel& panel = Children.panelStrategyInformation;
  Extender().Add(panel, "panelStrategyInformation");

  tactix::Extender& counts = Children.CountDisplay.Extender();
  panel.Add(counts, "CountDisplay");
  counts.Place(Counts.left, TopOf(1), Counts.Width(), 2 * RowHeight);

  const auto add = [&panel](Label& label, std::string_view name, std::string_view caption, const Font& font) {
    panel.Add(label, name);
    label.Caption(caption);
    label.Font(font);
  };
  add(Children.Label1, "Label1", "Strategy       Information", {"MS Sans Serif", SizeOfTitle, true});
  Children.Label1.Alignment(TextAlignment::Center);
  Children.Label1.Place(Margin, TitleTop, DesignWidth - 2 * Margin, TitleHeight);
  for (const Heading& heading : Headings) {
    Label& label = Children.*heading.label;
    add(label, heading.name, heading.caption, {"MS Sans Serif", SizeOfText, true});
    label.Alignment(TextAlignment::Center);
    label.Place(heading.column.left, TopOf(0), heading.column.Width(), LabelHeight);
  }
  for (const Pair& pair : Pairs) {
    Label& caption = Children.*pair.caption;
    add(caption, pair.captionName, pair.captionText, {"MS Sans Serif", SizeOfText});
    caption.ToolTipText(pair.captionTip);
    caption.Place(pair.column.left, TopOf(pair.row), pair.column.captionWidth, LabelHeight);
    Label& value = Children.*pair.value;
    add(value, pair.valueName, pair.valueText, {"MS Sans Serif", SizeOfText, true});
    value.ToolTipText(pair.valueTip);
    value.Heading(pair.captionText);
    value.Alignment(TextAlignment::Right);
    value.Place(pair.column.left + pair.column.captionWidth, TopOf(pair.row), pair.column.valueWidth, LabelHeight);
  }
  for (const Separator& separator : Separators) {
    Line& line = Children.*separator.line;
    panel.Add(line, separator.name);
    line.Place(separator.left, separator.top, separator.width, separator.height);
  }
  Resized();
}

}  // namespace tactix
