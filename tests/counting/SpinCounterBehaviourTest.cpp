#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/counting/SpinCounter.h"
#include "tactix/platform/Error.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/Robot.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using SpinBy = Robot::SpinBy;
using Turn = void (Robot::*)(SpinButton&, SpinBy);

constexpr Turn Up = &Robot::SpinUp;
constexpr Turn Down = &Robot::SpinDown;
constexpr SpinBy AllWays[] = {SpinBy::Mouse, SpinBy::Wheel, SpinBy::ArrowKey};

/// A spin counter at a user's window.
class SpinCounterBehaviourTest : public testing::Test {
 protected:
  SpinCounterBehaviourTest() {
    counter_->InitProperties();
    recorder_.Watch(counter_->Events.All());
    robot_->Show(*counter_);
  }
  ~SpinCounterBehaviourTest() override { counter_.reset(); }

  SpinButton& Spin() const { return counter_->Children.SpinButton; }
  std::string Seen() const { return robot_->SeesText(counter_->Children.labelCardsInStack); }
  static Texts Changed(int number) { return {"CounterValueHasChanged#1(" + std::to_string(number) + ")"}; }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { counter_.reset(); });
    } else {
      counter_.reset();
    }
  }

  const InstalledCounterValues installed_;
  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<SpinCounter> counter_ = std::make_unique<SpinCounter>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(SpinCounterBehaviourTest, ShowsNoNumberAtFirst) {
  EXPECT_EQ(Seen(), "(###)");
  EXPECT_TRUE(robot_->SeesShown(Spin()));
  counter_->CounterValue(7);
  EXPECT_EQ(Seen(), "(007)");
}

TEST_F(SpinCounterBehaviourTest, EveryWayToSpinStepsByOne) {
  int number = 0;
  for (const SpinBy by : AllWays) {
    for (int time = 0; time < 2; ++time) {
      robot_->SpinUp(Spin(), by);
      EXPECT_EQ(recorder_.Take(), Changed(++number));
    }
    robot_->SpinDown(Spin(), by);
    EXPECT_EQ(recorder_.Take(), Changed(--number));
    EXPECT_EQ(Seen(), "(00" + std::to_string(number) + ")");
    EXPECT_EQ(robot_->Focus(), &Spin());
  }
  Texts notices(10, "CounterValue");
  notices[0] = "MaximumLimit";  // of the new counter
  EXPECT_EQ(robot_->Changes(), notices);
  EXPECT_TRUE(robot_->Errors().empty());
}

struct SpinAtEndRow {
  const char* name;
  bool wraps;
  bool negatives;
  std::int16_t from;
  Turn turn;
  int to;
  const char* seen;
};

class SpinCounterAtEndTest : public SpinCounterBehaviourTest, public testing::WithParamInterface<SpinAtEndRow> {};

TEST_P(SpinCounterAtEndTest, EndsThere) {
  const SpinAtEndRow& row = GetParam();
  counter_->MaximumLimit(52);
  counter_->NumberWrap(row.wraps);
  counter_->AllowNegNumbers(row.negatives);
  for (const SpinBy by : AllWays) {
    counter_->CounterValue(row.from);
    recorder_.Forget();
    (*robot_.*row.turn)(Spin(), by);
    EXPECT_EQ(recorder_.Take(), Changed(row.to));
    EXPECT_EQ(Seen(), row.seen);
  }
  EXPECT_EQ(robot_->Beeps(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterAtEndTest,
                         testing::Values(SpinAtEndRow{"StopsAtTheLimit", false, false, 52, Up, 52, "(052)"},
                                         SpinAtEndRow{"NeverWrapsUp", true, true, 52, Up, 52, "(052)"},
                                         SpinAtEndRow{"StopsAtZero", false, false, 0, Down, 0, "(000)"},
                                         SpinAtEndRow{"WrapsDown", true, false, 0, Down, 52, "(052)"},
                                         SpinAtEndRow{"WrapsThoughNegative", true, true, 0, Down, 52, "(052)"},
                                         SpinAtEndRow{"GoesBelowZero", false, true, 0, Down, -1, "(-001)"},
                                         SpinAtEndRow{"StopsFarBelowZero", false, true, -999, Down, -999, "(-999)"}),
                         RowName());

TEST_F(SpinCounterBehaviourTest, OtherKeysDoNothing) {
  Spin().SetFocus();
  for (const std::int32_t key :
       {std::int32_t{'U'}, std::int32_t{' '}, std::int32_t{HomeKey}, std::int32_t{ReturnKey}}) {
    robot_->PressKey(key);
  }
  robot_->PressKey(UpArrowKey, CtrlKey);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(SpinCounterBehaviourTest, SpinsInEveryLayout) {
  counter_->Extender().Height(420 * 15);
  int number = 0;
  for (const int handedness : {1, 2, 3, 4}) {
    counter_->ControlHandedness(handedness);
    for (const SpinBy by : AllWays) {
      robot_->SpinUp(Spin(), by);
      robot_->SpinUp(Spin(), by);
      robot_->SpinDown(Spin(), by);
      EXPECT_EQ(counter_->CounterValue(), ++number) << handedness;
    }
  }
}

TEST_F(SpinCounterBehaviourTest, DoesNotSpinWhileItCannotBeReached) {
  const auto spinAll = [this] {
    for (const SpinBy by : AllWays) {
      robot_->SpinUp(Spin(), by);
      robot_->SpinDown(Spin(), by);
    }
  };
  Spin().Enabled(false);
  EXPECT_FALSE(robot_->SeesEnabled(Spin()));
  spinAll();
  Spin().Enabled(true);
  counter_->Extender().Enabled(false);
  spinAll();
  counter_->Extender().Enabled(true);
  Spin().Visible(false);
  spinAll();
  EXPECT_EQ(recorder_.Take(), Texts{});
  Spin().Visible(true);
  robot_->SpinUp(Spin());
  EXPECT_EQ(recorder_.Take(), Changed(1));
}

TEST_F(SpinCounterBehaviourTest, AnErrorOfAHandlerEndsAtTheSite) {
  counter_->Events.CounterValueHasChanged.Connect([](std::int16_t&) { throw Error(4711); });
  for (const SpinBy by : AllWays) robot_->SpinUp(Spin(), by);
  ASSERT_EQ(robot_->Errors().size(), 3U);
  EXPECT_EQ(robot_->Errors()[2].Code(), 4711);
  EXPECT_EQ(Seen(), "(003)");
}

struct DestroySpinRow {
  const char* name;
  SpinBy by;
  bool withWindow;
};

class SpinCounterDestroyBehaviourTest : public SpinCounterBehaviourTest,
                                        public testing::WithParamInterface<DestroySpinRow> {
 protected:
  void SpinAndExpectItGone(const Texts& events) {
    robot_->SpinUp(Spin(), GetParam().by);
    EXPECT_EQ(counter_, nullptr);
    robot_->Wait(50);
    EXPECT_EQ(recorder_.Take(), events);
    EXPECT_TRUE(robot_->Errors().empty());
  }
};

TEST_P(SpinCounterDestroyBehaviourTest, InTheEvent) {
  counter_->Events.CounterValueHasChanged.Connect([this](std::int16_t&) { Destroy(GetParam().withWindow); });
  SpinAndExpectItGone(Changed(1));
}

TEST_P(SpinCounterDestroyBehaviourTest, InTheNotice) {
  robot_->OnPropertyChanged([this] { Destroy(GetParam().withWindow); });
  SpinAndExpectItGone({});
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterDestroyBehaviourTest,
                         testing::Values(DestroySpinRow{"ControlByMouse", SpinBy::Mouse, false},
                                         DestroySpinRow{"ControlByWheel", SpinBy::Wheel, false},
                                         DestroySpinRow{"ControlByKey", SpinBy::ArrowKey, false},
                                         DestroySpinRow{"WindowByMouse", SpinBy::Mouse, true},
                                         DestroySpinRow{"WindowByWheel", SpinBy::Wheel, true},
                                         DestroySpinRow{"WindowByKey", SpinBy::ArrowKey, true}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
