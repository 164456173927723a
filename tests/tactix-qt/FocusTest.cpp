#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>
#include <string>
#include <vector>

#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class QtFocusTest : public testing::Test {
 protected:
  QtFocusTest() {
    window_.Show();
    window_.Probe().OnNote = [this](std::string note) { notes_.push_back(std::move(note)); };
    window_.Children().Inner.OnNote = window_.Probe().OnNote;
  }

  Widget* Focus() { return window_.Itself().ItsSite().Focus(); }
  QWidget* Native(const Widget& widget) { return NativeOf(widget); }
  void Press(const Widget& widget) {
    ClickAt(window_.Window(), ReachablePlace(*NativeOf(widget)).value());
    Settle();
  }

  Texts notes_;
  NativeProbeWindow window_;
  OuterProbe::ChildWidgets& children_ = window_.Children();
};

TEST_F(QtFocusTest, SettingItMovesTheRealFocusAtOnce) {
  children_.SecondButton.SetFocus();
  EXPECT_EQ(QApplication::focusWidget(), Native(children_.SecondButton));
  EXPECT_EQ(Focus(), &children_.SecondButton);
  EXPECT_EQ(notes_, Texts{"outer: GotFocus"});
}

TEST_F(QtFocusTest, AControlHearsOfItOnlyFromOutside) {
  children_.SecondButton.SetFocus();
  children_.FirstButton.SetFocus();
  EXPECT_EQ(notes_, Texts{"outer: GotFocus"});
  children_.Inner.Children.InnerButton.SetFocus();
  EXPECT_EQ(notes_, (Texts{"outer: GotFocus", "inner: GotFocus"}));
  window_.Desk().setFocus();
  EXPECT_EQ(Focus(), nullptr);
  notes_.clear();
  Native(children_.Inner.Children.InnerButton)->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Focus(), &children_.Inner.Children.InnerButton);
  EXPECT_EQ(notes_, Texts{}) << "Qt is still busy with it";
  Settle();
  EXPECT_EQ(notes_, (Texts{"outer: GotFocus", "inner: GotFocus"}));
}

TEST_F(QtFocusTest, APressLeavesItAndTheClickTakesIt) {
  QWidget& window = window_.Window();
  children_.FirstButton.SetFocus();
  const QPoint place = ReachablePlace(*Native(children_.PanelButton)).value();
  QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
  Settle();
  EXPECT_EQ(Focus(), &children_.FirstButton);
  QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place);
  Settle();
  EXPECT_EQ(Focus(), &children_.PanelButton);
}

TEST_F(QtFocusTest, APressOnAPanelOrTheControlItselfTakesItWhereKeysAreMapped) {
  Press(children_.ButtonPanel);
  EXPECT_EQ(Focus(), &children_.ButtonPanel);
  Press(window_.Probe().Extender());
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
  Press(children_.Inner.Extender());
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
}

TEST_F(QtFocusTest, TabReachesEveryElement) {
  std::vector<Widget*> reached;
  for (int i = 0; i < 11; ++i) {
    PressKey(window_.Window(), Qt::Key_Tab);
    Settle();
    reached.push_back(Focus());
  }
  for (const Widget* widget : std::initializer_list<Widget*>{
           &children_.FirstButton, &children_.SecondButton, &children_.MenuButton, &children_.WaitButton,
           &children_.ButtonPanel, &children_.PanelButton, &children_.RowList, &children_.Inner.Children.InnerButton,
           &children_.Inner.Children.InnerList, &window_.Probe().Extender()}) {
    EXPECT_EQ(std::count(reached.begin(), reached.end(), widget), 1) << widget->Name();
  }
  EXPECT_EQ(std::count(reached.begin(), reached.end(), nullptr), 1);
}

TEST_F(QtFocusTest, HidingTheFocusedChildGivesItToTheControlForGood) {
  children_.FirstButton.SetFocus();
  notes_.clear();
  children_.FirstButton.Visible(false);
  EXPECT_EQ(QApplication::focusWidget(), Native(window_.Probe().Extender()));
  children_.FirstButton.Visible(true);
  Settle();
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
  EXPECT_EQ(QApplication::focusWidget(), Native(window_.Probe().Extender()));
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(QtFocusTest, DisablingWhatHoldsTheFocusedChildDoesSo) {
  children_.PanelButton.SetFocus();
  children_.ButtonPanel.Enabled(false);
  Settle();
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
  EXPECT_EQ(QApplication::focusWidget(), Native(window_.Probe().Extender()));
}

TEST_F(QtFocusTest, HidingInAWindowThatIsNotActiveDoesSoToo) {
  children_.FirstButton.SetFocus();
  QWidget other;
  other.show();
  other.activateWindow();
  static_cast<void>(QTest::qWaitForWindowActive(&other));
  children_.FirstButton.Visible(false);
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
  EXPECT_EQ(window_.Window().focusWidget(), Native(window_.Probe().Extender()));
}

TEST_F(QtFocusTest, AnotherWindowBorrowsIt) {
  children_.FirstButton.SetFocus();
  notes_.clear();
  {
    QWidget other;
    other.show();
    other.activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(Focus(), &children_.FirstButton);
  }
  window_.Window().activateWindow();
  static_cast<void>(QTest::qWaitForWindowActive(&window_.Window()));
  Settle();
  EXPECT_EQ(Focus(), &children_.FirstButton);
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(QtFocusTest, AListThatOpensKeepsIt) {
  children_.RowList.SetFocus();
  notes_.clear();
  PickByMouse(*qobject_cast<QComboBox*>(Native(children_.RowList)), 1);
  Settle();
  EXPECT_EQ(Focus(), &children_.RowList);
  EXPECT_EQ(notes_, Texts{});
}

TEST_F(QtFocusTest, FocusingTheWidgetFocusesTheControl) {
  window_.Itself().setFocus();
  Settle();
  EXPECT_EQ(Focus(), &window_.Probe().Extender());
}

TEST_F(QtFocusTest, TheMenuKeyIsARightPress) {
  children_.ButtonPanel.SetFocus();
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(Native(children_.ButtonPanel), &event);
  Settle();
  EXPECT_EQ(window_.Recorder().Take(), Texts{"MouseWasDown#10(2, 0)"});
}

}  // namespace
}  // namespace tactix::tests
