#include "tactix/platform/widgets/PushButton.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/HeadlessProbe.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

void Press(HeadlessProbe& probe, std::int32_t code, std::int16_t shift = 0) { probe.site->PressKey({code, shift}); }

/// What a user does to the panel's button after something was done to the probe, and what is heard.
struct ClickRow {
  const char* name;
  std::function<void(HeadlessProbe&)> before;
  bool clicks;
};

class ClickTest : public testing::TestWithParam<ClickRow> {};

TEST_P(ClickTest, ByMouse) {
  HeadlessProbe probe;
  GetParam().before(probe);
  probe.Children().PanelButton.Click();
  EXPECT_EQ(probe.recorder.Take(), GetParam().clicks ? Log{"PanelClicked#3"} : Log{});
  EXPECT_EQ(probe.Children().PanelButton.HasFocus(), GetParam().clicks);
}

TEST_P(ClickTest, ByAccessKey) {
  HeadlessProbe probe;
  GetParam().before(probe);
  Press(probe, 'P', AltKey);
  EXPECT_EQ(probe.recorder.Take(), GetParam().clicks ? Log{"PanelClicked#3"} : Log{});
}

TEST_P(ClickTest, ByEnterOnTheDefaultButton) {
  HeadlessProbe probe;
  probe.Children().PanelButton.DEFAULT(true);
  GetParam().before(probe);
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), GetParam().clicks ? Log{"PanelClicked#3"} : Log{});
}

const ClickRow Clicks[] = {
    {"Usable", [](HeadlessProbe&) {}, true},
    {"Hidden", [](HeadlessProbe& p) { p.Children().PanelButton.Visible(false); }, false},
    {"Disabled", [](HeadlessProbe& p) { p.Children().PanelButton.Enabled(false); }, false},
    {"HiddenParent", [](HeadlessProbe& p) { p.Children().ButtonPanel.Visible(false); }, false},
    {"DisabledParent", [](HeadlessProbe& p) { p.Children().ButtonPanel.Enabled(false); }, false},
    {"HiddenControl", [](HeadlessProbe& p) { p.outer->Extender().Visible(false); }, false},
    {"DisabledControl", [](HeadlessProbe& p) { p.outer->Extender().Enabled(false); }, false},
    {"ControlsOwnVisible", [](HeadlessProbe& p) { p.outer->Visible(false); }, true},
    {"ControlsOwnEnabled", [](HeadlessProbe& p) { p.outer->Enabled(false); }, true},
    {"ShownAgain",
     [](HeadlessProbe& p) {
       p.Children().ButtonPanel.Visible(false);
       p.Children().ButtonPanel.Visible(true);
     },
     true},
};

INSTANTIATE_TEST_SUITE_P(Rows, ClickTest, testing::ValuesIn(Clicks), RowName());

TEST(PushButtonTest, ReportsWithoutAnOwnerNothing) {
  PushButton loose;
  EventRecorder recorder;
  recorder.Watch(loose.Clicked);
  loose.Click();
  EXPECT_EQ(recorder.Take(), Log{});
}

TEST(PushButtonTest, AClickTakesTheFocusFirst) {
  HeadlessProbe probe;
  probe.NoteNotifications();
  probe.InnerChildren().InnerButton.Clicked.Connect(
      [&probe] { probe.recorder.Note(probe.InnerChildren().InnerButton.HasFocus() ? "focused" : "not focused"); });
  probe.InnerChildren().InnerButton.Click();
  EXPECT_EQ(probe.recorder.Take(), (Log{"outer: GotFocus", "inner: GotFocus", "inner.InnerClicked#1", "focused"}));
}

TEST(PushButtonTest, AClickEndsWhereTakingTheFocusHidesDisablesOrDestroysTheButton) {
  const std::function<void(HeadlessProbe&)> ways[] = {
      [](HeadlessProbe& p) { p.Children().FirstButton.Visible(false); },
      [](HeadlessProbe& p) { p.Children().FirstButton.Enabled(false); },
      [](HeadlessProbe& p) { p.DestroyControl(); },
      [](HeadlessProbe& p) { p.DestroyWindow(); },
  };
  for (const auto& way : ways) {
    HeadlessProbe probe;
    probe.outer->OnNote = [&probe, &way](const std::string& note) {
      if (note == "outer: GotFocus") way(probe);
    };
    probe.Children().FirstButton.Click();
    EXPECT_EQ(probe.recorder.Take(), Log{});
  }
}

TEST(PushButtonTest, SpacePressesTheFocusedButtonAndNoKeyMapRuns) {
  HeadlessProbe probe;
  probe.Children().FirstButton.SetFocus();
  Press(probe, ' ');
  EXPECT_EQ(probe.recorder.Take(), Log{"FirstClicked#1"});
  Press(probe, ' ', CtrlKey);
  EXPECT_EQ(probe.recorder.Take(), Log{"KeyPressed#9(first, )"});
}

TEST(AccessKeyTest, WinsOverTheLetterMapOfTheFocusedChild) {
  HeadlessProbe probe;
  probe.Children().FirstButton.SetFocus();
  Press(probe, 's', AltKey);
  EXPECT_EQ(probe.recorder.Take(), Log{"SecondClicked#2"});
  Press(probe, 's');
  EXPECT_EQ(probe.recorder.Take(), Log{"KeyPressed#9(box, S)"}) << "the access key takes the focus along";
}

TEST(AccessKeyTest, GoesToTheLetterMapWhereNoUsableElementHasIt) {
  HeadlessProbe probe;
  probe.Children().SecondButton.Enabled(false);
  probe.Children().FirstButton.SetFocus();
  Press(probe, 'S', AltKey);
  Press(probe, 'X', AltKey);
  EXPECT_EQ(probe.recorder.Take(), (Log{"KeyPressed#9(first, S)", "KeyPressed#9(first, X)"}));
}

TEST(AccessKeyTest, ReachesNestedControlsAndOtherControlsOfTheWindow) {
  HeadlessSite site;
  OuterProbe first(site);
  OuterProbe second(site);
  EventRecorder recorder;
  recorder.Watch(first.Events.All(), "first");
  recorder.Watch(second.Events.All(), "second");
  recorder.Watch(second.Children.Inner.Events.All(), "inner of second");
  first.Children.Inner.Extender().Visible(false);
  first.Children.FirstButton.Visible(false);
  site.PressKey({'I', AltKey});
  site.PressKey({'F', AltKey});
  EXPECT_EQ(recorder.Take(), (Log{"inner of second.InnerClicked#1", "second.FirstClicked#1"}));
}

TEST(AccessKeyTest, FunctionKeysAreNone) {
  HeadlessProbe probe;
  probe.Children().FirstButton.Caption("&0");
  Press(probe, FunctionKey1, AltKey);
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

struct CaptionRow {
  const char* name;
  const char* caption;
  char key;
  const char* plain;
};

class CaptionTest : public testing::TestWithParam<CaptionRow> {};

TEST_P(CaptionTest, MarksAndReads) {
  PushButton button;
  button.Caption(GetParam().caption);
  EXPECT_EQ(button.AccessKey(), GetParam().key);
  EXPECT_EQ(PlainCaption(GetParam().caption), GetParam().plain);
}

const CaptionRow Captions[] = {
    {"None", "Hit", '\0', "Hit"},
    {"First", "&Hit", 'H', "Hit"},
    {"LowerCase", "is &high", 'H', "is high"},
    {"Digit", "&2nd", '2', "2nd"},
    {"Doubled", "Hit && Stand", '\0', "Hit & Stand"},
    {"DoubledThenMarked", "A&&&B", 'B', "A&B"},
    {"AtTheEnd", "Hit&", '\0', "Hit"},
    {"BeforeABlank", "Hit& Run", '\0', "Hit Run"},
    {"NotAscii", "&Über", '\0', "Über"},
    {"Empty", "", '\0', ""},
};

INSTANTIATE_TEST_SUITE_P(Rows, CaptionTest, testing::ValuesIn(Captions), RowName());

TEST(DefaultButtonTest, NoButtonIsAtFirst) {
  HeadlessProbe probe;
  EXPECT_FALSE(probe.Children().FirstButton.DEFAULT());
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(DefaultButtonTest, OneButtonOfTheWindowHasIt) {
  HeadlessSite site;
  OuterProbe first(site);
  OuterProbe second(site);
  PushButton* const buttons[] = {&first.Children.FirstButton, &first.Children.PanelButton,
                                 &first.Children.Inner.Children.InnerButton, &second.Children.FirstButton,
                                 &second.Children.Inner.Children.InnerButton};
  for (PushButton* chosen : buttons) {
    chosen->DEFAULT(true);
    for (const PushButton* button : buttons) EXPECT_EQ(button->DEFAULT(), button == chosen);
  }
}

TEST(DefaultButtonTest, EnterPressesItWhateverHasTheFocus) {
  HeadlessProbe probe;
  probe.Children().SecondButton.DEFAULT(true);
  for (Widget* focused :
       {static_cast<Widget*>(nullptr), static_cast<Widget*>(&probe.Children().FirstButton),
        static_cast<Widget*>(&probe.Children().RowList), static_cast<Widget*>(&probe.InnerChildren().InnerButton)}) {
    probe.site->SetFocus(focused);
    Press(probe, ReturnKey);
    EXPECT_EQ(probe.recorder.Take(), Log{"SecondClicked#2"});
  }
}

TEST(DefaultButtonTest, EnterOfADefaultButtonThatCannotBeUsedGoesToTheFocus) {
  HeadlessProbe probe;
  probe.Children().SecondButton.DEFAULT(true);
  probe.Children().FirstButton.SetFocus();
  probe.Children().SecondButton.Visible(false);
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), Log{"KeyPressed#9(first, )"});
  EXPECT_TRUE(probe.Children().SecondButton.DEFAULT());
  probe.Children().SecondButton.Visible(true);
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), Log{"SecondClicked#2"});
}

TEST(DefaultButtonTest, CanBeTakenBackAndGoesWithItsButton) {
  HeadlessProbe probe;
  probe.Children().SecondButton.DEFAULT(true);
  probe.Children().SecondButton.DEFAULT(false);
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), Log{});
  probe.Children().SecondButton.DEFAULT(true);
  probe.DestroyControl();
  Press(probe, ReturnKey);
  EXPECT_EQ(probe.recorder.Take(), Log{});
}

TEST(DefaultButtonTest, TellsTheObserversOfBothButtons) {
  struct Watcher final : WidgetObserver {
    Log log;
    void Changed(Widget& widget, Aspect aspect) override {
      if (aspect == Aspect::Default) {
        log.push_back(std::string(widget.Name()) + (static_cast<PushButton&>(widget).DEFAULT() ? " on" : " off"));
      }
    }
    void Gone(Widget&) override {}
  } watcher;
  HeadlessProbe probe;
  probe.Children().FirstButton.Observe(&watcher);
  probe.InnerChildren().InnerButton.Observe(&watcher);
  probe.Children().FirstButton.DEFAULT(true);
  probe.Children().FirstButton.DEFAULT(true);
  probe.InnerChildren().InnerButton.DEFAULT(true);
  EXPECT_EQ(watcher.log, (Log{"FirstButton on", "InnerButton on", "FirstButton off"}));
  probe.Children().FirstButton.Observe(nullptr);
  probe.InnerChildren().InnerButton.Observe(nullptr);
}

}  // namespace
}  // namespace tactix::tests
