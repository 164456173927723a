#include "tactix/platform/UserAction.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// Something that a user, or the clock, sets off and whose handler throws; then it must end at the site.
struct ActionRow {
  const char* name;
  std::function<void(HeadlessProbe&, const std::function<void()>& handler)> connect;
  std::function<void(HeadlessProbe&)> act;
};

void ConnectInner(HeadlessProbe& p, const std::function<void()>& handler) {
  p.Children().Inner.Events.InnerClicked.Connect(handler);
}
void ConnectList(HeadlessProbe& p, const std::function<void()>& handler) {
  p.Children().RowList.Clicked.Connect(handler);
}
void ConnectMap(HeadlessProbe& p, const std::function<void()>& handler) {
  p.outer->Extender().OnKeyDown([handler](const KeyPress&) { handler(); });
}
void PressInOuter(HeadlessProbe& p, std::int32_t code) {
  p.outer->Extender().SetFocus();
  p.site->PressKey({code, 0});
}

const ActionRow Actions[] = {
    {"Click", ConnectInner, [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Click(); }},
    {"AccessKey", ConnectInner,
     [](HeadlessProbe& p) {
       p.site->PressKey({'I', AltKey});
     }},
    {"DefaultButton", ConnectInner,
     [](HeadlessProbe& p) {
       p.InnerChildren().InnerButton.DEFAULT(true);
       p.site->PressKey({ReturnKey, 0});
     }},
    {"Space", ConnectInner,
     [](HeadlessProbe& p) {
       p.InnerChildren().InnerButton.SetFocus();
       p.site->PressKey({' ', 0});
     }},
    {"GotFocus",
     [](HeadlessProbe& p, const std::function<void()>& handler) {
       p.Children().Inner.OnNote = [handler](const std::string&) { handler(); };
     },
     [](HeadlessProbe& p) { p.InnerChildren().InnerButton.Click(); }},
    {"Pick", ConnectList, [](HeadlessProbe& p) { p.Children().RowList.PickRow(1); }},
    {"ArrowKey", ConnectList,
     [](HeadlessProbe& p) {
       p.Children().RowList.SetFocus();
       p.site->PressKey({DownArrowKey, 0});
     }},
    {"KeyMap", ConnectMap, [](HeadlessProbe& p) { PressInOuter(p, 'H'); }},
    {"MouseDown",
     [](HeadlessProbe& p, const std::function<void()>& handler) {
       p.outer->Events.MouseWasDown.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](HeadlessProbe& p) {
       p.Children().ButtonPanel.MouseDown({LeftButton, 0, 1, 1});
     }},
    {"MouseMove",
     [](HeadlessProbe& p, const std::function<void()>& handler) {
       p.outer->Events.MouseWasMoved.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](HeadlessProbe& p) {
       p.Children().ButtonPanel.MouseMove({0, 0, 1, 1});
     }},
    {"MenuEntry",
     [](HeadlessProbe& p, const std::function<void()>& handler) { p.Children().PlainEntry.Chosen.Connect(handler); },
     [](HeadlessProbe& p) {
       p.site->ScriptMenu([&p](Menu&) { p.Children().PlainEntry.Choose(); });
       p.Children().MenuButton.Click();
     }},
    {"TimerTick",
     [](HeadlessProbe& p, const std::function<void()>& handler) { p.Children().WaitTimer.Tick.Connect(handler); },
     [](HeadlessProbe& p) {
       p.Children().WaitTimer.Interval(10);
       p.Children().WaitTimer.Enabled(true);
       p.site->Advance(10);
     }},
};

class UserActionTest : public testing::TestWithParam<ActionRow> {};

TEST_P(UserActionTest, AnErrorEndsAtTheOutermostSite) {
  HeadlessProbe probe;
  GetParam().connect(probe, [] { throw Error(Error::DivisionByZero, "description", "Decision::"); });
  EXPECT_NO_THROW(GetParam().act(probe));
  ASSERT_EQ(probe.site->Errors().size(), 1U);
  EXPECT_EQ(probe.site->Errors()[0].Code(), 11);
  EXPECT_EQ(probe.site->Errors()[0].Description(), "description");
  EXPECT_EQ(probe.site->Errors()[0].Source(), "Decision::");
}

TEST_P(UserActionTest, AForeignExceptionEndsThereAsAnInvalidCall) {
  HeadlessProbe probe;
  GetParam().connect(probe, [] { throw std::runtime_error("foreign"); });
  EXPECT_NO_THROW(GetParam().act(probe));
  ASSERT_EQ(probe.site->Errors().size(), 1U);
  EXPECT_EQ(probe.site->Errors()[0].Code(), 5);
  EXPECT_EQ(probe.site->Errors()[0].Description(), "foreign");
}

TEST_P(UserActionTest, WhatIsNoExceptionEndsThereToo) {
  HeadlessProbe probe;
  GetParam().connect(probe, [] { throw 42; });
  EXPECT_NO_THROW(GetParam().act(probe));
  ASSERT_EQ(probe.site->Errors().size(), 1U);
  EXPECT_EQ(probe.site->Errors()[0].Code(), 5);
}

TEST_P(UserActionTest, TheControlMayBeDestroyedAndAnErrorFollow) {
  HeadlessProbe probe;
  GetParam().connect(probe, [&probe] {
    probe.DestroyControl();
    throw Error(Error::DivisionByZero);
  });
  EXPECT_NO_THROW(GetParam().act(probe));
  EXPECT_EQ(probe.site->Errors().size(), 1U);
}

TEST_P(UserActionTest, TheSiteMayBeDestroyedAndAnErrorFollow) {
  HeadlessProbe probe;
  GetParam().connect(probe, [&probe] {
    probe.DestroyWindow();
    throw Error(Error::DivisionByZero);
  });
  EXPECT_NO_THROW(GetParam().act(probe));
  EXPECT_FALSE(probe.site);
}

INSTANTIATE_TEST_SUITE_P(Rows, UserActionTest, testing::ValuesIn(Actions), RowName());

TEST(HostCallTest, AnErrorReachesTheHost) {
  HeadlessProbe probe;
  probe.Children().RowList.Clicked.Connect([] { throw Error(Error::DivisionByZero); });
  EXPECT_THROW(probe.Children().RowList.ListIndex(1), Error);
  EXPECT_EQ(probe.Children().RowList.ListIndex(), 1);
  EXPECT_TRUE(probe.site->Errors().empty());
}

}  // namespace
}  // namespace tactix::tests
