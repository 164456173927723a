#include "tactix/platform/Timer.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// A timer that notes the time of each tick.
struct Ticking {
  HeadlessSite site;
  std::optional<Timer> timer{site};
  std::vector<std::int64_t> ticks;

  Ticking() {
    timer->Tick.Connect([this] { ticks.push_back(site.Now()); });
  }
};

using Ticks = std::vector<std::int64_t>;

TEST(TimerTest, IsOffAndAtZeroByDefault) {
  Ticking t;
  EXPECT_FALSE(t.timer->Enabled());
  EXPECT_EQ(t.timer->Interval(), 0);
  t.site.Advance(1000);
  EXPECT_EQ(t.ticks, Ticks{});
}

struct TimerRow {
  const char* name;
  std::function<void(Ticking&)> run;
  Ticks ticks;
};

class TimerRowTest : public testing::TestWithParam<TimerRow> {};

TEST_P(TimerRowTest, TicksAtTheseTimes) {
  Ticking t;
  GetParam().run(t);
  EXPECT_EQ(t.ticks, GetParam().ticks);
}

void Start(Ticking& t, std::int32_t interval) {
  t.timer->Interval(interval);
  t.timer->Enabled(true);
}

const TimerRow TimerRows[] = {{"KeepsTicking",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(799);
                               },
                               {200, 400, 600}},
                              {"SettingTheIntervalRestarts",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(150);
                                 t.timer->Interval(100);
                                 t.site.Advance(200);
                               },
                               {250, 350}},
                              {"SettingTheSameIntervalRestarts",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(150);
                                 t.timer->Interval(200);
                                 t.site.Advance(250);
                               },
                               {350}},
                              {"SettingTheIntervalOfAStoppedOneStartsNothing",
                               [](Ticking& t) {
                                 t.timer->Interval(200);
                                 t.site.Advance(1000);
                               },
                               {}},
                              {"EnablingAgainDoesNotRestart",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(150);
                                 t.timer->Enabled(true);
                                 t.site.Advance(100);
                               },
                               {200}},
                              {"StopsWhenDisabled",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(200);
                                 t.timer->Enabled(false);
                                 t.site.Advance(1000);
                               },
                               {200}},
                              {"CountsFromItsStart",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(150);
                                 t.timer->Enabled(false);
                                 t.timer->Enabled(true);
                                 t.site.Advance(250);
                               },
                               {350}},
                              {"ZeroTicksAsSoonAsTheLoopRuns",
                               [](Ticking& t) {
                                 Start(t, 0);
                                 t.site.RunUntil([&t] { return t.ticks.size() == 2; });
                               },
                               {1, 2}},
                              {"DisabledInItsTick",
                               [](Ticking& t) {
                                 t.timer->Tick.Connect([&t] { t.timer->Enabled(false); });
                                 Start(t, 200);
                                 t.site.Advance(1000);
                               },
                               {200}},
                              {"RestartedInItsTick",
                               [](Ticking& t) {
                                 t.timer->Tick.Connect([&t] { t.timer->Interval(t.timer->Interval() * 2); });
                                 Start(t, 100);
                                 t.site.Advance(1000);
                               },
                               {100, 300, 700}},
                              {"DestroyedWhileItRuns",
                               [](Ticking& t) {
                                 Start(t, 200);
                                 t.site.Advance(300);
                                 t.timer.reset();
                                 t.site.Advance(1000);
                               },
                               {200}},
                              {"DestroyedInItsTick",
                               [](Ticking& t) {
                                 t.timer->Tick.Connect([&t] { t.timer.reset(); });
                                 t.timer->Tick.Connect([&t] { t.ticks.push_back(-1); });
                                 Start(t, 200);
                                 t.site.Advance(1000);
                               },
                               {200}},
                              {"GoesOnAfterAnErrorOfAHandler",
                               [](Ticking& t) {
                                 t.timer->Tick.Connect([] { throw Error(Error::Overflow); });
                                 Start(t, 200);
                                 t.site.Advance(400);
                                 EXPECT_EQ(t.site.Errors().size(), 2U);
                               },
                               {200, 400}}};

INSTANTIATE_TEST_SUITE_P(Rows, TimerRowTest, testing::ValuesIn(TimerRows), RowName());

TEST(TimerTest, ANegativeIntervalFailsAndChangesNothing) {
  Ticking t;
  Start(t, 200);
  t.site.Advance(150);
  try {
    t.timer->Interval(-1);
    FAIL() << "a negative interval was taken";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), 380);
  }
  EXPECT_EQ(t.timer->Interval(), 200);
  t.site.Advance(50);
  EXPECT_EQ(t.ticks, Ticks{200});
}

TEST(TimerTest, ATimerOfANestedSiteTicks) {
  HeadlessSite site;
  NestedSite nested(site);
  int ticks = 0;
  {
    Timer timer(nested);
    timer.Tick.Connect([&ticks] { ++ticks; });
    timer.Interval(10);
    timer.Enabled(true);
    site.Advance(25);
  }
  site.Advance(100);
  EXPECT_EQ(ticks, 2);
}

}  // namespace
}  // namespace tactix::tests
