#include "tactix/counting/StrategyDataPanel.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/FullDataBlock.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Widgets = StrategyDataPanel::ChildWidgets;

class StrategyDataPanelTest : public testing::Test {
 protected:
  StrategyDataPanelTest() { panel_.InitProperties(); }

  Widgets& Children() { return panel_.Children; }
  std::string Running() {
    return Children().CountDisplay.Children.RunningCountDisplay.Children.labelCountValue.Caption();
  }
  std::string True() { return Children().CountDisplay.Children.TrueCountDisplay.Children.labelCountValue.Caption(); }

  HeadlessSite site_;
  StrategyDataPanel panel_{site_};
};

struct PanelTextRow {
  const char* name;
  Label StrategyDataPanel::ChildWidgets::*label;
  const char* caption;
  const char* toolTip;
};

TEST_F(StrategyDataPanelTest, HasItsDesignedTexts) {
  const PanelTextRow rows[] = {
      {"Label1", &Widgets::Label1, "Strategy       Information", ""},
      {"labelClumpPlay", &Widgets::labelClumpPlay, "Clump Play", ""},
      {"labelDealer", &Widgets::labelDealer, "Dealer", ""},
      {"labelCount", &Widgets::labelCount, "Count", ""},
      {"datDealerStrength", &Widgets::datDealerStrength, "unknown",
       "Computed as Dealer-StrongHands \\ Dealer-StiffHands"},
      {"labelStrength", &Widgets::labelStrength, "Strength",
       "The Dealer's Hand-Strength - Computed as a Ratio - 1.0 is 50-50"},
      {"datEndingTotal", &Widgets::datEndingTotal, "NN.NN",
       "The Dealer Ending Total for THIS Shoe - Press F3 for more Details"},
      {"labelEndTotal", &Widgets::labelEndTotal, "End Total",
       "The Dealer Ending Total s/b 18.52 against a \"Random Shuffle\""},
      {"datClumpType", &Widgets::datClumpType, "Dealer +",
       "varies from Dealer + (Super House Favorable) to Player + (Super Player Favorable)"},
      {"labelCardFlow", &Widgets::labelCardFlow, "Card-flow",
       "Indicates the Clump Favorability of the Cards on the Table"},
      {"datDealerBreaks", &Widgets::datDealerBreaks, "NN.N%",
       "The Dealer Break % for THIS Shoe - Press F3 for more Details"},
      {"labelBreakPercent", &Widgets::labelBreakPercent, "Break %",
       "The Dealer Break % s/b 28.3% against a \"Random Shuffle\""},
      {"datCoreCards", &Widgets::datCoreCards, "", "The # of Core Card's Dealt in this Deck/Shoe"},
      {"dat10Count", &Widgets::dat10Count, "", "The # of 10's Dealt in this Deck/Shoe"},
      {"datFives", &Widgets::datFives, "", "The # of 5's Dealt in this Deck/Shoe"},
      {"datAces", &Widgets::datAces, "", "The # of Aces Dealt in this Deck/Shoe"},
      {"labelAces", &Widgets::labelAces, "Aces", "Aces are Blackjack-favorable for the Player"},
      {"labelFives", &Widgets::labelFives, "Fives", "5's Favor the Dealer"},
      {"labelTens", &Widgets::labelTens, "Tens", "Ten-Value Cards are more   Player-favorable"},
      {"labelCoreCards", &Widgets::labelCoreCards, "Core Cards", "Core Cards: 5, 6, 7 & 8 - Favor the Dealer"},
      {"labelBias", &Widgets::labelBias, "B.I.A.S.", ""},
      {"datTargetRating", &Widgets::datTargetRating, "", ""},
      {"datBiasRating", &Widgets::datBiasRating, "", ""},
      {"labelTarget", &Widgets::labelTarget, "Target", ""},
      {"datAdjustedCount", &Widgets::datAdjustedCount, "-99", ""},
      {"labelAdjustedCount", &Widgets::labelAdjustedCount, "Adj. Count", ""},
  };
  for (const PanelTextRow& row : rows) {
    const Label& label = Children().*row.label;
    EXPECT_EQ(label.Name(), row.name);
    EXPECT_EQ(label.Caption(), row.caption) << row.name;
    EXPECT_EQ(label.ToolTipText(), row.toolTip) << row.name;
  }
  // With the count display and the lines, nothing is left out.
  EXPECT_EQ(Children().panelStrategyInformation.Children().size(), std::size(rows) + 1 + 6);
}

TEST_F(StrategyDataPanelTest, ShowsABlock) {
  panel_.HereIsYourStrategyData(FullDataBlock());
  struct Row {
    Label StrategyDataPanel::ChildWidgets::*label;
    const char* text;
    const char* heading;
  };
  const Row rows[] = {
      {&Widgets::datAces, "4", "Aces"},
      {&Widgets::datFives, "5", "Fives"},
      {&Widgets::dat10Count, "16", "Tens"},
      {&Widgets::datBiasRating, "70000", "B.I.A.S."},
      {&Widgets::datClumpType, "Player -", "Card-flow"},
      {&Widgets::datCoreCards, "9", "Core Cards"},
      {&Widgets::datTargetRating, "-80000", "Target"},
      {&Widgets::datDealerBreaks, "28.3", "Break %"},
      {&Widgets::datAdjustedCount, "-2", "Adj. Count"},
      {&Widgets::datDealerStrength, "0.38", "Strength"},
      {&Widgets::datEndingTotal, "08.5", "End Total"},
  };
  EXPECT_EQ(Running(), "-12");
  EXPECT_EQ(True(), "3");
  for (const Row& row : rows) {
    const Label& label = Children().*row.label;
    EXPECT_EQ(label.Caption(), row.text) << label.Name();
    EXPECT_EQ(label.Heading(), row.heading) << label.Name();
  }
}

TEST_F(StrategyDataPanelTest, ReadsEachFieldOnceInItsOrder) {
  const auto block = FullDataBlock();
  panel_.HereIsYourStrategyData(block);
  Texts expected;
  for (const std::string_view field : DataFields) expected.push_back("Get " + std::string(field));
  EXPECT_EQ(block->Log, expected);
}

struct FormatFieldRow {
  const char* name;
  const char* field;
  Variant value;
  Label StrategyDataPanel::ChildWidgets::*label;
  const char* text;
};

TEST_F(StrategyDataPanelTest, FormatsItsFields) {
  constexpr auto Breaks = &Widgets::datDealerBreaks;
  constexpr auto Total = &Widgets::datEndingTotal;
  constexpr auto Flow = &Widgets::datClumpType;
  const FormatFieldRow rows[] = {
      {"breaks round up", "DealerBreakPercent", 28.26F, Breaks, "28.3"},
      {"breaks are whole", "DealerBreakPercent", 5, Breaks, "5.0"},
      {"no breaks", "DealerBreakPercent", 0, Breaks, "0.0"},
      {"a decimal tie of breaks", "DealerBreakPercent", 28.15F, Breaks, "28.2"},
      {"negative breaks", "DealerBreakPercent", -0.25F, Breaks, "-0.3"},
      {"all break", "DealerBreakPercent", "100", Breaks, "100.0"},
      {"a total below ten", "DealerEndingTotal", 8.5F, Total, "08.5"},
      {"a total", "DealerEndingTotal", 18.52F, Total, "18.5"},
      {"a total in a double becomes a single", "DealerEndingTotal", 18.549999999, Total, "18.6"},
      {"no total", "DealerEndingTotal", 0, Total, "00.0"},
      {"a huge total", "DealerEndingTotal", 1234.0F, Total, "1234.0"},
      {"no aces", "AcesDealt", 0, &Widgets::datAces, "0"},
      {"negative aces", "AcesDealt", -32768, &Widgets::datAces, "-32768"},
      {"aces as a text", "AcesDealt", "12.5", &Widgets::datAces, "12"},
      {"no groups", "TensDealt", 32767, &Widgets::dat10Count, "32767"},
      {"lowest bias", "BiasRating", std::numeric_limits<std::int32_t>::min(), &Widgets::datBiasRating, "-2147483648"},
      {"highest target", "TargetRating", 2147483647, &Widgets::datTargetRating, "2147483647"},
      {"true", "AdjustedCount", true, &Widgets::datAdjustedCount, "-1"},
      {"neutral flow", "ClumpType", 7, Flow, "Neutral "},
      {"highest flow", "ClumpType", 32767, Flow, "Player +"},
      {"lowest flow", "ClumpType", -32768, Flow, "Dealer +"},
  };
  for (const FormatFieldRow& row : rows) {
    const auto block = FullDataBlock();
    block->Set(row.field, row.value);
    panel_.HereIsYourStrategyData(block);
    EXPECT_EQ((Children().*row.label).Caption(), row.text) << row.name;
  }
}

struct StrengthRow {
  const char* name;
  float stiff;
  float strong;
  const char* text;
};

TEST_F(StrategyDataPanelTest, DividesStrongByStiffHands) {
  constexpr float Tiniest = std::numeric_limits<float>::denorm_min();
  const StrengthRow rows[] = {
      {"no stiff hands", 0, 5, "0.00"},
      {"no hands", 0, 0, "0.00"},
      {"negative zero", -0.0F, 5, "0.00"},
      {"no strong hands", 5, 0, "0.00"},
      {"even", 7, 7, "1.00"},
      {"two thirds", 3, 2, "0.67"},
      {"three halves", 2, 3, "1.50"},
      {"negative", -3, 2, "-0.67"},
      {"a tie", 8, 1, "0.13"},
      {"tenths are what they say", 0.1F, 0.0115F, "0.12"},
      {"not what they are in binary", 10, 1.15F, "0.12"},
      {"more than ten", 1, 1234.5F, "1234.50"},
      {"seven digits of a single", 1, 16777216.0F, "16777220.00"},
      {"the tiniest divisor still divides", Tiniest, Tiniest, "1.00"},
  };
  for (const StrengthRow& row : rows) {
    const auto block = FullDataBlock();
    block->Set("DealerStiffHands", row.stiff);
    block->Set("DealerStrongHands", row.strong);
    panel_.HereIsYourStrategyData(block);
    EXPECT_EQ(Children().datDealerStrength.Caption(), row.text) << row.name;
  }
}

TEST_F(StrategyDataPanelTest, SaysWhomTheClumpsFavour) {
  struct Row {
    std::int16_t type;
    const char* text;
  };
  const Row rows[] = {{-32768, "Dealer +"}, {-1, "Dealer +"}, {0, "Dealer +"},  {3, "Dealer +"},    {4, "Dealer -"},
                      {5, "Dealer -"},      {6, "Dealer -"},  {7, "Neutral "},  {8, "Player -"},    {9, "Player -"},
                      {10, "Player -"},     {11, "Player +"}, {12, "Player +"}, {32767, "Player +"}};
  for (const Row& row : rows) EXPECT_EQ(panel_.GetClumpStuff(row.type), row.text) << row.type;
}

TEST_F(StrategyDataPanelTest, PassesTheShadowBoxOn) {
  panel_.ShadowBoxStatus(ShadowBoxingConstants::ShadowBoxYellowColor);
  DualCardCountDisplay::ChildWidgets& counts = Children().CountDisplay.Children;
  for (CardCountDisplayBox* box : {&counts.TrueCountDisplay, &counts.RunningCountDisplay}) {
    EXPECT_EQ(box->Children.labelCountValue.BackColor(), 0xFFFFFF);
    box->CountBoxType(box->CountBoxType());
    EXPECT_EQ(box->Children.labelCountValue.BackColor(), 0x00FFFF);
  }
}

TEST_F(StrategyDataPanelTest, RefreshingDrawsAllOfItAnew) {
  class RefreshCounter final : public WidgetObserver {
   public:
    int refreshes = 0;
    void Changed(Widget&, Aspect aspect) override { refreshes += aspect == Aspect::Refresh ? 1 : 0; }
    void Gone(Widget&) override {}
  } counter;
  panel_.Extender().Observe(&counter);
  panel_.Refresh();
  EXPECT_EQ(counter.refreshes, 1);
  panel_.Extender().Observe(nullptr);
  panel_.Refresh();
}

TEST_F(StrategyDataPanelTest, ReadsTheEditionsCode) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 70000);
  EXPECT_EQ(panel_.EditionCode(), 0);
  panel_.TheKelvoEditionIs(edition);
  EXPECT_EQ(edition->Log, Texts{"Get thisKelvoEdition"});
  EXPECT_EQ(panel_.EditionCode(), 70000);
  edition->Set("thisKelvoEdition", "gold");
  EXPECT_EQ(ErrorCodeOf([&] { return panel_.TheKelvoEditionIs(edition), 0; }), Error::TypeMismatch);
  EXPECT_EQ(ErrorCodeOf([&] { return panel_.TheKelvoEditionIs(std::make_shared<PropertyObject>()), 0; }),
            Error::NoSuchMember);
  EXPECT_EQ(ErrorCodeOf([&] { return panel_.TheKelvoEditionIs(nullptr), 0; }), Error::ObjectNotSet);
  EXPECT_EQ(panel_.EditionCode(), 70000);
}

TEST_F(StrategyDataPanelTest, ThePanelFillsItAndTheRestStays) {
  const float left = Children().datEndingTotal.Left();
  panel_.Extender().Place(9, 9, 9000, 5000);
  const Panel& panel = Children().panelStrategyInformation;
  EXPECT_EQ(panel.Left(), 0);
  EXPECT_EQ(panel.Top(), 0);
  EXPECT_EQ(panel.Width(), 9000);
  EXPECT_EQ(panel.Height(), 5000);
  EXPECT_EQ(Children().datEndingTotal.Left(), left);
}

TEST_F(StrategyDataPanelTest, ItsElementsLieInsideAndApart) {
  const auto& elements = Children().panelStrategyInformation.Children();
  const auto apart = [](const Widget& a, const Widget& b) {
    return a.Left() + a.Width() <= b.Left() || b.Left() + b.Width() <= a.Left() || a.Top() + a.Height() <= b.Top() ||
           b.Top() + b.Height() <= a.Top();
  };
  for (const Widget* a : elements) {
    EXPECT_GE(a->Left(), 60) << a->Name();
    EXPECT_GE(a->Top(), 60) << a->Name();
    EXPECT_LE(a->Left() + a->Width(), panel_.Extender().Width() - 60) << a->Name();
    EXPECT_LE(a->Top() + a->Height(), panel_.Extender().Height() - 60) << a->Name();
    EXPECT_GT(a->Width(), 0) << a->Name();
    EXPECT_GT(a->Height(), 0) << a->Name();
    for (const Widget* b : elements) EXPECT_TRUE(a == b || apart(*a, *b)) << a->Name() << " and " << b->Name();
  }
}

TEST_F(StrategyDataPanelTest, SavesNothing) {
  MemoryPropertyBag bag;
  panel_.WriteProperties(bag);
  EXPECT_EQ(bag.Names(), Texts{});
  EXPECT_EQ(site_.Changes(), Texts{});
}

void PressEverything(Widget& widget, std::vector<std::string>& pressed) {
  pressed.emplace_back(widget.Name());
  widget.MouseDown({LeftButton, 0, 0, 0});
  for (Widget* child : widget.Children()) PressEverything(*child, pressed);
}

TEST_F(StrategyDataPanelTest, APressAnywhereIsReportedOnce) {
  int clicks = 0;
  panel_.Events.PanelClick.Connect([&] { ++clicks; });
  std::vector<std::string> pressed;
  PressEverything(panel_.Extender(), pressed);
  EXPECT_EQ(pressed.size(), 41U);  // the control, its panel, 33 on it and 6 in the count display
  EXPECT_EQ(clicks, 41);
  for (const std::int16_t button : {LeftButton, RightButton, MiddleButton}) {
    panel_.Children.panelStrategyInformation.MouseDown({button, AltKey, 1, 2});
  }
  EXPECT_EQ(clicks, 44);
  panel_.Extender().MouseMove({LeftButton, 0, 0, 0});
  panel_.Extender().Enabled(false);
  panel_.Children.datAces.MouseDown({LeftButton, 0, 0, 0});
  EXPECT_EQ(clicks, 44);
}

}  // namespace
}  // namespace tactix::tests
