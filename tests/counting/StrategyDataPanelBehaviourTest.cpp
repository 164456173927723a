// The data panel at a user's window: what it shows, and pressing it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/counting/StrategyDataPanel.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FullDataBlock.h"
#include "tests/support/Robot.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class StrategyDataPanelBehaviourTest : public testing::Test {
 protected:
  StrategyDataPanelBehaviourTest() {
    panel_->InitProperties();
    recorder_.Watch(panel_->Events.All());
    robot_->Show(*panel_);
  }

  StrategyDataPanel::ChildWidgets& Children() const { return panel_->Children; }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { panel_.reset(); });
    } else {
      panel_.reset();
    }
  }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<StrategyDataPanel> panel_ = std::make_unique<StrategyDataPanel>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(StrategyDataPanelBehaviourTest, ShowsTheShoe) {
  EXPECT_EQ(robot_->SeesText(Children().Label1), "Strategy       Information");
  EXPECT_EQ(robot_->SeesText(Children().datDealerStrength), "unknown");
  panel_->HereIsYourStrategyData(FullDataBlock());
  const DualCardCountDisplay::ChildWidgets& counts = Children().CountDisplay.Children;
  EXPECT_EQ(robot_->SeesText(counts.RunningCountDisplay.Children.labelCountValue), "-12");
  EXPECT_EQ(robot_->SeesText(counts.TrueCountDisplay.Children.labelCountValue), "3");
  EXPECT_EQ(robot_->SeesText(Children().datAces), "4");
  EXPECT_EQ(robot_->SeesText(Children().datClumpType), "Player -");
  EXPECT_EQ(robot_->SeesText(Children().datDealerBreaks), "28.3");
  EXPECT_EQ(robot_->SeesText(Children().datDealerStrength), "0.38");
  EXPECT_EQ(robot_->SeesText(Children().datEndingTotal), "08.5");
  for (const Widget* child : Children().panelStrategyInformation.Children()) EXPECT_TRUE(robot_->SeesShown(*child));
  panel_->Refresh();
  EXPECT_EQ(recorder_.Take(), Texts{});
}

struct PressRow {
  const char* name;
  Widget& (*widget)(StrategyDataPanel&);
};

class StrategyDataPanelPressTest : public StrategyDataPanelBehaviourTest,
                                   public testing::WithParamInterface<PressRow> {};

TEST_P(StrategyDataPanelPressTest, IsReportedOnce) {
  for (const std::int16_t button : {LeftButton, RightButton}) {
    robot_->MouseDown(GetParam().widget(*panel_), button, 0);
    EXPECT_EQ(recorder_.Take(), Texts{"PanelClick#1"}) << button;
  }
  panel_->Extender().Enabled(false);
  robot_->MouseDown(GetParam().widget(*panel_), LeftButton, 0);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_P(StrategyDataPanelPressTest, AHandlerMayDestroyThePanel) {
  for (const bool withWindow : {false, true}) {
    if (!panel_) {
      panel_ = std::make_unique<StrategyDataPanel>(robot_->NewSite());
      recorder_.Watch(panel_->Events.All());
      robot_->Show(*panel_);
    }
    panel_->Events.PanelClick.Connect([this, withWindow] { Destroy(withWindow); });
    robot_->MouseDown(GetParam().widget(*panel_), LeftButton, 0);
    EXPECT_EQ(panel_, nullptr);
    robot_->Wait(20);
    EXPECT_EQ(recorder_.Take(), Texts{"PanelClick#1"});
  }
  EXPECT_TRUE(robot_->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Places, StrategyDataPanelPressTest,
    testing::Values(
        PressRow{"Panel", [](StrategyDataPanel& panel) -> Widget& { return panel.Children.panelStrategyInformation; }},
        PressRow{"Value", [](StrategyDataPanel& panel) -> Widget& { return panel.Children.datAces; }},
        PressRow{"Title", [](StrategyDataPanel& panel) -> Widget& { return panel.Children.Label1; }},
        PressRow{"Line", [](StrategyDataPanel& panel) -> Widget& { return panel.Children.Line1; }},
        PressRow{"Count",
                 [](StrategyDataPanel& panel) -> Widget& {
                   return panel.Children.CountDisplay.Children.TrueCountDisplay.Children.labelCountValue;
                 }}),
    RowName());

TEST_F(StrategyDataPanelBehaviourTest, TheControlBesideThePanelReportsToo) {
  Children().panelStrategyInformation.Width(300);
  robot_->MouseDown(panel_->Extender(), LeftButton, 0);
  EXPECT_EQ(recorder_.Take(), Texts{"PanelClick#1"});
}

TEST_F(StrategyDataPanelBehaviourTest, AnErrorOfAHandlerEndsAtTheSite) {
  panel_->Events.PanelClick.Connect([] { throw Error(4711); });
  robot_->MouseDown(Children().datAces, LeftButton, 0);
  ASSERT_EQ(robot_->Errors().size(), 1U);
  EXPECT_EQ(robot_->Errors()[0].Code(), 4711);
}

}  // namespace
}  // namespace tactix::tests
