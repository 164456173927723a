#include "tactix-qt/peers/SpinButtonPeer.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QEventLoop>
#include <QHBoxLayout>
#include <QImage>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "tactix-qt/SpinCounter.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// A spin counter in a host's window; its events are counted.
class QtSpinTest : public testing::Test {
 protected:
  static constexpr int OneMinute = 60000;
  static constexpr int Delay = 20;  // milliseconds
  static constexpr int LongDelay = 100;
  static constexpr int Interval = 10;

  QtSpinTest() {
    counter_->control().Events.CounterValueHasChanged.Connect([this](const std::int16_t& value) {
      ++steps_;
      last_ = value;
      if (const auto onStep = onStep_) onStep();
    });
    // A click is no holding, however slow the machine is.
    HoldAfter(OneMinute);
    counter_->move(0, 20);
    window_->resize(300, 200);
    window_->show();
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_));
    Settle();
  }
  ~QtSpinTest() override {
    delete window_;
    Settle();
  }

  SpinButton& Spin() const { return counter_->control().Children.SpinButton; }
  qt::SpinButtonPeer& Pair() const { return *dynamic_cast<qt::SpinButtonPeer*>(NativeOf(Spin())); }
  static QPoint PlaceIn(const QWidget& native) { return native.mapTo(native.window(), native.rect().center()); }
  void Press(const QWidget& native) { QTest::mousePress(window_->windowHandle(), Qt::LeftButton, {}, PlaceIn(native)); }
  void Release(const QPoint& place) {
    if (window_) QTest::mouseRelease(window_->windowHandle(), Qt::LeftButton, {}, place);
  }
  void HoldAfter(int milliseconds) {
    for (qt::ArrowButton* button : {&Pair().UpButton(), &Pair().DownButton()}) {
      button->setAutoRepeatDelay(milliseconds);
      button->setAutoRepeatInterval(Interval);
    }
  }
  void Turn(int eighths) { TurnWheel(*window_, PlaceIn(Pair()), eighths); }
  int TakeSteps() { return std::exchange(steps_, 0); }

  const InstalledCounterValues installed_;
  QPointer<QWidget> window_{new QWidget};
  QPointer<qt::SpinCounter> counter_{new qt::SpinCounter(window_)};
  std::function<void()> onStep_;
  int steps_ = 0;
  int last_ = 0;
};

TEST_F(QtSpinTest, StepsAsAButtonIsPressedAndNotAsItIsLetGo) {
  Press(Pair().UpButton());
  EXPECT_EQ(TakeSteps(), 1);
  EXPECT_EQ(last_, 1);
  Release(PlaceIn(Pair().UpButton()));
  Settle();
  EXPECT_EQ(TakeSteps(), 0);
  EXPECT_TRUE(Pair().hasFocus());
  ClickAt(*window_, PlaceIn(Pair().DownButton()));
  EXPECT_EQ(TakeSteps(), 1);
  EXPECT_EQ(last_, 0);
}

TEST_F(QtSpinTest, OnlyTheLeftMouseButtonSteps) {
  ClickAt(*window_, PlaceIn(Pair().UpButton()), RightButton);
  ClickAt(*window_, PlaceIn(Pair().UpButton()), MiddleButton);
  Settle();
  EXPECT_EQ(TakeSteps(), 0);
}

TEST_F(QtSpinTest, WaitsBeforeItRepeats) {
  const qt::SpinCounter untouched;
  const SpinButton& spin = untouched.control().Children.SpinButton;
  const auto& up = dynamic_cast<qt::SpinButtonPeer*>(NativeOf(spin))->UpButton();
  EXPECT_GE(up.autoRepeatDelay(), 200);
  EXPECT_GE(up.autoRepeatInterval(), 20);
  EXPECT_LT(up.autoRepeatInterval(), up.autoRepeatDelay());
}

TEST_F(QtSpinTest, RepeatsWhileItIsHeld) {
  HoldAfter(Delay);
  Press(Pair().UpButton());
  EXPECT_TRUE(QTest::qWaitFor([this] { return steps_ >= 4; }));
  EXPECT_EQ(last_, steps_);
  Release(PlaceIn(Pair().UpButton()));
  TakeSteps();
  QTest::qWait(Delay + 3 * Interval);
  EXPECT_EQ(TakeSteps(), 0) << "let go";
}

struct StopRow {
  const char* name;
  /// Done at the second step, the first repeat.
  void (*stop)(QWidget& window, qt::SpinCounter& counter);
};

class QtSpinStopTest : public QtSpinTest, public testing::WithParamInterface<StopRow> {};

TEST_P(QtSpinStopTest, ThenNoStepFollows) {
  onStep_ = [this] {
    if (steps_ == 2) GetParam().stop(*window_, *counter_);
  };
  HoldAfter(Delay);
  Press(Pair().UpButton());
  EXPECT_TRUE(QTest::qWaitFor([this] { return steps_ == 2; }));
  QTest::qWait(4 * Interval);
  EXPECT_EQ(steps_, 2);
  Release({1, 1});
  Settle();
  EXPECT_EQ(steps_, 2);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtSpinStopTest,
    testing::Values(
        StopRow{"TheControlDies", [](QWidget&, qt::SpinCounter& counter) { delete &counter; }},
        StopRow{"TheWindowDies", [](QWidget& window, qt::SpinCounter&) { delete &window; }},
        StopRow{"ItIsDisabled",
                [](QWidget&, qt::SpinCounter& counter) { counter.control().Children.SpinButton.Enabled(false); }},
        StopRow{"TheControlIsDisabled", [](QWidget&, qt::SpinCounter& counter) { counter.setEnabled(false); }},
        StopRow{"ItIsHidden",
                [](QWidget&, qt::SpinCounter& counter) { counter.control().Children.SpinButton.Visible(false); }},
        StopRow{"TheControlIsHidden", [](QWidget&, qt::SpinCounter& counter) { counter.hide(); }}),
    RowName());

TEST_F(QtSpinTest, AStepThatWaitsIsNotRunInto) {
  onStep_ = [this] {
    if (steps_ == 1) QTest::qWait(Delay + 4 * Interval);
  };
  HoldAfter(Delay);
  Press(Pair().UpButton());
  EXPECT_EQ(steps_, 1);
  QTest::qWait(Delay + 3 * Interval);
  EXPECT_EQ(steps_, 1) << "and holding it ends there";
  Release(PlaceIn(Pair().UpButton()));
}

TEST_F(QtSpinTest, AReleaseThatADialogHasTakenEndsTheHolding) {
  onStep_ = [this] {
    if (steps_ != 1) return;
    // A dialog over the button is where the mouse is let go.
    QWidget dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    static_cast<void>(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseRelease(dialog.windowHandle(), Qt::LeftButton, {}, {5, 5});
  };
  // Time enough for the dialog.
  HoldAfter(LongDelay);
  Press(Pair().UpButton());
  QTest::qWait(LongDelay + 4 * Interval);
  EXPECT_EQ(steps_, 1);
}

TEST_F(QtSpinTest, ADoubleClickIsTwoSteps) {
  const QPoint place = PlaceIn(Pair().UpButton());
  ClickAt(*window_, place);
  ClickAt(*window_, place);
  EXPECT_EQ(TakeSteps(), 2);
}

struct WheelRow {
  const char* name;
  std::vector<int> turns;
  int number;
  int steps;
};

class QtSpinWheelTest : public QtSpinTest, public testing::WithParamInterface<WheelRow> {};

TEST_P(QtSpinWheelTest, TurnsByNotches) {
  counter_->CounterValue(10);
  TakeSteps();
  for (const int turn : GetParam().turns) Turn(turn);
  EXPECT_EQ(counter_->CounterValue(), GetParam().number);
  EXPECT_EQ(TakeSteps(), GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Rows, QtSpinWheelTest,
                         testing::Values(WheelRow{"Up", {120}, 11, 1}, WheelRow{"Down", {-120}, 9, 1},
                                         WheelRow{"ThreeAtOnce", {360}, 13, 3}, WheelRow{"Half", {60}, 10, 0},
                                         WheelRow{"TwoHalves", {60, 60}, 11, 1},
                                         WheelRow{"ThreeHalvesAndAHalf", {180, 60}, 12, 2},
                                         WheelRow{"FineTurns", {40, 40, 40, -40, -40, -40}, 10, 2},
                                         WheelRow{"BackBeforeANotch", {100, -120}, 9, 1},
                                         WheelRow{"Nothing", {0}, 10, 0}),
                         RowName());

TEST_F(QtSpinTest, AHandlerMayDestroyItInTheMiddleOfATurn) {
  onStep_ = [this] {
    if (steps_ == 2) delete window_;
  };
  Turn(5 * 120);
  EXPECT_EQ(steps_, 2);
  EXPECT_FALSE(window_);
}

TEST_F(QtSpinTest, TheWheelOverADisabledOneDoesNothing) {
  Spin().Enabled(false);
  Turn(120);
  EXPECT_EQ(TakeSteps(), 0);
}

TEST_F(QtSpinTest, TakesTheArrowKeysOfBothSidesOfTheKeyboard) {
  Pair().setFocus();
  for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::KeypadModifier, Qt::ShiftModifier}) {
    QTest::keyClick(window_->windowHandle(), Qt::Key_Up, modifiers);
    EXPECT_EQ(TakeSteps(), 1);
    QTest::keyClick(window_->windowHandle(), Qt::Key_Down, modifiers);
    EXPECT_EQ(TakeSteps(), 1);
    EXPECT_EQ(last_, 0);
  }
  QTest::keyClick(window_->windowHandle(), Qt::Key_Up, Qt::ControlModifier);
  QTest::keyClick(window_->windowHandle(), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(TakeSteps(), 0);
}

TEST_F(QtSpinTest, TabReachesItOnce) {
  EXPECT_TRUE(Pair().focusPolicy() & Qt::TabFocus);
  EXPECT_EQ(Pair().UpButton().focusPolicy(), Qt::NoFocus);
  EXPECT_EQ(Pair().DownButton().focusPolicy(), Qt::NoFocus);
  counter_->setFocus();
  EXPECT_TRUE(Pair().hasFocus());
}

TEST_F(QtSpinTest, LooksFocusedWhileItIs) {
  window_->setFocus();
  const QImage before = Pair().grab().toImage();
  Pair().setFocus(Qt::TabFocusReason);
  EXPECT_NE(Pair().grab().toImage(), before);
}

TEST_F(QtSpinTest, AScreenReadersStepIsASingleOne) {
  QAccessibleInterface* const pair = QAccessible::queryAccessibleInterface(&Pair());
  ASSERT_NE(pair, nullptr);
  EXPECT_EQ(pair->role(), QAccessible::SpinBox);
  EXPECT_EQ(pair->text(QAccessible::Name), "Counter");
  EXPECT_EQ(pair->childCount(), 0) << "the two buttons are its actions";
  HoldAfter(Delay);
  pair->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  QTest::qWait(Delay + 3 * Interval);
  EXPECT_EQ(TakeSteps(), 1);
  EXPECT_EQ(last_, 1);
}

struct HeightRow {
  const char* name;
  int height;
};

class QtSpinHeightTest : public QtSpinTest, public testing::WithParamInterface<HeightRow> {};

TEST_P(QtSpinHeightTest, TheTwoShareIt) {
  counter_->resize(100, GetParam().height);
  Settle();
  const QRect up = Pair().UpButton().geometry();
  const QRect down = Pair().DownButton().geometry();
  EXPECT_EQ(up | down, Pair().rect());
  EXPECT_EQ(up.height() + down.height(), GetParam().height);
  EXPECT_LE(std::abs(up.height() - down.height()), 1);
  ClickAt(*window_, PlaceIn(Pair().UpButton()));
  EXPECT_EQ(last_, 1);
  ClickAt(*window_, PlaceIn(Pair().DownButton()));
  EXPECT_EQ(last_, 0);
  EXPECT_EQ(TakeSteps(), 2);
}

INSTANTIATE_TEST_SUITE_P(Rows, QtSpinHeightTest,
                         testing::Values(HeightRow{"Standard", 24}, HeightRow{"Odd", 25}, HeightRow{"Small", 16},
                                         HeightRow{"Tiny", 8}, HeightRow{"Tall", 120}),
                         RowName());

TEST_F(QtSpinTest, TheTwoShareWhatIsInSight) {
  counter_->resize(100, 400);
  counter_->ControlHandedness(qt::SpinCounter::TopMountSpinCounter);
  Settle();
  EXPECT_EQ(Pair().geometry(), QRect(0, 360, 67, 400));
  EXPECT_EQ(Pair().UpButton().geometry(), QRect(0, 0, 67, 20));
  EXPECT_EQ(Pair().DownButton().geometry(), QRect(0, 20, 67, 20));
}

TEST_F(QtSpinTest, BothArrowsAreDrawnAndDiffer) {
  counter_->resize(100, 20);
  Settle();
  const QImage up = Pair().UpButton().grab().toImage();
  const QImage down = Pair().DownButton().grab().toImage();
  EXPECT_NE(up, down);
  EXPECT_NE(up.pixelColor(up.rect().center()), up.pixelColor(4, up.height() / 2)) << "an arrow in the middle";
}

TEST_F(QtSpinTest, FollowsTheColoursOfItsControl) {
  Spin().ForeColor(0x0000FF);
  EXPECT_EQ(Pair().UpButton().palette().color(QPalette::ButtonText), QColor(Qt::red));
  Spin().ForeColor(WindowTextColor);
  EXPECT_EQ(Pair().UpButton().palette().color(QPalette::ButtonText), window_->palette().color(QPalette::ButtonText));
}

TEST_F(QtSpinTest, TheCounterInsistsOnItsWidth) {
  counter_->resize(250, 40);
  Settle();
  EXPECT_EQ(counter_->size(), QSize(100, 40));
  EXPECT_EQ(counter_->control().Extender().Height(), 600);
  counter_->resize(20, 30);
  Settle();
  EXPECT_EQ(counter_->size(), QSize(100, 30));
  EXPECT_EQ(counter_->sizeHint().width(), 100);
}

TEST_F(QtSpinTest, TheCounterKeepsItsSizeInALayout) {
  auto* const layout = new QHBoxLayout(window_);
  layout->addWidget(counter_);
  Settle();
  EXPECT_EQ(counter_->width(), 100);
  window_->resize(500, 300);
  Settle();
  EXPECT_EQ(counter_->width(), 100);
  EXPECT_EQ(counter_->height(), 24);
  EXPECT_EQ(Pair().height(), counter_->height());
}

}  // namespace
}  // namespace tactix::tests
