// How both decision toolbars are designed.

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class Bar>
class DecisionToolBarDesignTest : public DecisionToolBarFixture<Bar> {};
TYPED_TEST_SUITE(DecisionToolBarDesignTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarDesignTest, HasTheseButtonsInThisOrder) {
  struct Row {
    const char* key;
    const char* caption;
    const char* toolTip;
    int picture;
    ToolButtonStyle style;
  };
  constexpr auto Push = ToolButtonStyle::Push;
  constexpr auto Group = ToolButtonStyle::Group;
  constexpr auto Gap = ToolButtonStyle::Separator;
  constexpr Row Rows[] = {
      {"Hit", "Hit", "HIT: Draw another Card", 1, Push},
      {"Stand", "Stand", "STAND: Draw no more Cards", 2, Push},
      {"Split", "Split", "SPLIT a PAIR of Cards", 3, Push},
      {"Double", "Double", "DOUBLE Your Bet - Receive 1 Card", 4, Push},
      {"Surrender", "Surr.", "SURRENDER: Forfeit 1/2 your Wager", 5, Push},
      {"Advice", "Advice", "Ask Kelvo for Playing Advice", 6, Push},
      {"HitcardSeparator", "", "", 0, Gap},
      {"HitcardLow", "Low", "Hitcard Prediction: LOW", 7, Group},
      {"HitcardMid", "Mid", "Hitcard Prediction: MID/Neutral", 7, Group},
      {"HitcardHigh", "High", "Hitcard Prediction: HIGH", 7, Group},
      {"HitcardUnknown", "? ?", "Hitcard Prediction: Unknown", 7, Group},
      {"HolecardSeparator", "", "", 0, Gap},
      {"HolecardLow", "Low", "Holecard Prediction: LOW", 8, Group},
      {"HolecardMid", "Mid", "Holecard Prediction: MID/Neutral", 8, Group},
      {"HolecardHigh", "High", "Holecard Prediction: HIGH", 8, Group},
      {"HolecardUnknown", "? ?", "Holecard Prediction: Unknown", 8, Group},
      {"TensRatioSeparator", "", "", 0, Gap},
      {"TensRatioLow", "Low", "Tens-Ratio is Low", 9, Group},
      {"TensRatioHigh", "High", "Tens-Ratio is High", 9, Group},
      {"DealerHandStrengthSeparator", "", "", 0, Gap},
      {"DealerStrengthWeak", "Dealer", "Dealer hand is Weak!", 10, Group},
      {"DealerStrengthStrong", "Dealer", "Dealer hand is Strong!", 11, Group},
      {"StatisticsSeparator", "", "", 0, Gap},
      {"ClumpStatistics", "Stats", "POPUP: Clump Statistics", 12, Push},
  };
  const auto buttons = this->Strip().Buttons();
  ASSERT_EQ(buttons.size(), std::size(Rows));
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    SCOPED_TRACE(Rows[i].key);
    const ToolButton& button = *buttons[i];
    EXPECT_EQ(button.Key(), Rows[i].key);
    EXPECT_EQ(button.Caption(), Rows[i].caption);
    EXPECT_EQ(button.ToolTipText(), Rows[i].toolTip);
    EXPECT_EQ(button.Picture(), Rows[i].picture);
    EXPECT_EQ(button.Style(), Rows[i].style);
    EXPECT_TRUE(button.Visible());
    EXPECT_TRUE(button.Enabled());
    EXPECT_FALSE(button.Value());
    EXPECT_EQ(&this->Button(Rows[i].key), &button);
  }
}

TYPED_TEST(DecisionToolBarDesignTest, HasTwelvePictures) {
  const ImageList& pictures = this->bar_->Children.ImageList;
  EXPECT_EQ(this->Strip().Pictures(), &pictures);
  ASSERT_EQ(pictures.Count(), 12);
  std::set<std::string> names;
  for (std::int16_t picture = 1; picture <= 12; ++picture) names.insert(pictures.Name(picture));
  EXPECT_EQ(names.size(), 12U);
}

TYPED_TEST(DecisionToolBarDesignTest, NumbersAndNamesItsEvents) {
  Texts events;
  const auto note = [&](auto&... each) {
    (events.push_back(std::to_string(each.Number()) + " " + std::string(each.Name())), ...);
  };
  std::apply(note, this->bar_->Events.All());
  EXPECT_EQ(events,
            (Texts{"1 HitButtonWasPressed", "2 StandButtonWasPressed", "3 SplitButtonWasPressed",
                   "4 DoubleButtonWasPressed", "5 StatsButtonWasPressed", "6 AdviceButtonWasPressed",
                   "7 SurrenderButtonWasPressed", "8 HereIsThePlayersPromptMessage", "9 HereIsAResponseBlock"}));
}

TYPED_TEST(DecisionToolBarDesignTest, ItsElementsHaveTheirNames) {
  Texts names;
  for (const Widget* child : this->bar_->Extender().Children()) names.emplace_back(child->Name());
  EXPECT_EQ(names, (Texts{"DecisionBAR_ID", "DecisionToolBar"}));
  EXPECT_FALSE(this->bar_->Children.BlinkTimer.Enabled());
}

TYPED_TEST(DecisionToolBarDesignTest, ANewOneHasTheseDefaults) {
  EXPECT_EQ(this->bar_->Alignment(), DecisionBARAlignment::DBAlignBottom);
  EXPECT_EQ(this->bar_->HitcardButtonsVisibility(), ButtonsHidden);
  EXPECT_EQ(this->bar_->HolecardButtonsVisibility(), ButtonsHidden);
  EXPECT_EQ(this->bar_->TensRatioButtonVisibility(), ButtonsHidden);
  EXPECT_EQ(this->bar_->DealerStrengthButtonsVisibility(), ButtonsHidden);
  EXPECT_EQ(this->bar_->thisKelvoEdition(), 0);
  EXPECT_FALSE(this->bar_->ResetPredictionButtons());
  EXPECT_EQ(this->Record(), PredictionRecord{});
  EXPECT_EQ(this->bar_->DecodedDCB().PlayerName(), "");
  EXPECT_EQ(this->editionsMade_, 0);
  EXPECT_EQ(this->site_.Changes(), Texts{});
  EXPECT_EQ(this->bar_->StatusButtonButtonVisibility(), ButtonsHidden);
}

TYPED_TEST(DecisionToolBarDesignTest, TheDesignerSeesTheNameAndThePlayerTheToolbar) {
  EXPECT_TRUE(this->Strip().Visible());
  EXPECT_FALSE(this->bar_->Children.DecisionBAR_ID.Visible());
  for (const bool running : {false, true, false}) {
    this->site_.UserMode(running);
    MemoryPropertyBag bag;
    this->bar_->ReadProperties(bag);
    EXPECT_EQ(this->Strip().Visible(), running);
    EXPECT_EQ(this->bar_->Children.DecisionBAR_ID.Visible(), !running);
  }
}

TYPED_TEST(DecisionToolBarDesignTest, ADesignerSeesTheNameOfANewOneAtOnce) {
  for (const bool running : {false, true}) {
    this->site_.UserMode(running);
    TypeParam bar(this->site_);
    bar.Extender().Place(300, 400, 9000, 900);
    bar.InitProperties();
    EXPECT_EQ(bar.Children.DecisionToolBar.Visible(), running);
    EXPECT_EQ(bar.Children.DecisionBAR_ID.Visible(), !running);
    EXPECT_EQ(bar.Extender().Left(), 300) << "it stays where it was dropped";
    EXPECT_EQ(bar.Extender().Top(), 400);
  }
  EXPECT_EQ(this->site_.Changes(), Texts{});
}

TYPED_TEST(DecisionToolBarDesignTest, FollowsTheContainersMode) {
  this->bar_->InitProperties();
  for (const bool running : {false, true}) {
    this->site_.UserMode(running);
    this->bar_->AmbientChanged();
    EXPECT_EQ(this->Strip().Visible(), running);
    EXPECT_EQ(this->bar_->Children.DecisionBAR_ID.Visible(), !running);
  }
}

/// The edges of a control of that size which its toolbar touches: left, right, top, bottom.
std::string EdgesOf(const ToolBar& strip, float width, float height) {
  std::string edges;
  if (strip.Left() == 0) edges += 'l';
  if (strip.Left() + strip.Width() == width) edges += 'r';
  if (strip.Top() == 0) edges += 't';
  if (strip.Top() + strip.Height() == height) edges += 'b';
  return edges;
}

TYPED_TEST(DecisionToolBarDesignTest, DocksToAnEdge) {
  this->bar_->Extender().Place(0, 0, 6000, 4000);
  const struct {
    std::int32_t align;
    const char* edges;
  } rows[] = {{0, "lrt"}, {1, "lrt"}, {2, "lrb"}, {3, "ltb"}, {4, "rtb"}, {9, "lrt"}, {-1, "lrt"}, {2147483647, "lrt"}};
  for (const auto& row : rows) {
    this->bar_->Alignment(row.align);
    EXPECT_EQ(this->bar_->Alignment(), row.align);
    EXPECT_EQ(this->Strip().Align(), row.align);
    EXPECT_EQ(EdgesOf(this->Strip(), 6000, 4000), row.edges) << row.align;
  }
}

TYPED_TEST(DecisionToolBarDesignTest, StaysDockedWhenItsSizeChanges) {
  const struct {
    DecisionBARAlignment align;
    const char* edges;
  } rows[] = {{DecisionBARAlignment::DBAlignRight, "rtb"}, {DecisionBARAlignment::DBAlignBottom, "lrb"}};
  for (const auto& row : rows) {
    this->bar_->Alignment(row.align);
    this->bar_->Extender().Place(0, 0, 3000, 2000);
    EXPECT_EQ(EdgesOf(this->Strip(), 3000, 2000), row.edges);
    this->bar_->Extender().Place(0, 0, 400, 300);
    EXPECT_EQ(EdgesOf(this->Strip(), 400, 300), "lrtb") << "never larger than its control";
    const Label& name = this->bar_->Children.DecisionBAR_ID;
    EXPECT_EQ((std::array{name.Left(), name.Top(), name.Width(), name.Height()}),
              (std::array<float, 4>{0, 0, 400, 300}));
  }
}

}  // namespace
}  // namespace tactix::tests
