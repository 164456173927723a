// What the player sees of the count displays.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/counting/DualCardCountDisplay.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

class CountDisplayBehaviourTest : public testing::Test {
 protected:
  std::unique_ptr<Robot> robot_ = Robot::Make();
};

TEST_F(CountDisplayBehaviourTest, ABoxShowsItsCount) {
  CardCountDisplayBox box(robot_->NewSite());
  box.InitProperties();
  robot_->Show(box);
  EXPECT_EQ(robot_->SeesText(box.Children.labelCountLabel), "");
  EXPECT_EQ(robot_->SeesText(box.Children.labelCountValue), "-99");
  box.CountBoxType(TypeOfCountBox::CountBoxIsRunningCount);
  box.CountValue(7);
  EXPECT_EQ(robot_->SeesText(box.Children.labelCountLabel), "RC");
  EXPECT_EQ(robot_->SeesText(box.Children.labelCountValue), "7");
  EXPECT_EQ(robot_->Changes(), std::vector<std::string>{"CountBoxType"});
}

TEST_F(CountDisplayBehaviourTest, ASavedBoxShowsItsTag) {
  CardCountDisplayBox box(robot_->NewSite());
  MemoryPropertyBag bag;
  bag.Write("CountBoxType", 2);
  box.ReadProperties(bag);
  robot_->Show(box);
  EXPECT_EQ(robot_->SeesText(box.Children.labelCountLabel), "TC");
}

TEST_F(CountDisplayBehaviourTest, ANoticeMayDestroyTheBox) {
  for (const bool withWindow : {false, true}) {
    auto box = std::make_unique<CardCountDisplayBox>(robot_->NewSite());
    box->InitProperties();
    robot_->Show(*box);
    robot_->OnPropertyChanged([&] {
      if (withWindow) {
        robot_->DestroyWindow([&] { box.reset(); });
      } else {
        box.reset();
      }
    });
    box->CountBoxType(1);
    EXPECT_EQ(box, nullptr);
    robot_->Wait(20);
  }
  EXPECT_TRUE(robot_->Errors().empty());
}

TEST_F(CountDisplayBehaviourTest, ADualDisplayShowsBothCounts) {
  DualCardCountDisplay display(robot_->NewSite());
  display.InitProperties();
  robot_->Show(display);
  display.TrueCountValue(3);
  display.RunningCountValue(-12);
  const CardCountDisplayBox::ChildWidgets& trueCount = display.Children.TrueCountDisplay.Children;
  const CardCountDisplayBox::ChildWidgets& runningCount = display.Children.RunningCountDisplay.Children;
  EXPECT_EQ(robot_->SeesText(trueCount.labelCountLabel), "TC");
  EXPECT_EQ(robot_->SeesText(trueCount.labelCountValue), "3");
  EXPECT_EQ(robot_->SeesText(runningCount.labelCountLabel), "RC");
  EXPECT_EQ(robot_->SeesText(runningCount.labelCountValue), "-12");
  for (const Label* label : {&trueCount.labelCountLabel, &trueCount.labelCountValue, &runningCount.labelCountLabel,
                             &runningCount.labelCountValue}) {
    EXPECT_TRUE(robot_->SeesShown(*label));
  }
  EXPECT_TRUE(robot_->Changes().empty());
}

}  // namespace
}  // namespace tactix::tests
