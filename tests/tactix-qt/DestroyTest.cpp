#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <functional>
#include <tuple>

#include "tests/support-qt/TestClock.h"
#include "tests/support/RowName.h"
#include "tests/support/When.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Action = std::function<void()>;

struct HasClock {
  TestClock clock;
};

/// A host's window on a clock of the test's.
struct ClockedWindow : HasClock, NativeProbeWindow {};

/// What a user does, and where the host hears of it.
struct Gesture {
  const char* name;
  void (*connect)(ClockedWindow&, const Action&);
  void (*perform)(ClockedWindow&);
};

void Click(ClockedWindow& window, const Widget& widget, std::int16_t button = LeftButton) {
  ClickAt(window.Window(), ReachablePlace(*NativeOf(widget)).value(), button);
}

QComboBox& Box(const ListBox& list) { return *qobject_cast<QComboBox*>(NativeOf(list)); }

template <auto event>
void ConnectTo(ClockedWindow& window, const Action& action) {
  (window.Probe().Events.*event).Connect([action](auto&&...) { action(); });
}

using Events = OuterProbe::EventSet;
constexpr auto First = &ConnectTo<&Events::FirstClicked>;
constexpr auto RowPicked = &ConnectTo<&Events::RowPicked>;
constexpr auto KeyPressed = &ConnectTo<&Events::KeyPressed>;

void ConnectToNote(ClockedWindow& window, const Action& action) {
  window.Probe().OnNote = [action](const std::string& note) {
    if (note == "outer: GotFocus" || note == "outer: Displayed") action();
  };
}

void InTheMiddle(ClockedWindow& window, const Action& action) { window.clock.After(50, action); }

const Gesture Gestures[] = {
    {"Click", First, [](ClockedWindow& window) { Click(window, window.Children().FirstButton); }},
    {"Space", First,
     [](ClockedWindow& window) {
       window.Children().FirstButton.SetFocus();
       PressKey(window.Window(), Qt::Key_Space);
     }},
    {"AccessKey", First, [](ClockedWindow& window) { PressKey(window.Window(), 'F', AltKey); }},
    {"DefaultButton", First,
     [](ClockedWindow& window) {
       window.Children().FirstButton.DEFAULT(true);
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), Qt::Key_Return);
     }},
    {"DefaultButtonFromTheHost", First,
     [](ClockedWindow& window) {
       window.Children().FirstButton.DEFAULT(true);
       PressKey(window.Window(), Qt::Key_Return);
     }},
    {"LetterKey", KeyPressed,
     [](ClockedWindow& window) {
       window.Children().PanelButton.SetFocus();
       PressKey(window.Window(), 'Q');
     }},
    {"LeftPress", ConnectTo<&Events::MouseWasDown>,
     [](ClockedWindow& window) { Click(window, window.Children().ButtonPanel); }},
    {"RightPress", ConnectTo<&Events::MouseWasDown>,
     [](ClockedWindow& window) { Click(window, window.Children().ButtonPanel, RightButton); }},
    {"Move", ConnectTo<&Events::MouseWasMoved>,
     [](ClockedWindow& window) {
       MoveTo(window.Window(), ReachablePlace(*NativeOf(window.Children().ButtonPanel)).value());
     }},
    {"PickByMouse", RowPicked, [](ClockedWindow& window) { PickByMouse(Box(window.Children().RowList), 2); }},
    {"PickByReturn", RowPicked,
     [](ClockedWindow& window) {
       window.Children().RowList.SetFocus();
       PickByReturn(Box(window.Children().RowList), 2);
     }},
    {"PickByArrow", RowPicked,
     [](ClockedWindow& window) {
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), Qt::Key_Down);
     }},
    {"PickByLetter", RowPicked,
     [](ClockedWindow& window) {
       window.Children().RowList.SetFocus();
       PressKey(window.Window(), 'C');
     }},
    {"PickInTheInnerControl",
     [](ClockedWindow& window, const Action& action) {
       window.Children().Inner.Events.InnerPicked.Connect([action](std::int32_t&) { action(); });
     },
     [](ClockedWindow& window) { PickByMouse(Box(window.Children().Inner.Children.InnerList), 1); }},
    {"FocusByTab", ConnectToNote, [](ClockedWindow& window) { PressKey(window.Window(), Qt::Key_Tab); }},
    {"FocusByMouse", ConnectToNote,
     [](ClockedWindow& window) { ClickAt(window.Window(), window.Itself().geometry().bottomRight() - QPoint(3, 3)); }},
    {"ShownAgain", ConnectToNote,
     [](ClockedWindow& window) {
       window.Itself().hide();
       window.Itself().show();
     }},
    {"Wait", InTheMiddle, [](ClockedWindow& window) { Click(window, window.Children().WaitButton); }},
    {"OpenMenu", InTheMiddle, [](ClockedWindow& window) { Click(window, window.Children().MenuButton); }},
    {"MenuChoice", ConnectTo<&Events::MenuChosen>,
     [](ClockedWindow& window) {
       Menu& menu = window.Children().ProbeMenu;
       MenuEntry& entry = window.Children().PlainEntry;
       When(
           window.clock, [&menu] { return OpenMenuOf(menu) != nullptr; },
           [&menu, &entry] { ClickEntry(*OpenMenuOf(menu), entry); });
       Click(window, window.Children().MenuButton);
     }},
};

enum class Victim { Window, ControlWidget };

class QtDestroyTest : public testing::TestWithParam<std::tuple<Gesture, Victim>> {};

TEST_P(QtDestroyTest, AHandlerMayDestroyIt) {
  const auto& [gesture, victim] = GetParam();
  ClockedWindow window;
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
  ClockedWindow window;
  window.Show();
  const QPointer<QWidget> button(NativeOf(window.Children().WaitButton));
  bool aliveInTheLoop = false;
  window.clock.After(20, [&] {
    window.Destroy();
    // A loop below the button's own handler, which is still on the stack.
    window.clock.Wait(20);
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
  ClockedWindow window;
  window.Show();
  int ticks = 0;
  window.Children().WaitTimer.Tick.Connect([&ticks] { ++ticks; });
  window.Children().WaitTimer.Interval(10);
  window.Children().WaitTimer.Enabled(true);
  window.Destroy();
  window.clock.Wait(50);
  EXPECT_EQ(ticks, 0);
}

}  // namespace
}  // namespace tactix::tests
