#include "tests/support-qt/TestClock.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <string>
#include <vector>

#include "tactix/platform/Timer.h"
#include "tests/support/When.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

constexpr int Hour = 3'600'000;

class TestClockTest : public testing::Test {
 protected:
  TestClock clock_;
  NativeProbeWindow window_;
  OuterProbe& probe_ = window_.Probe();
};

TEST_F(TestClockTest, AWaitTakesNoTime) {
  QElapsedTimer elapsed;
  elapsed.start();
  probe_.WaitFor(Hour);
  clock_.Wait(2 * Hour);
  EXPECT_EQ(clock_.Now(), 3 * Hour);
  EXPECT_LT(elapsed.elapsed(), Hour / 60);
}

TEST_F(TestClockTest, ThingsHappenInTheOrderOfTheirTimes) {
  Texts log;
  const auto note = [&](const char* what) { log.push_back(std::to_string(clock_.Now()) + " " + what); };
  Timer slow(window_.Itself().ItsSite());
  Timer fast(window_.Itself().ItsSite());
  slow.Tick.Connect([&] { note("slow"); });
  fast.Tick.Connect([&] { note("fast"); });
  slow.Interval(100);
  fast.Interval(40);
  slow.Enabled(true);
  fast.Enabled(true);
  clock_.After(90, [&] {
    note("action");
    fast.Enabled(false);
  });
  clock_.After(40, [&] { note("after the tick that was there first"); });
  clock_.Wait(210);
  EXPECT_EQ(log, (Texts{"40 fast", "40 after the tick that was there first", "80 fast", "90 action", "100 slow",
                        "200 slow"}));
}

TEST_F(TestClockTest, ItStandsStillWhereNothingWaits) {
  clock_.After(0, [] { FAIL() << "nothing has waited"; });
  Settle();
  QTimer::singleShot(0, &window_.Window(), [] { Settle(); });
  Settle();
  EXPECT_EQ(clock_.Now(), 0);
}

TEST_F(TestClockTest, WhatElseIsToBeDoneComesFirst) {
  Texts log;
  clock_.After(0, [&log] { log.emplace_back("due"); });
  const auto post = [this](std::function<void()> action) {
    QMetaObject::invokeMethod(&window_.Window(), std::move(action), Qt::QueuedConnection);
  };
  post([&] {
    post([&log] { log.emplace_back("posted"); });
    // A loop that does not wait, in one that does.
    Settle();
    log.emplace_back("settled");
  });
  clock_.Wait(1);
  EXPECT_EQ(log, (Texts{"posted", "settled", "due"}));
}

TEST_F(TestClockTest, WaitsNest) {
  std::vector<std::int64_t> ends;
  clock_.After(50, [&] {
    clock_.Wait(200);
    ends.push_back(clock_.Now());
  });
  clock_.Wait(100);
  ends.push_back(clock_.Now());
  EXPECT_EQ(ends, (std::vector<std::int64_t>{250, 250}));
}

TEST_F(TestClockTest, WhenWaitsForWhatItWaitsFor) {
  std::int64_t at = 0;
  bool isSeen = false;
  When(
      clock_, [&isSeen] { return isSeen; }, [&] { at = clock_.Now(); });
  clock_.After(70, [&isSeen] { isSeen = true; });
  clock_.Wait(100);
  EXPECT_EQ(at, 70);
}

TEST(TestClockEndTest, WhatWasToComeIsForgottenWithIt) {
  {
    TestClock first;
    first.After(10, [] { FAIL() << "its test is over"; });
  }
  TestClock second;
  second.Wait(20);
}

TEST(TestClockEndTest, AnEarlierOneLeavesALaterOneInPlace) {
  auto earlier = std::make_unique<TestClock>();
  TestClock later;
  earlier.reset();
  NativeProbeWindow window;
  window.Probe().WaitFor(Hour);
  EXPECT_EQ(later.Now(), Hour);
}

}  // namespace
}  // namespace tactix::tests
