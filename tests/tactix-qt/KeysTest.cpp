#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <string>
#include <vector>

#include "tests/support/RowName.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

Widget* NoWidget(NativeProbeWindow&) { return nullptr; }
Widget* Outer(NativeProbeWindow& window) { return &window.Probe().Extender(); }
Widget* First(NativeProbeWindow& window) { return &window.Children().FirstButton; }
Widget* Second(NativeProbeWindow& window) { return &window.Children().SecondButton; }
Widget* PanelButton(NativeProbeWindow& window) { return &window.Children().PanelButton; }
Widget* List(NativeProbeWindow& window) { return &window.Children().RowList; }
Widget* InnerButton(NativeProbeWindow& window) { return &window.Children().Inner.Children.InnerButton; }

struct KeyRow {
  const char* name;
  Widget* (*focus)(NativeProbeWindow&);
  std::int32_t key;
  std::int16_t shift;
  Texts events;
};

class QtKeysTest : public testing::TestWithParam<KeyRow> {};

TEST_P(QtKeysTest, GoesToOnePlaceOnly) {
  const KeyRow& row = GetParam();
  NativeProbeWindow window;
  window.Show();
  if (Widget* focus = row.focus(window)) focus->SetFocus();
  PressKey(window.Window(), row.key, row.shift);
  Settle();
  EXPECT_EQ(window.Recorder().Take(), row.events);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, QtKeysTest,
    testing::Values(KeyRow{"OwnMap", First, 'H', 0, {"KeyPressed#9(first, H)"}},
                    KeyRow{"MapOfTheControl", Second, 'H', 0, {"KeyPressed#9(box, H)"}},
                    KeyRow{"MapOfThePanel", PanelButton, 'H', 0, {"KeyPressed#9(panel, H)"}},
                    KeyRow{"ControlItself", Outer, 'H', 0, {"KeyPressed#9(box, H)"}},
                    KeyRow{"FromTheInnerControl", InnerButton, 'H', 0, {"KeyPressed#9(box, H)"}},
                    KeyRow{"WithShift", First, 'H', ShiftKey, {"KeyPressed#9(first, H)"}},
                    KeyRow{"WithCtrl", First, 'H', CtrlKey, {"KeyPressed#9(first, H)"}},
                    KeyRow{"AltWithoutAccessKey", First, 'H', AltKey, {"KeyPressed#9(first, H)"}},
                    KeyRow{"AccessKeyWins", First, 'S', AltKey, {"SecondClicked#2"}},
                    KeyRow{"AccessKeyOfThePanel", First, 'P', AltKey, {"PanelClicked#3"}},
                    KeyRow{"AccessKeyOfTheInnerControl", First, 'I', AltKey, {"InnerClicked#1"}},
                    KeyRow{"AccessKeyFromTheHost", NoWidget, 'F', AltKey, {"FirstClicked#1"}},
                    KeyRow{"LetterAtTheHost", NoWidget, 'H', 0, {}}, KeyRow{"Digit", First, Qt::Key_5, 0, {}},
                    KeyRow{"FunctionKey", First, Qt::Key_F5, 0, {}}, KeyRow{"Escape", First, Qt::Key_Escape, 0, {}},
                    KeyRow{"Arrow", First, Qt::Key_Right, 0, {}},
                    KeyRow{"SpaceClicks", Second, Qt::Key_Space, 0, {"SecondClicked#2"}},
                    KeyRow{"EnterWithoutDefaultButton", First, Qt::Key_Return, 0, {}},
                    KeyRow{"ListLetter", List, 'C', 0, {"RowPicked#4(2)"}},
                    KeyRow{"ListLetterWithCtrl", List, 'C', CtrlKey, {"KeyPressed#9(box, C)"}},
                    KeyRow{"ListLetterOfNoRow", List, 'X', 0, {}},
                    KeyRow{"ListDown", List, Qt::Key_Down, 0, {"RowPicked#4(0)"}},
                    KeyRow{"ListEnd", List, Qt::Key_End, 0, {"RowPicked#4(4)"}},
                    KeyRow{"ListPageDown", List, Qt::Key_PageDown, 0, {}}, KeyRow{"ListDigit", List, Qt::Key_5, 0, {}}),
    RowName());

TEST(QtKeyEventTest, AKeypadKeyIsNoLetter) {
  NativeProbeWindow window;
  window.Show();
  QWidget& native = *NativeOf(window.Children().FirstButton);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::KeypadModifier);
  QApplication::sendEvent(&native, &press);
  EXPECT_EQ(window.Recorder().Take(), Texts{});
  EXPECT_FALSE(press.isAccepted());
}

TEST(QtKeyEventTest, ATakenLetterDoesNotTravelOnToTheHost) {
  struct Counter : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::KeyPress) ++presses;
      return false;
    }
    int presses = 0;
  } counter;
  NativeProbeWindow window;
  window.Show();
  window.Window().installEventFilter(&counter);
  window.Children().FirstButton.SetFocus();
  PressKey(window.Window(), 'H');
  EXPECT_EQ(counter.presses, 0);
  PressKey(window.Window(), Qt::Key_F5);
  EXPECT_EQ(counter.presses, 1);
}

struct DefaultRow {
  const char* name;
  Widget* (*focus)(NativeProbeWindow&);
  std::int32_t key;
  std::int16_t shift;
  void (*prepare)(NativeProbeWindow&);
  Texts events;
};

class QtDefaultButtonTest : public testing::TestWithParam<DefaultRow> {};

TEST_P(QtDefaultButtonTest, EnterPressesIt) {
  const DefaultRow& row = GetParam();
  NativeProbeWindow window;
  window.Show();
  window.Children().SecondButton.DEFAULT(true);
  row.prepare(window);
  if (Widget* focus = row.focus(window)) focus->SetFocus();
  PressKey(window.Window(), row.key, row.shift);
  Settle();
  EXPECT_EQ(window.Recorder().Take(), row.events);
}

void Nothing(NativeProbeWindow&) {}
const Texts SecondClicked = {"SecondClicked#2"};

INSTANTIATE_TEST_SUITE_P(
    Rows, QtDefaultButtonTest,
    testing::Values(DefaultRow{"FromAButtonWithAMap", First, Qt::Key_Return, 0, Nothing, SecondClicked},
                    DefaultRow{"FromTheKeypad", First, Qt::Key_Enter, 0, Nothing, SecondClicked},
                    DefaultRow{"FromAList", List, Qt::Key_Return, 0, Nothing, SecondClicked},
                    DefaultRow{"FromTheInnerControl", InnerButton, Qt::Key_Return, 0, Nothing, SecondClicked},
                    DefaultRow{"FromTheHost", NoWidget, Qt::Key_Return, 0, Nothing, SecondClicked},
                    DefaultRow{"NotWithCtrl", First, Qt::Key_Return, CtrlKey, Nothing, {}},
                    DefaultRow{"NotWhenHidden",
                               First,
                               Qt::Key_Return,
                               0,
                               [](NativeProbeWindow& window) { window.Children().SecondButton.Visible(false); },
                               {}},
                    DefaultRow{"NotWhenDisabled",
                               First,
                               Qt::Key_Return,
                               0,
                               [](NativeProbeWindow& window) { window.Children().SecondButton.Enabled(false); },
                               {}},
                    DefaultRow{"NotWhenTheFlagIsTaken",
                               First,
                               Qt::Key_Return,
                               0,
                               [](NativeProbeWindow& window) { window.Children().SecondButton.DEFAULT(false); },
                               {}},
                    DefaultRow{"NotWhenTheHostHidesIt",
                               NoWidget,
                               Qt::Key_Return,
                               0,
                               [](NativeProbeWindow& window) { window.Itself().hide(); },
                               {}},
                    DefaultRow{
                        "TheLastOneMade",
                        First,
                        Qt::Key_Return,
                        0,
                        [](NativeProbeWindow& window) { window.Children().Inner.Children.InnerButton.DEFAULT(true); },
                        {"InnerClicked#1"}}),
    RowName());

TEST(QtDefaultButtonWindowTest, OneOfAWindowHasTheFlag) {
  QWidget window;
  ProbeWidget one(&window);
  ProbeWidget two(&window);
  QWidget otherWindow;
  ProbeWidget three(&otherWindow);
  PushButton& first = one.Probe().Children.FirstButton;
  PushButton& second = two.Probe().Children.Inner.Children.InnerButton;
  PushButton& third = three.Probe().Children.FirstButton;
  third.DEFAULT(true);
  first.DEFAULT(true);
  second.DEFAULT(true);
  EXPECT_FALSE(first.DEFAULT());
  EXPECT_TRUE(second.DEFAULT());
  EXPECT_TRUE(third.DEFAULT());
  EXPECT_FALSE(NativeOf(first)->property("default").toBool());
  EXPECT_TRUE(NativeOf(second)->property("default").toBool());
}

}  // namespace
}  // namespace tactix::tests
