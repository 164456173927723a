#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/ProbeGestures.h"
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
  Log heard = window.recorder.Take();
  // Whether a key map is shown keys that are no letters is up to the front end; none does anything with them.
  std::erase(heard, "KeyPressed#9(first, )");
  EXPECT_EQ(heard, GetParam().heard);
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
     {"MouseWasMoved#11(0, 1)", "MouseWasDown#10(2, 1)"}},
    {"MouseMove",
     [](ProbeWindow& w) { w.robot->MouseMove(w.Children().ButtonPanel, CtrlKey); },
     {"MouseWasMoved#11(0, 2)"}},
};

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
    {"FunctionKey", Key(&Child::FirstButton, FunctionKey1), {}},
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
     {}},
    {"EnterForADisabledDefaultButton",
     [](ProbeWindow& w) {
       w.Children().SecondButton.DEFAULT(true);
       w.Children().SecondButton.Enabled(false);
       Key(&Child::FirstButton, ReturnKey)(w);
     },
     {}},
    {"LetterAfterTheFocusedChildWasHidden",
     [](ProbeWindow& w) {
       w.Children().FirstButton.SetFocus();
       w.Children().FirstButton.Visible(false);
       w.Children().FirstButton.Visible(true);
       w.robot->PressKey('H');
     },
     {"KeyPressed#9(box, H)"}},
};

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

}  // namespace
}  // namespace tactix::tests
