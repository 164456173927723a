#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <ctime>
#include <string>
#include <vector>

#include "tactix/decision/Flash.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// By the clock on the wall, as for users; most tests have a TestClock.
class QtWaitTest : public testing::Test {
 protected:
  QtWaitTest() { window_.Show(); }

  NativeProbeWindow window_;
  OuterProbe& probe_ = window_.Probe();
};

double ProcessMilliseconds() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

TEST_F(QtWaitTest, SleepsWhileItWaits) {
  QElapsedTimer elapsed;
  elapsed.start();
  const double before = ProcessMilliseconds();
  for (int i = 0; i < 2 * FlashRounds; ++i) {
    window_.Children().FirstButton.Visible(i % 2 == 1);
    probe_.WaitFor(FlashStep);
  }
  const double used = ProcessMilliseconds() - before;
  EXPECT_GE(elapsed.elapsed(), FlashDuration - 10);
#if !defined(__SANITIZE_ADDRESS__)
  // 1 % of a core.
  EXPECT_LT(used, FlashDuration / 100);
#else
  static_cast<void>(used);
#endif
}

TEST_F(QtWaitTest, EndsOnTime) {
  QElapsedTimer elapsed;
  elapsed.start();
  probe_.WaitFor(200);
  EXPECT_GE(elapsed.elapsed(), 199);
  // Far more than any machine is late.
  EXPECT_LT(elapsed.elapsed(), 30000);
}

TEST_F(QtWaitTest, OfNothingEndsWithTheNextTick) {
  probe_.WaitFor(0);
  EXPECT_EQ(window_.Recorder().Take(), Texts{"WaitEnded#7"});
}

TEST_F(QtWaitTest, TheUserInterfaceGoesOn) {
  QTimer::singleShot(50, &window_.Window(), [this] {
    ClickAt(window_.Window(), ReachablePlace(*NativeOf(window_.Children().FirstButton)).value());
  });
  probe_.WaitFor(200);
  EXPECT_EQ(window_.Recorder().Take(), (Texts{"FirstClicked#1", "WaitEnded#7"}));
}

TEST_F(QtWaitTest, AnOuterOneGoesOnAfterTheInnerOne) {
  ProbeWidget other(&window_.Window());
  QTimer::singleShot(20, &window_.Window(), [&] {
    other.Probe().WaitFor(300);
    window_.Recorder().Note("inner");
  });
  probe_.WaitFor(100);
  EXPECT_EQ(window_.Recorder().Take(), (Texts{"inner", "WaitEnded#7"}));
}

TEST_F(QtWaitTest, InADialogLoopOfTheHostItStillSleeps) {
  double used = 0;
  QTimer::singleShot(20, &window_.Window(), [&used] {
    // Runs on after the wait's own time is over.
    QEventLoop loop;
    QTimer::singleShot(500, &loop, &QEventLoop::quit);
    const double before = ProcessMilliseconds();
    loop.exec();
    used = ProcessMilliseconds() - before;
  });
  probe_.WaitFor(100);
  EXPECT_LT(used, 100);
}

TEST_F(QtWaitTest, EndsWhenTheApplicationQuits) {
  QElapsedTimer elapsed;
  elapsed.start();
  QTimer::singleShot(10, &window_.Window(), [this] { probe_.WaitFor(60000); });
  QTimer::singleShot(60, qApp, [] { QCoreApplication::exit(7); });
  EXPECT_EQ(QApplication::exec(), 7);
  EXPECT_LT(elapsed.elapsed(), 30000);
}

TEST_F(QtWaitTest, ATimerTicksUntilItIsDisabled) {
  int ticks = 0;
  Timer timer(window_.Itself().ItsSite());
  timer.Tick.Connect([&] {
    if (++ticks == 3) timer.Enabled(false);
  });
  int others = 0;
  Timer other(window_.Itself().ItsSite());
  other.Tick.Connect([&others] { ++others; });
  for (Timer* each : {&timer, &other}) {
    each->Interval(10);
    each->Enabled(true);
  }
  EXPECT_TRUE(QTest::qWaitFor([&others] { return others >= 8; }, 60000));
  EXPECT_EQ(ticks, 3);
}

}  // namespace
}  // namespace tactix::tests
