// The usual ways in which a host and its user give a control the focus: buddy, tab order, setFocus.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/support-qt/ControlClasses.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// All but those that only show something.
std::vector<ControlClass> ClassesThatTakeKeys() {
  const std::set<std::string> showOnly = {"CardCountDisplayBox", "DecisionRegiLOG", "DecisionRegister",
                                          "DualCardCountDisplay", "StrategyDataPanel"};
  std::vector<ControlClass> classes;
  for (const ControlClass& each : ControlClasses()) {
    if (!showOnly.contains(each.name)) classes.push_back(each);
  }
  return classes;
}

/// A form with a control between two lines to type in. The control is made last, so that the tab order is the host's.
class ControlFocusTest : public testing::TestWithParam<ControlClass> {
 protected:
  ControlFocusTest() {
    control_->move(0, 100);
    after_.move(200, 0);
    buddy_.move(0, 40);
    buddy_.setBuddy(control_);
    window_.resize(1100, 600);
    window_.show();
    window_.activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(&window_));
    before_.setFocus();
    Settle();
  }

  bool ControlHasFocus() const {
    QWidget* const focused = QApplication::focusWidget();
    return focused && control_->isAncestorOf(focused) && control_->ItsSite().Focus();
  }
  void Press(Qt::Key key, std::int16_t shift = 0) {
    PressKey(window_, key, shift);
    Settle();
  }
  /// Presses until the focus has left the control; how often that took.
  int TabThrough(Qt::Key key) {
    int stops = 0;
    for (; ControlHasFocus() && stops < 40; ++stops) Press(key);
    return stops;
  }

  QWidget window_;
  QLineEdit before_{&window_};
  QLineEdit after_{&window_};
  QLabel buddy_{QStringLiteral("&Zone"), &window_};
  qt::ControlWidget* control_ = GetParam().make(&window_);
};

TEST_P(ControlFocusTest, SetFocusGivesItToTheControl) {
  control_->setFocus();
  Settle();
  EXPECT_TRUE(ControlHasFocus());
}

TEST_P(ControlFocusTest, ABuddysKeyGivesItToTheControl) {
  Press(Qt::Key_Z, AltKey);
  EXPECT_TRUE(ControlHasFocus());
}

TEST_P(ControlFocusTest, TheTabOrderIsTheHosts) {
  QWidget::setTabOrder(&before_, control_);
  QWidget::setTabOrder(control_, &after_);
  Press(Qt::Key_Tab);
  ASSERT_TRUE(ControlHasFocus());
  const int stops = TabThrough(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &after_);
  Press(Qt::Key_Backtab, ShiftKey);
  ASSERT_TRUE(ControlHasFocus());
  EXPECT_EQ(TabThrough(Qt::Key_Backtab), stops);
  EXPECT_EQ(QApplication::focusWidget(), &before_);
}

INSTANTIATE_TEST_SUITE_P(Classes, ControlFocusTest, testing::ValuesIn(ClassesThatTakeKeys()), RowName());

}  // namespace
}  // namespace tactix::tests
