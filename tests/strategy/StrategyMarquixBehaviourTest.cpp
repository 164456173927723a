#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/strategy/StrategyMarquix.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using PickBy = Robot::PickBy;

/// A filled marquee at a user's window: the seat and strategies 0 to 8, of which 3 is not present.
class StrategyMarquixBehaviourTest : public testing::Test {
 protected:
  StrategyMarquixBehaviourTest() {
    catalogue_->Describe(8);
    catalogue_->Playing[-1] = "note,Seat,0 1";
    catalogue_->Playing[3] = "note,Strategy 3,0 0";
    marquee_->InitProperties();
    marquee_->LoadStrategiesFromIniFile();
    recorder_.Watch(marquee_->Events.All());
    robot_->Show(*marquee_);
  }
  ~StrategyMarquixBehaviourTest() override { marquee_.reset(); }

  ListBox& Box() const { return marquee_->Children.StrategyListBox.Children.StrategyListBox; }
  OptionButton& Mark() const { return marquee_->Children.optStrategySelected; }

  InstalledCatalogue catalogue_;
  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<StrategyMarquix> marquee_ = std::make_unique<StrategyMarquix>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(StrategyMarquixBehaviourTest, ShowsItsCaptionOverItsList) {
  const Label& banner = marquee_->Children.labelStrategyBanner;
  EXPECT_EQ(robot_->SeesText(banner), "Strategy Un-defined");
  marquee_->Caption("Ann's strategy");
  EXPECT_EQ(robot_->SeesText(banner), "Ann's strategy");
  EXPECT_EQ(robot_->SeesText(Box()), "Select a Strategy");
  EXPECT_TRUE(robot_->SeesShown(Box()));
}

TEST_F(StrategyMarquixBehaviourTest, ShowsItsMarkForThePlayingTypeOnly) {
  for (const std::int32_t type : {0, 1, 2, 3, 2, 7, 5, 7}) {
    const bool before = robot_->SeesShown(Mark());
    marquee_->ControlType(type);
    EXPECT_EQ(robot_->SeesShown(Mark()), type == 7 ? before : type == 2) << type;
  }
}

TEST_F(StrategyMarquixBehaviourTest, ShowsWhetherItsStrategyIsInUse) {
  marquee_->ControlType(2);
  marquee_->SelectThisStrategy(true);
  EXPECT_TRUE(robot_->SeesMarked(Mark()));
  marquee_->SelectThisStrategy(false);
  EXPECT_FALSE(robot_->SeesMarked(Mark()));
  // The player may mark it, and not take that back by another click.
  for (int time = 0; time < 2; ++time) {
    robot_->Click(Mark());
    EXPECT_TRUE(robot_->SeesMarked(Mark()));
    EXPECT_TRUE(Mark().Value());
  }
  EXPECT_EQ(robot_->Focus(), &Mark());
  marquee_->SelectThisStrategy(false);
  robot_->PressKey(' ');
  EXPECT_TRUE(robot_->SeesMarked(Mark()));
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyMarquixBehaviourTest, PassesPicksOn) {
  robot_->PickRow(Box(), 3);
  robot_->PickRow(Box(), 2, PickBy::ArrowKey);
  robot_->PickRow(Box(), 6, PickBy::ReturnKey);
  EXPECT_EQ(recorder_.Take(),
            (Texts{"StrategySelectionChanged#3(2)", "StrategySelectionChanged#3(1)", "StrategySelectionChanged#3(5)"}));
  robot_->PickRow(Box(), 4);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->Beeps(), 1);
  EXPECT_EQ(robot_->SeesText(Box()), "Strategy 5");
  EXPECT_EQ(robot_->Changes(), Texts{});
}

TEST_F(StrategyMarquixBehaviourTest, GivesTheFocusToItsList) {
  marquee_->SetFocus();
  EXPECT_EQ(robot_->Focus(), &Box());
  robot_->PressKey(DownArrowKey);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#3(-1)"});
}

TEST_F(StrategyMarquixBehaviourTest, DisablesItsListOnly) {
  marquee_->Enabled(false);
  EXPECT_FALSE(robot_->SeesEnabled(Box()));
  EXPECT_TRUE(robot_->SeesEnabled(marquee_->Children.labelStrategyBanner));
  robot_->PickRow(Box(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyMarquixBehaviourTest, AHandlerMayDestroyTheMarquee) {
  marquee_->Events.StrategySelectionChanged.Connect([this](std::int32_t&) { marquee_.reset(); });
  robot_->PickRow(Box(), 3);
  EXPECT_EQ(marquee_, nullptr);
  robot_->Wait(20);
  EXPECT_TRUE(robot_->Errors().empty());
}

TEST_F(StrategyMarquixBehaviourTest, AHandlerMayDestroyTheWindow) {
  marquee_->Events.StrategySelectionChanged.Connect(
      [this](std::int32_t&) { robot_->DestroyWindow([this] { marquee_.reset(); }); });
  robot_->PickRow(Box(), 3, PickBy::ReturnKey);
  EXPECT_EQ(marquee_, nullptr);
  robot_->Wait(20);
  EXPECT_TRUE(robot_->Errors().empty());
}

}  // namespace
}  // namespace tactix::tests
