#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QTimer>
#include <functional>
#include <tuple>

#include "tests/support/RowName.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Action = std::function<void()>;

/// What a user does, and where the host hears of it.
struct Gesture {
  const char* name;
  void (*connect)(NativeProbeWindow&, const Action&);
  void (*perform)(NativeProbeWindow&);
};

void Click(NativeProbeWindow& window, const Widget& widget, std::int16_t button = LeftButton) {
  ClickAt(window.Window(), ReachablePlace(*NativeOf(widget)).value(), button);
}

QComboBox& Box(const ListBox& list) { return *qobject_cast<QComboBox*>(NativeOf(list)); }

template <auto event>
void ConnectTo(NativeProbeWindow& window, const Action& action) {
  (window.Probe().Events.*event).Connect([action](auto&&...) { action(); });
}

using Events = OuterProbe::EventSet;
constexpr auto First = &ConnectTo<&Events::FirstClicked>;
constexpr auto RowPicked = &ConnectTo<&Events::RowPicked>;
constexpr auto KeyPressed = &ConnectTo<&Events::KeyPressed>;

void ConnectToNote(NativeProbeWindow& window, const Action& action) {
  window.Probe().OnNote = [action](const std::string& note) {
    if (note == "outer: GotFocus" || note == "outer: Displayed") action();
  };
}

void InTheMiddle(NativeProbeWindow& window, const Action& action) { QTimer::singleShot(50, &window.Window(), action); }

const Gesture Gestures[] = {
    {"Click", First, [](NativeProbeWindow& window) { Click(window, window.Children().FirstButton); }},
    {"Space", First,
     [](NativeProbeWindow& window) {
       window.Children().FirstButton.SetFocus();
       PressKey(window.Window(), Qt::Key_Space);
     }},
    {"AccessKey", First, [](NativeProbeWindow& window) { PressKey(window.Window(), 'F', AltKey); }},
    {"DefaultButton", First,
     [](NativeProbeWindow& window) {
       window.Children().FirstButton.DEFAULT(true);
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), Qt::Key_Return);
     }},
    {"DefaultButtonFromTheHost", First,
     [](NativeProbeWindow& window) {
       window.Children().FirstButton.DEFAULT(true);
       PressKey(window.Window(), Qt::Key_Return);
     }},
    {"LetterKey", KeyPressed,
     [](NativeProbeWindow& window) {
       window.Children().PanelButton.SetFocus();
       PressKey(window.Window(), 'Q');
     }},
    {"LeftPress", ConnectTo<&Events::MouseWasDown>,
     [](NativeProbeWindow& window) { Click(window, window.Children().ButtonPanel); }},
    {"RightPress", ConnectTo<&Events::MouseWasDown>,
     [](NativeProbeWindow& window) { Click(window, window.Children().ButtonPanel, RightButton); }},
    {"Move", ConnectTo<&Events::MouseWasMoved>,
     [](NativeProbeWindow& window) {
       MoveTo(window.Window(), ReachablePlace(*NativeOf(window.Children().ButtonPanel)).value());
     }},
    {"PickByMouse", RowPicked, [](NativeProbeWindow& window) { PickByMouse(Box(window.Children().RowList), 2); }},
    {"PickByReturn", RowPicked,
     [](NativeProbeWindow& window) {
       window.Children().RowList.SetFocus();
       PickByReturn(Box(window.Children().RowList), 2);
     }},
    {"PickByArrow", RowPicked,
     [](NativeProbeWindow& window) {
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), Qt::Key_Down);
     }},
    {"PickByLetter", RowPicked,
     [](NativeProbeWindow& window) {
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), 'C');
     }},
    {"PickInTheInnerControl",
     [](NativeProbeWindow& window, const Action& action) {
       window.Children().Inner.Events.InnerPicked.Connect([action](std::int32_t&) { action(); });
     },
     [](NativeProbeWindow& window) { PickByMouse(Box(window.Children().Inner.Children.InnerList), 1); }},
    {"FocusByTab", ConnectToNote, [](NativeProbeWindow& window) { PressKey(window.Window(), Qt::Key_Tab); }},
    {"FocusByMouse", ConnectToNote,
     [](NativeProbeWindow& window) {
       ClickAt(window.Window(), window.Itself().geometry().bottomRight() - QPoint(3, 3));
     }},
    {"ShownAgain", ConnectToNote,
     [](NativeProbeWindow& window) {
       window.Itself().hide();
       window.Itself().show();
     }},
    {"Wait", InTheMiddle, [](NativeProbeWindow& window) { Click(window, window.Children().WaitButton); }},
    {"OpenMenu", InTheMiddle, [](NativeProbeWindow& window) { Click(window, window.Children().MenuButton); }},
    {"MenuChoice", ConnectTo<&Events::MenuChosen>,
     [](NativeProbeWindow& window) {
       Menu& menu = window.Children().ProbeMenu;
       MenuEntry& entry = window.Children().PlainEntry;
       QTimer::singleShot(50, qApp, [&menu, &entry] { ClickEntry(*OpenMenuOf(menu), entry); });
       Click(window, window.Children().MenuButton);
     }},
};

enum class Victim { Window, ControlWidget };

class QtDestroyTest : public testing::TestWithParam<std::tuple<Gesture, Victim>> {};

TEST_P(QtDestroyTest, AHandlerMayDestroyIt) {
  const auto& [gesture, victim] = GetParam();
  NativeProbeWindow window;
  window.Show();
  bool destroyed = false;
  gesture.connect(window, [&, which = victim] {
    if (std::exchange(destroyed, true)) return;
    if (which == Victim::Window) {
      window.Destroy();
    } else {
      delete &window.Itself();
    }
  });
  gesture.perform(window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return destroyed; }, 2000));
  Settle();
  EXPECT_EQ(window.IsGone(), victim == Victim::Window);
  // Nothing of the control is left on the screen.
  for (const QWidget* widget : QApplication::topLevelWidgets()) {
    EXPECT_TRUE(!widget->isVisible() || widget->objectName().isEmpty()) << widget->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Gestures, QtDestroyTest,
                         testing::Combine(testing::ValuesIn(Gestures),
                                          testing::Values(Victim::Window, Victim::ControlWidget)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).name) + (std::get<1>(row.param) == Victim::Window
                                                                                  ? "DestroysTheWindow"
                                                                                  : "DestroysTheControl");
                         });

TEST(QtDestroyTest, NativeWidgetsOutliveTheirHandlersInNestedLoops) {
  NativeProbeWindow window;
  window.Show();
  const QPointer<QWidget> button(NativeOf(window.Children().WaitButton));
  bool aliveInTheLoop = false;
  QTimer::singleShot(20, &window.Window(), [&] {
    window.Destroy();
    // A loop below the button's own handler, which is still on the stack.
    QTest::qWait(20);
    aliveInTheLoop = !button.isNull();
  });
  Click(window, window.Children().WaitButton);
  EXPECT_TRUE(aliveInTheLoop);
  Settle();
  EXPECT_TRUE(button.isNull());
}

TEST(QtDestroyTest, AControlThatEndsBeforeItsWidgetTakesItsNativeWidgetsAlong) {
  QWidget window;
  qt::ControlWidget host(&window);
  auto control = std::make_unique<InnerProbe>(host.ItsSite());
  host.Host(*control);
  window.show();
  Settle();
  const QPointer<QWidget> button(NativeOf(control->Children.InnerButton));
  ASSERT_TRUE(button && button->isVisible());
  control.reset();
  EXPECT_EQ(host.Hosted(), nullptr);
  EXPECT_FALSE(button && button->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(button.isNull());
}

TEST(QtDestroyTest, TheControlHearsOfItsEndOnce) {
  auto window = std::make_unique<NativeProbeWindow>();
  std::vector<std::string> notes;
  window->Probe().OnNote = [&notes](std::string note) { notes.push_back(std::move(note)); };
  window->Destroy();
  EXPECT_EQ(notes, (std::vector<std::string>{"outer: Terminated"}));
}

TEST(QtDestroyTest, NoTimerOfADeadControlTicks) {
  NativeProbeWindow window;
  window.Show();
  int ticks = 0;
  window.Children().WaitTimer.Tick.Connect([&ticks] { ++ticks; });
  window.Children().WaitTimer.Interval(10);
  window.Children().WaitTimer.Enabled(true);
  window.Destroy();
  QTest::qWait(50);
  EXPECT_EQ(ticks, 0);
}

}  // namespace
}  // namespace tactix::tests
