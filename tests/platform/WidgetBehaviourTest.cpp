#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/ProbeWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

/// What a user does, and what the control reports.
struct UserRow {
  const char* name;
  std::function<void(ProbeWindow&)> act;
  Log heard;
};

class WidgetBehaviourTest : public testing::TestWithParam<UserRow> {};

TEST_P(WidgetBehaviourTest, IsReported) {
  ProbeWindow window;
  GetParam().act(window);
  EXPECT_EQ(window.recorder.Take(), GetParam().heard);
  EXPECT_TRUE(window.robot->Errors().empty());
}

void ClickThePanelsButton(ProbeWindow& w) { w.robot->Click(w.Children().PanelButton); }

const UserRow Clicks[] = {
    {"Button", [](ProbeWindow& w) { w.robot->Click(w.Children().FirstButton); }, {"FirstClicked#1"}},
    {"TwoClicks",
     [](ProbeWindow& w) {
       w.robot->Click(w.Children().FirstButton);
       w.robot->Click(w.Children().FirstButton);
     },
     {"FirstClicked#1", "FirstClicked#1"}},
    {"ButtonInAPanel", ClickThePanelsButton, {"PanelClicked#3"}},
    {"ButtonOfANestedControl",
     [](ProbeWindow& w) { w.robot->Click(w.InnerChildren().InnerButton); },
     {"inner.InnerClicked#1"}},
    {"HiddenButton",
     [](ProbeWindow& w) {
       w.Children().PanelButton.Visible(false);
       ClickThePanelsButton(w);
     },
     {}},
    {"DisabledButton",
     [](ProbeWindow& w) {
       w.Children().PanelButton.Enabled(false);
       ClickThePanelsButton(w);
     },
     {}},
    {"ButtonInAHiddenPanel",
     [](ProbeWindow& w) {
       w.Children().ButtonPanel.Visible(false);
       ClickThePanelsButton(w);
     },
     {}},
    {"ButtonInADisabledPanel",
     [](ProbeWindow& w) {
       w.Children().ButtonPanel.Enabled(false);
       ClickThePanelsButton(w);
     },
     {}},
    {"ButtonInAHiddenControl",
     [](ProbeWindow& w) {
       w.outer->Extender().Visible(false);
       ClickThePanelsButton(w);
     },
     {}},
    {"ButtonInAPanelShownAgain",
     [](ProbeWindow& w) {
       w.Children().ButtonPanel.Visible(false);
       w.Children().ButtonPanel.Visible(true);
       ClickThePanelsButton(w);
     },
     {"PanelClicked#3"}},
    {"MouseDown",
     [](ProbeWindow& w) { w.robot->MouseDown(w.Children().ButtonPanel, RightButton, ShiftKey); },
     {"MouseWasDown#10(2, 1)"}},
    {"MouseMove",
     [](ProbeWindow& w) { w.robot->MouseMove(w.Children().ButtonPanel, CtrlKey); },
     {"MouseWasMoved#11(0, 2)"}},
};

/// Puts the focus on a button, then presses a key there.
std::function<void(ProbeWindow&)> Key(PushButton OuterProbe::ChildWidgets::*button, std::int32_t code,
                                      std::int16_t shift = 0) {
  return [=](ProbeWindow& w) {
    (w.Children().*button).SetFocus();
    w.robot->PressKey(code, shift);
  };
}

using Child = OuterProbe::ChildWidgets;

const UserRow Keys[] = {
    {"LetterForTheButtonsMap", Key(&Child::FirstButton, 'H'), {"KeyPressed#9(first, H)"}},
    {"LetterForThePanelsMap", Key(&Child::PanelButton, 'H'), {"KeyPressed#9(panel, H)"}},
    {"LetterForTheBoxsMap", Key(&Child::SecondButton, 'H'), {"KeyPressed#9(box, H)"}},
    {"LetterInANestedControl",
     [](ProbeWindow& w) {
       w.InnerChildren().InnerButton.SetFocus();
       w.robot->PressKey('H');
     },
     {"KeyPressed#9(box, H)"}},
    {"FunctionKey", Key(&Child::FirstButton, FunctionKey1), {"KeyPressed#9(first, )"}},
    {"ShiftAndLetter", Key(&Child::FirstButton, 'H', ShiftKey), {"KeyPressed#9(first, H)"}},
    {"Space", Key(&Child::FirstButton, ' '), {"FirstClicked#1"}},
    {"AccessKey", Key(&Child::FirstButton, 'S', AltKey), {"SecondClicked#2"}},
    {"AccessKeyInANestedControl", Key(&Child::FirstButton, 'I', AltKey), {"inner.InnerClicked#1"}},
    {"AccessKeyOfAHiddenButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.Visible(false);
       Key(&Child::FirstButton, 'S', AltKey)(w);
     },
     {"KeyPressed#9(first, S)"}},
    {"EnterForTheDefaultButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       Key(&Child::FirstButton, ReturnKey)(w);
     },
     {"SecondClicked#2"}},
    {"EnterForTheDefaultButtonOfANestedControl",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       w.InnerChildren().InnerButton.DEFAULT(true);
       EXPECT_FALSE(w.Children().SecondButton.DEFAULT());
       Key(&Child::FirstButton, ReturnKey)(w);
     },
     {"inner.InnerClicked#1"}},
    {"EnterForAHiddenDefaultButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       w.Children().SecondButton.Visible(false);
       Key(&Child::FirstButton, ReturnKey)(w);
     },
     {"KeyPressed#9(first, )"}},
    {"EnterForADisabledDefaultButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       w.Children().SecondButton.Enabled(false);
       Key(&Child::FirstButton, ReturnKey)(w);
     },
     {"KeyPressed#9(first, )"}},
    {"LetterAfterTheFocusedChildWasHidden",
     [](ProbeWindow& w) {
       w.Children().FirstButton.SetFocus();
       w.Children().FirstButton.Visible(false);
       w.Children().FirstButton.Visible(true);
       w.robot->PressKey('H');
     },
     {"KeyPressed#9(box, H)"}},
};

void Pick(ProbeWindow& w, std::int32_t row, Robot::PickBy by) { w.robot->PickRow(w.Children().RowList, row, by); }

const UserRow Picks[] = {
    {"ByMouse", [](ProbeWindow& w) { Pick(w, 2, Robot::PickBy::Mouse); }, {"RowPicked#4(2)"}},
    {"ByReturn", [](ProbeWindow& w) { Pick(w, 2, Robot::PickBy::ReturnKey); }, {"RowPicked#4(2)"}},
    {"ByReturnWithADefaultButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       Pick(w, 2, Robot::PickBy::ReturnKey);
     },
     {"RowPicked#4(2)"}},
    {"ByArrowKeys",
     [](ProbeWindow& w) {
       Pick(w, 0, Robot::PickBy::ArrowKey);
       Pick(w, 1, Robot::PickBy::ArrowKey);
       Pick(w, 0, Robot::PickBy::ArrowKey);
     },
     {"RowPicked#4(0)", "RowPicked#4(1)", "RowPicked#4(0)"}},
    {"TheSameRow",
     [](ProbeWindow& w) {
       Pick(w, 2, Robot::PickBy::Mouse);
       Pick(w, 2, Robot::PickBy::Mouse);
     },
     {"RowPicked#4(2)", "RowPicked#4(2)"}},
    {"FromCodeAndThenByMouse",
     [](ProbeWindow& w) {
       w.Children().RowList.ListIndex(1);
       w.Children().RowList.ListIndex(1);
       Pick(w, 3, Robot::PickBy::Mouse);
     },
     {"RowPicked#4(1)", "RowPicked#4(1)", "RowPicked#4(3)"}},
    {"AfterRowsWereAdded",
     [](ProbeWindow& w) {
       w.Children().RowList.AddItem("fig", 0);
       w.Children().RowList.AddItem("plum");
       Pick(w, 6, Robot::PickBy::Mouse);
       EXPECT_EQ(w.robot->SeesText(w.Children().RowList), "plum");
     },
     {"RowPicked#4(6)"}},
    {"OfADisabledList",
     [](ProbeWindow& w) {
       w.Children().RowList.Enabled(false);
       Pick(w, 2, Robot::PickBy::Mouse);
     },
     {}},
    {"OfAHiddenList",
     [](ProbeWindow& w) {
       w.Children().RowList.Visible(false);
       Pick(w, 2, Robot::PickBy::Mouse);
     },
     {}},
    {"InANestedControl",
     [](ProbeWindow& w) { w.robot->PickRow(w.InnerChildren().InnerList, 1); },
     {"inner.InnerPicked#2(1)"}},
    {"ByLetter",
     [](ProbeWindow& w) {
       w.Children().RowList.SetFocus();
       w.robot->PressKey('C');
     },
     {"RowPicked#4(2)"}},
};

std::function<void(ProbeWindow&)> Choose(MenuEntry OuterProbe::ChildWidgets::*entry) {
  return [=](ProbeWindow& w) {
    w.robot->OnNextMenu([&w, entry](Menu& menu) { w.robot->Choose(menu, w.Children().*entry); });
    w.robot->Click(w.Children().MenuButton);
  };
}

const UserRow Menus[] = {
    {"Entry", Choose(&Child::PlainEntry), {"MenuChosen#5(1)", "MenuClosed#6"}},
    {"EntryOfASubmenu", Choose(&Child::DeepEntry), {"MenuChosen#5(7)", "MenuClosed#6"}},
    {"DisabledEntry", Choose(&Child::DisabledEntry), {"MenuClosed#6"}},
    {"HiddenEntry", Choose(&Child::HiddenEntry), {"MenuClosed#6"}},
    {"NoEntry", [](ProbeWindow& w) { w.robot->Click(w.Children().MenuButton); }, {"MenuClosed#6"}},
    {"MarksAsTheyAre",
     [](ProbeWindow& w) {
       w.robot->OnNextMenu([&w](Menu& menu) {
         EXPECT_TRUE(w.robot->SeesChecked(menu, w.Children().CheckedEntry));
         EXPECT_FALSE(w.robot->SeesChecked(menu, w.Children().PlainEntry));
       });
       w.robot->Click(w.Children().MenuButton);
     },
     {"MenuClosed#6"}},
    {"MouseMoveWhileOpen",
     [](ProbeWindow& w) {
       w.robot->OnNextMenu([&w](Menu&) { w.robot->MouseMove(w.Children().ButtonPanel, 0); });
       w.robot->Click(w.Children().MenuButton);
     },
     {"MouseWasMoved#11(0, 0)", "MenuClosed#6"}},
    {"AgainAfterAChoice",
     [](ProbeWindow& w) {
       Choose (&Child::PlainEntry)(w);
       Choose (&Child::CheckedEntry)(w);
     },
     {"MenuChosen#5(1)", "MenuClosed#6", "MenuChosen#5(2)", "MenuClosed#6"}},
};

const UserRow Waits[] = {
    {"Wait", [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }, {"WaitEnded#7"}},
    {"OfZero", [](ProbeWindow& w) { w.outer->WaitFor(0); }, {"WaitEnded#7"}},
    {"ClickInTheMiddle",
     [](ProbeWindow& w) {
       w.robot->After(100, [&w] { w.robot->Click(w.Children().FirstButton); });
       w.robot->Click(w.Children().WaitButton);
     },
     {"FirstClicked#1", "WaitEnded#7"}},
    {"AnotherInTheMiddle",
     [](ProbeWindow& w) {
       w.robot->After(100, [&w] {
         w.recorder.Note("inner begins");
         w.outer->WaitFor(100);
         w.recorder.Note("inner ends");
       });
       w.robot->Click(w.Children().WaitButton);
     },
     {"inner begins", "WaitEnded#7", "inner ends", "WaitEnded#7"}},
    {"MenuInTheMiddle",
     [](ProbeWindow& w) {
       w.robot->After(100, [&w] { Choose (&Child::PlainEntry)(w); });
       w.robot->Click(w.Children().WaitButton);
     },
     {"MenuChosen#5(1)", "MenuClosed#6", "WaitEnded#7"}},
};

INSTANTIATE_TEST_SUITE_P(Click, WidgetBehaviourTest, testing::ValuesIn(Clicks), RowName());
INSTANTIATE_TEST_SUITE_P(Key, WidgetBehaviourTest, testing::ValuesIn(Keys), RowName());
INSTANTIATE_TEST_SUITE_P(Pick, WidgetBehaviourTest, testing::ValuesIn(Picks), RowName());
INSTANTIATE_TEST_SUITE_P(Menu, WidgetBehaviourTest, testing::ValuesIn(Menus), RowName());
INSTANTIATE_TEST_SUITE_P(Wait, WidgetBehaviourTest, testing::ValuesIn(Waits), RowName());

TEST(FocusBehaviourTest, AClickTakesItFirst) {
  ProbeWindow window;
  Widget* inHandler = nullptr;
  window.outer->Events.FirstClicked.Connect([&] { inHandler = window.robot->Focus(); });
  window.robot->Click(window.Children().FirstButton);
  EXPECT_EQ(inHandler, &window.Children().FirstButton);
  EXPECT_EQ(window.robot->Focus(), &window.Children().FirstButton);
}

TEST(FocusBehaviourTest, GoesToTheControlWhenItsChildIsHiddenOrDisabledAndDoesNotComeBack) {
  void (Widget::*const setters[])(bool) = {&Widget::Visible, &Widget::Enabled};
  for (const auto setter : setters) {
    ProbeWindow window;
    window.robot->Click(window.Children().FirstButton);
    (window.Children().FirstButton.*setter)(false);
    window.robot->Wait(10);
    EXPECT_EQ(window.robot->Focus(), &window.outer->Extender());
    (window.Children().FirstButton.*setter)(true);
    window.robot->Wait(10);
    EXPECT_EQ(window.robot->Focus(), &window.outer->Extender());
  }
}

TEST(SightBehaviourTest, FollowsWhatTheControlSets) {
  ProbeWindow window;
  Robot& user = *window.robot;
  EXPECT_EQ(user.SeesText(window.Children().FirstButton), "First");
  EXPECT_EQ(user.SeesText(window.Children().StatusLabel), "Ready");
  EXPECT_EQ(user.SeesText(window.Children().RowList), "");
  EXPECT_TRUE(user.SeesShown(window.Children().PanelButton));
  EXPECT_TRUE(user.SeesEnabled(window.Children().PanelButton));

  window.Children().FirstButton.Caption("&Hit && run");
  window.Children().StatusLabel.Caption("Steady");
  window.Children().RowList.ListIndex(1);
  window.Children().ButtonPanel.Enabled(false);
  EXPECT_EQ(user.SeesText(window.Children().FirstButton), "Hit & run");
  EXPECT_EQ(user.SeesText(window.Children().StatusLabel), "Steady");
  EXPECT_EQ(user.SeesText(window.Children().RowList), "banana");
  EXPECT_TRUE(user.SeesShown(window.Children().PanelButton));
  EXPECT_FALSE(user.SeesEnabled(window.Children().PanelButton));

  window.Children().RowList.Text("plum");
  window.Children().ButtonPanel.Visible(false);
  EXPECT_EQ(user.SeesText(window.Children().RowList), "plum");
  EXPECT_FALSE(user.SeesShown(window.Children().PanelButton));
  EXPECT_TRUE(user.SeesShown(window.Children().FirstButton));
}

TEST(WindowBehaviourTest, SeveralControlsShareOneDefaultButtonAndOneFocus) {
  ProbeWindow window;
  OuterProbe second(window.robot->NewSite());
  second.Extender().Place(0, 3100, 6000, 3000);
  window.robot->Show(second);
  window.recorder.Watch(second.Events.All(), "second");
  window.Children().FirstButton.DEFAULT(true);
  second.Children.Inner.Children.InnerButton.DEFAULT(true);
  EXPECT_FALSE(window.Children().FirstButton.DEFAULT());
  second.Children.SecondButton.DEFAULT(true);
  window.Children().SecondButton.SetFocus();
  window.robot->PressKey(ReturnKey);
  EXPECT_EQ(window.recorder.Take(), Log{"second.SecondClicked#2"});
  window.robot->Click(second.Children.FirstButton);
  EXPECT_EQ(window.robot->Focus(), &second.Children.FirstButton);
}

TEST(WindowBehaviourTest, ASecondMenuClosesTheFirstWhoseCallReturnsLater) {
  ProbeWindow window;
  OuterProbe second(window.robot->NewSite());
  second.Extender().Place(0, 3100, 6000, 3000);
  window.robot->Show(second);
  window.recorder.Watch(second.Events.All(), "second");
  window.robot->OnNextMenu([&](Menu&) { second.PopUpMenu(); });
  window.robot->OnNextMenu([&](Menu& menu) {
    EXPECT_FALSE(window.Children().ProbeMenu.IsOpen());
    window.robot->Choose(menu, second.Children.PlainEntry);
  });
  window.robot->Click(window.Children().MenuButton);
  EXPECT_EQ(window.recorder.Take(), (Log{"second.MenuChosen#5(1)", "second.MenuClosed#6", "MenuClosed#6"}));
}

TEST(WindowBehaviourTest, BeepsAndChangesAreNoticed) {
  ProbeWindow window;
  window.outer->ItsSite().Beep();
  window.outer->Tag("x");
  window.Children().Inner.Mark(1);
  EXPECT_EQ(window.robot->Beeps(), 1);
  EXPECT_EQ(window.robot->Changes(), Log{"Tag"});
}

/// A gesture, and where a handler stands that it runs into.
struct GestureRow {
  const char* name;
  std::function<void(ProbeWindow&, const std::function<void()>& handler)> connect;
  std::function<void(ProbeWindow&)> act;
};

void ConnectToPick(ProbeWindow& w, const std::function<void()>& handler) {
  w.outer->Events.RowPicked.Connect([handler](std::int32_t&) { handler(); });
}

const GestureRow Gestures[] = {
    {"Click",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.FirstClicked.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().FirstButton); }},
    {"ClickInANestedControl",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.Children().Inner.Events.InnerClicked.Connect(handler);
     },
     [](ProbeWindow& w) { w.robot->Click(w.InnerChildren().InnerButton); }},
    {"AccessKey",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.SecondClicked.Connect(handler); },
     Key(&Child::FirstButton, 'S', AltKey)},
    {"DefaultButton",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.Children().SecondButton.DEFAULT(true);
       w.outer->Events.SecondClicked.Connect(handler);
     },
     Key(&Child::FirstButton, ReturnKey)},
    {"LetterKey",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.KeyPressed.Connect([handler](std::string_view, const std::string&) { handler(); });
     },
     Key(&Child::FirstButton, 'H')},
    {"Space",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.FirstClicked.Connect(handler); },
     Key(&Child::FirstButton, ' ')},
    {"PickByMouse", ConnectToPick, [](ProbeWindow& w) { Pick(w, 1, Robot::PickBy::Mouse); }},
    {"PickByReturn", ConnectToPick, [](ProbeWindow& w) { Pick(w, 1, Robot::PickBy::ReturnKey); }},
    {"PickByArrowKey", ConnectToPick, [](ProbeWindow& w) { Pick(w, 0, Robot::PickBy::ArrowKey); }},
    {"MenuChoice",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MenuChosen.Connect([handler](std::int16_t) { handler(); });
     },
     Choose(&Child::PlainEntry)},
    {"AfterAMenu",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.MenuClosed.Connect(handler); },
     Choose(&Child::PlainEntry)},
    {"MouseDown",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasDown.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) { w.robot->MouseDown(w.Children().ButtonPanel, LeftButton, 0); }},
    {"MouseMove",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasMoved.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) { w.robot->MouseMove(w.Children().ButtonPanel, 0); }},
    {"MouseMoveWithAMenuOpen",
     [](ProbeWindow& w, const std::function<void()>& handler) {
       w.outer->Events.MouseWasMoved.Connect([handler](std::int16_t, std::int16_t) { handler(); });
     },
     [](ProbeWindow& w) {
       w.robot->OnNextMenu([&w](Menu&) { w.robot->MouseMove(w.Children().ButtonPanel, 0); });
       w.robot->Click(w.Children().MenuButton);
     }},
    {"TimerTick",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.Children().WaitTimer.Tick.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
    {"AfterAWait",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.outer->Events.WaitEnded.Connect(handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
};

/// What happens outside a user's action.
const GestureRow OtherMoments[] = {
    {"InTheMiddleOfAWait", [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->After(100, handler); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().WaitButton); }},
    {"InTheMiddleOfNestedWaits",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->After(200, handler); },
     [](ProbeWindow& w) {
       w.robot->After(100, [&w] { w.outer->WaitFor(400); });
       w.robot->Click(w.Children().WaitButton);
     }},
    {"WithAMenuOpen",
     [](ProbeWindow& w, const std::function<void()>& handler) { w.robot->OnNextMenu([handler](Menu&) { handler(); }); },
     [](ProbeWindow& w) { w.robot->Click(w.Children().MenuButton); }},
};

class DestructionBehaviourTest : public testing::TestWithParam<GestureRow> {};

TEST_P(DestructionBehaviourTest, OfTheControlEndsItQuietly) {
  ProbeWindow window;
  int calls = 0;
  GetParam().connect(window, [&] {
    ++calls;
    window.recorder.Forget();
    window.DestroyControl();
  });
  GetParam().act(window);
  window.robot->Wait(50);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(window.recorder.Take(), Log{}) << "a dead control has reported something";
  EXPECT_EQ(window.robot->Focus(), nullptr);
  EXPECT_TRUE(window.robot->Errors().empty());
}

TEST_P(DestructionBehaviourTest, OfTheWindowEndsItQuietly) {
  ProbeWindow window;
  int calls = 0;
  GetParam().connect(window, [&] {
    ++calls;
    window.recorder.Forget();
    window.DestroyWindow();
  });
  GetParam().act(window);
  window.robot->Wait(50);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(window.recorder.Take(), Log{}) << "a dead control has reported something";
  EXPECT_TRUE(window.robot->Errors().empty());
}

INSTANTIATE_TEST_SUITE_P(In, DestructionBehaviourTest, testing::ValuesIn(Gestures), RowName());
INSTANTIATE_TEST_SUITE_P(At, DestructionBehaviourTest, testing::ValuesIn(OtherMoments), RowName());

TEST(DestructionInANoticeBehaviourTest, OfTheControlOrTheWindowEndsItQuietly) {
  void (ProbeWindow::*const ways[])() = {&ProbeWindow::DestroyControl, &ProbeWindow::DestroyWindow};
  for (const auto way : ways) {
    ProbeWindow window;
    bool noticed = false;
    window.robot->OnPropertyChanged([&] {
      noticed = true;
      (window.*way)();
    });
    window.outer->Tag("x");
    if (!noticed) GTEST_SKIP() << "this robot cannot do anything inside a notice";
    window.robot->Wait(50);
    EXPECT_EQ(window.robot->Changes(), Log{"Tag"});
    EXPECT_EQ(window.recorder.Take(), Log{});
  }
}

class ErrorBehaviourTest : public testing::TestWithParam<GestureRow> {};

TEST_P(ErrorBehaviourTest, EndsAtTheSiteAndTheWindowGoesOn) {
  ProbeWindow window;
  bool threw = false;
  GetParam().connect(window, [&threw] {
    if (!std::exchange(threw, true)) throw Error(Error::DivisionByZero);
  });
  GetParam().act(window);
  ASSERT_TRUE(threw);
  ASSERT_EQ(window.robot->Errors().size(), 1U);
  EXPECT_EQ(window.robot->Errors()[0].Code(), 11);
  window.recorder.Forget();
  window.robot->Click(window.Children().PanelButton);
  EXPECT_EQ(window.recorder.Take(), Log{"PanelClicked#3"});
  EXPECT_EQ(window.robot->Errors().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(In, ErrorBehaviourTest, testing::ValuesIn(Gestures), RowName());

}  // namespace
}  // namespace tactix::tests
