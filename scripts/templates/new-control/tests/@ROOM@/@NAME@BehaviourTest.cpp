// The control at a user's window.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/@ROOM@/@NAME@.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

class @NAME@BehaviourTest : public testing::Test {
 protected:
  @NAME@BehaviourTest() {
    control_->InitProperties();
    recorder_.Watch(control_->Events.All());
    robot_->Show(*control_);
  }
  ~@NAME@BehaviourTest() override { control_.reset(); }
  PushButton& Button() const { return control_->Children.ValueButton; }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<@NAME@> control_ = std::make_unique<@NAME@>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(@NAME@BehaviourTest, AClickShowsTheNextNumber) {
  robot_->Click(Button());
  robot_->Click(Button());
  EXPECT_EQ(robot_->SeesText(Button()), "2");
  EXPECT_EQ(recorder_.Take(), (std::vector<std::string>{"ValueChanged#1(1)", "ValueChanged#1(2)"}));
  EXPECT_EQ(robot_->Focus(), &Button());
}

TEST_F(@NAME@BehaviourTest, AHandlerMayDestroyIt) {
  control_->Events.ValueChanged.Connect([this](std::int16_t) { control_.reset(); });
  robot_->Click(Button());
  EXPECT_EQ(control_, nullptr);
}

}  // namespace
}  // namespace tactix::tests
