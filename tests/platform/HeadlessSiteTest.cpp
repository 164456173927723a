#include "tactix/platform/headless/HeadlessSite.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// Two timers and a list of what went on, for the clock and its waits.
struct Clock {
  HeadlessSite site;
  Timer slow{site};
  Timer fast{site};
  Log log;

  Clock() {
    slow.Tick.Connect([this] { Note("slow"); });
    fast.Tick.Connect([this] { Note("fast"); });
  }
  void Note(const std::string& what) { log.push_back(what + " " + std::to_string(site.Now())); }
  static void Start(Timer& timer, std::int32_t interval) {
    timer.Interval(interval);
    timer.Enabled(true);
  }
};

TEST(HeadlessClockTest, RunsInOrderOfTimeAndThenOfStart) {
  Clock c;
  Clock::Start(c.slow, 200);
  Clock::Start(c.fast, 100);
  c.site.After(200, [&c] { c.Note("action"); });
  c.site.After(50, [&c] { c.Note("early"); });
  c.site.After(0, [&c] { c.Note("at once"); });
  c.site.Advance(200);
  EXPECT_EQ(c.log, (Log{"at once 0", "early 50", "fast 100", "slow 200", "action 200", "fast 200"}));
  EXPECT_EQ(c.site.Now(), 200);
}

TEST(HeadlessClockTest, StandsStillUnlessTimeIsLetPass) {
  Clock c;
  Clock::Start(c.fast, 1);
  c.site.Advance(0);
  c.site.Beep();
  EXPECT_EQ(c.site.Now(), 0);
  EXPECT_EQ(c.log, Log{});
}

TEST(HeadlessClockTest, AnActionMayScheduleTheNext) {
  Clock c;
  c.site.After(10, [&c] {
    c.Note("first");
    c.site.After(10, [&c] { c.Note("second"); });
  });
  c.site.Advance(15);
  EXPECT_EQ(c.log, Log{"first 10"});
  c.site.Advance(5);
  EXPECT_EQ(c.log, (Log{"first 10", "second 20"}));
}

TEST(HeadlessWaitTest, DoesNotRunTheLoopWhenItIsDoneAlready) {
  Clock c;
  Clock::Start(c.fast, 1);
  c.site.RunUntil([] { return true; });
  EXPECT_EQ(c.site.Now(), 0);
}

TEST(HeadlessWaitTest, EndsWithTheTickThatSetsItsFlag) {
  Clock c;
  Clock::Start(c.slow, 200);
  Clock::Start(c.fast, 150);
  c.site.RunUntil([&c] { return c.log.size() == 2; });
  EXPECT_EQ(c.log, (Log{"fast 150", "slow 200"}));
  EXPECT_EQ(c.site.Now(), 200);
}

TEST(HeadlessWaitTest, AnOuterWaitGoesOnOnlyAfterTheInnerOne) {
  Clock c;
  bool outerDone = false;
  bool innerDone = false;
  c.site.After(100, [&] { outerDone = true; });
  c.site.After(500, [&] { innerDone = true; });
  c.site.After(50, [&] {
    c.Note("inner begins");
    c.site.RunUntil([&] { return innerDone; });
    c.Note("inner ends");
  });
  c.site.RunUntil([&] { return outerDone; });
  c.Note("outer ends");
  EXPECT_EQ(c.log, (Log{"inner begins 50", "inner ends 500", "outer ends 500"}));
}

TEST(HeadlessWaitTest, AnOuterWaitGoesOnAtOnceWhenTheInnerOnesTickSetsTheirCommonFlag) {
  HeadlessProbe probe;
  probe.site->After(300, [&probe] {
    probe.recorder.Note("inner begins");
    probe.outer->WaitFor(400);
    probe.recorder.Note("inner ends at " + std::to_string(probe.site->Now()));
  });
  probe.outer->WaitFor(400);
  probe.recorder.Note("outer ends at " + std::to_string(probe.site->Now()));
  EXPECT_EQ(probe.recorder.Take(),
            (Log{"inner begins", "WaitEnded#7", "inner ends at 700", "WaitEnded#7", "outer ends at 700"}));
}

TEST(HeadlessWaitTest, AWaitOfZeroEndsWithTheNextTick) {
  HeadlessProbe probe;
  probe.outer->WaitFor(0);
  EXPECT_EQ(probe.recorder.Take(), Log{"WaitEnded#7"});
  EXPECT_LE(probe.site->Now(), 1);
}

TEST(HeadlessWaitTest, AWaitThatNothingCanEndFails) {
  Clock c;
  Clock::Start(c.fast, 100);
  c.site.After(250, [&c] { c.fast.Enabled(false); });
  EXPECT_THROW(c.site.RunUntil([] { return false; }), std::logic_error);
  EXPECT_EQ(c.log, (Log{"fast 100", "fast 200"}));
}

TEST(HeadlessWaitTest, EndsWithItsControl) {
  HeadlessProbe probe;
  probe.site->After(100, [&probe] { probe.DestroyControl(); });
  probe.outer->WaitFor(400);
  EXPECT_EQ(probe.recorder.Take(), Log{});
  EXPECT_EQ(probe.site->Now(), 100);
}

TEST(HeadlessWaitTest, EndsWithItsSite) {
  HeadlessProbe probe;
  probe.site->After(100, [&probe] { probe.DestroyWindow(); });
  probe.outer->WaitFor(400);
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(HeadlessWaitTest, EndsWithItsSiteThoughItIsNotDone) {
  HeadlessProbe probe;
  probe.site->After(100, [&probe] { probe.DestroyWindow(); });
  EXPECT_NO_THROW(probe.site->RunUntil([] { return false; }));
  EXPECT_FALSE(probe.site);
}

TEST(HeadlessClockTest, ASiteMayEndWhileItsTimePasses) {
  HeadlessProbe probe;
  probe.site->After(100, [&probe] { probe.DestroyWindow(); });
  probe.site->After(200, [&probe] { probe.recorder.Note("too late"); });
  probe.site->Advance(1000);
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(HeadlessMenuTest, ClosesWithoutAChoiceWhenThereIsNoScript) {
  HeadlessProbe probe;
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), Log{"MenuClosed#6"});
  EXPECT_FALSE(probe.Children().ProbeMenu.IsOpen());
  ASSERT_EQ(probe.site->PopUps().size(), 1U);
  EXPECT_EQ(probe.site->PopUps()[0].caption, "Probe");
  EXPECT_EQ(probe.site->PopUps()[0].x, 200);
  EXPECT_EQ(probe.site->PopUps()[0].y, 300);
}

TEST(HeadlessMenuTest, ScriptsQueueUp) {
  HeadlessProbe probe;
  probe.site->ScriptMenu([&probe](Menu& menu) {
    EXPECT_TRUE(menu.IsOpen());
    probe.Children().PlainEntry.Choose();
    probe.recorder.Note("script ends");
  });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().CheckedEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(1)", "script ends", "MenuClosed#6"}));
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(2)", "MenuClosed#6"}));
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), Log{"MenuClosed#6"});
}

TEST(HeadlessMenuTest, ClosesWhenItsScriptFails) {
  HeadlessProbe probe;
  probe.site->ScriptMenu([](Menu&) { throw 13; });
  EXPECT_THROW(probe.outer->PopUpMenu(), int);
  EXPECT_FALSE(probe.Children().ProbeMenu.IsOpen());
}

TEST(HeadlessMenuTest, ASecondPopUpClosesTheFirstWhoseCallReturnsLater) {
  HeadlessSite site;
  OuterProbe first(site);
  OuterProbe second(site);
  EventRecorder recorder;
  recorder.Watch(first.Events.All(), "first");
  recorder.Watch(second.Events.All(), "second");
  site.ScriptMenu([&](Menu& menu) {
    second.PopUpMenu();
    EXPECT_FALSE(menu.IsOpen());
    first.Children.PlainEntry.Choose();
  });
  site.ScriptMenu([&](Menu& menu) {
    EXPECT_TRUE(menu.IsOpen());
    EXPECT_FALSE(first.Children.ProbeMenu.IsOpen());
    second.Children.PlainEntry.Choose();
  });
  first.PopUpMenu();
  EXPECT_EQ(recorder.Take(), (Log{"second.MenuChosen#5(1)", "second.MenuClosed#6", "first.MenuClosed#6"}));
}

TEST(HeadlessMenuTest, AHandlerOfAnEntryMayPopUpTheSameMenu) {
  HeadlessProbe probe;
  const ScopedConnection again = probe.Children().PlainEntry.Chosen.Connect([&probe] { probe.outer->PopUpMenu(); });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().PlainEntry.Choose(); });
  probe.site->ScriptMenu([&probe](Menu&) { probe.Children().CheckedEntry.Choose(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MenuChosen#5(1)", "MenuChosen#5(2)", "MenuClosed#6", "MenuClosed#6"}));
}

TEST(HeadlessMenuTest, TheMenuMayBeDestroyedWhileItIsOpen) {
  HeadlessProbe probe;
  probe.site->ScriptMenu([&probe](Menu&) { probe.DestroyControl(); });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), Log{});
  HeadlessProbe another;
  another.site->ScriptMenu([&another](Menu&) { another.DestroyWindow(); });
  another.outer->PopUpMenu();
  EXPECT_EQ(another.recorder.Take(), Log{});
}

TEST(HeadlessMenuTest, MouseMovesReachTheControlWhileAMenuIsOpen) {
  HeadlessProbe probe;
  probe.site->ScriptMenu([&probe](Menu& menu) {
    probe.Children().ButtonPanel.MouseMove({0, ShiftKey, 1, 1});
    EXPECT_TRUE(menu.IsOpen());
  });
  probe.outer->PopUpMenu();
  EXPECT_EQ(probe.recorder.Take(), (Log{"MouseWasMoved#11(0, 1)", "MenuClosed#6"}));
}

TEST(HeadlessRecordTest, KeepsWhatControlsAskedForUntilItIsForgotten) {
  HeadlessProbe probe;
  probe.site->Beep();
  probe.outer->Tag("x");
  probe.outer->PopUpMenu();
  probe.site->Unhandled(Error(Error::Overflow));
  EXPECT_EQ(probe.site->Beeps(), 1);
  EXPECT_EQ(probe.site->Changes(), Log{"Tag"});
  EXPECT_EQ(probe.site->PopUps().size(), 1U);
  EXPECT_EQ(probe.site->Errors().size(), 1U);
  probe.site->ForgetRecords();
  EXPECT_EQ(probe.site->Beeps(), 0);
  EXPECT_EQ(probe.site->Changes(), Log{});
  EXPECT_TRUE(probe.site->PopUps().empty());
  EXPECT_TRUE(probe.site->Errors().empty());
}

TEST(HeadlessSiteTest, HasTheseDefaults) {
  const HeadlessSite site;
  EXPECT_TRUE(site.UserMode());
  EXPECT_EQ(site.ScreenWidth(), 15360);
  EXPECT_EQ(site.ScreenHeight(), 11520);
  EXPECT_EQ(site.AmbientFont(), Font());
  EXPECT_EQ(site.AmbientForeColor(), WindowTextColor);
  EXPECT_EQ(site.AmbientBackColor(), ButtonFaceColor);
  EXPECT_EQ(site.Focus(), nullptr);
  EXPECT_EQ(site.Now(), 0);
}

}  // namespace
}  // namespace tactix::tests
