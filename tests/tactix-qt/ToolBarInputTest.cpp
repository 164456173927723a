#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <string>
#include <vector>

#include "tests/support/RowName.h"
#include "tests/tactix-qt/BarWindow.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class QtToolBarInputTest : public testing::Test {
 protected:
  QWidget* Focused() { return QApplication::focusWidget(); }

  BarWindow window_;
};

// Keys.

struct BarKeyRow {
  const char* name;
  const char* from;
  Qt::Key key;
  const char* to;
};

class QtToolBarKeyTest : public QtToolBarInputTest, public testing::WithParamInterface<BarKeyRow> {};

TEST_P(QtToolBarKeyTest, MovesToTheNextThatCanBeUsed) {
  const BarKeyRow& row = GetParam();
  window_.Button("Split").Enabled(false);
  window_.Button("HitcardMid").Visible(false);
  window_.Native(row.from).setFocus(Qt::TabFocusReason);
  window_.Press(row.key);
  EXPECT_EQ(Focused(), &window_.Native(row.to));
  EXPECT_EQ(window_.Itself()->ItsSite().Focus(), &window_.Model());
  EXPECT_EQ(window_.Clicked(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Keys, QtToolBarKeyTest,
    testing::Values(BarKeyRow{"Right", "Hit", Qt::Key_Right, "Stand"}, BarKeyRow{"Down", "Hit", Qt::Key_Down, "Stand"},
                    BarKeyRow{"Left", "Stand", Qt::Key_Left, "Hit"}, BarKeyRow{"Up", "Stand", Qt::Key_Up, "Hit"},
                    BarKeyRow{"PastADisabledOne", "Stand", Qt::Key_Right, "Double"},
                    BarKeyRow{"PastAHiddenOne", "HitcardHigh", Qt::Key_Left, "HitcardLow"},
                    BarKeyRow{"PastASeparator", "Advice", Qt::Key_Right, "HitcardLow"},
                    BarKeyRow{"NotBeyondTheFirst", "Hit", Qt::Key_Left, "Hit"},
                    BarKeyRow{"NotBeyondTheLast", "ClumpStatistics", Qt::Key_Right, "ClumpStatistics"},
                    BarKeyRow{"Home", "HolecardLow", Qt::Key_Home, "Hit"},
                    BarKeyRow{"End", "HolecardLow", Qt::Key_End, "ClumpStatistics"}),
    RowName());

TEST_F(QtToolBarInputTest, ArrowsFollowTheDirectionOfReading) {
  window_.Itself()->setLayoutDirection(Qt::RightToLeft);
  window_.Native("Hit").setFocus(Qt::TabFocusReason);
  window_.Press(Qt::Key_Left);
  EXPECT_EQ(Focused(), &window_.Native("Stand"));
  window_.Press(Qt::Key_Right);
  EXPECT_EQ(Focused(), &window_.Native("Hit"));
}

TEST_F(QtToolBarInputTest, TabEntersWhereItWasLeftAndLeaves) {
  window_.Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), &window_.Native("Hit"));
  window_.Press(Qt::Key_Right);
  window_.Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), &window_.Desk());
  window_.Press(Qt::Key_Tab);
  EXPECT_EQ(Focused(), &window_.Native("Stand"));
  window_.Press(Qt::Key_Backtab, ShiftKey);
  EXPECT_EQ(Focused(), &window_.Desk());
  window_.Press(Qt::Key_Backtab, ShiftKey);
  EXPECT_EQ(Focused(), &window_.Native("Stand"));
}

TEST_F(QtToolBarInputTest, FocusingTheControlOrItsBarFocusesAButton) {
  window_.Itself()->setFocus();
  EXPECT_EQ(Focused(), &window_.Native("Hit"));
  window_.Desk().setFocus();
  window_.Button("Hit").Enabled(false);
  window_.Model().SetFocus();
  EXPECT_EQ(Focused(), &window_.Native("Stand"));
  EXPECT_EQ(window_.Itself()->ItsSite().Focus(), &window_.Model());
}

TEST_F(QtToolBarInputTest, KeysClickAndKeepTheFocus) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    for (const char* button : {"Double", "HolecardHigh"}) {
      window_.Native(button).setFocus(Qt::TabFocusReason);
      window_.Press(key);
      EXPECT_EQ(window_.Clicked(), Texts{button}) << key;
      EXPECT_EQ(Focused(), &window_.Native(button));
    }
  }
}

TEST_F(QtToolBarInputTest, AClickWithTheMouseLeavesTheFocus) {
  window_.ClickWithMouse("Hit");
  EXPECT_EQ(Focused(), &window_.Desk());
}

TEST_F(QtToolBarInputTest, EnterIsTheDefaultButtonsFirst) {
  ProbeWidget probe(&window_.Window());
  probe.Probe().Children.SecondButton.DEFAULT(true);
  probe.move(0, 100);
  probe.show();
  int clicks = 0;
  probe.Probe().Events.SecondClicked.Connect([&clicks] { ++clicks; });
  window_.Native("Hit").setFocus(Qt::TabFocusReason);
  window_.Press(Qt::Key_Return);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(window_.Clicked(), Texts{});
}

TEST_F(QtToolBarInputTest, ALetterGoesToTheKeyMapOnce) {
  std::vector<char> letters;
  window_.Itself()->control().Extender().OnKeyDown(
      [&letters](const KeyPress& key) { letters.push_back(key.Letter()); });
  window_.Native("Hit").setFocus(Qt::TabFocusReason);
  window_.Press(Qt::Key_S);
  EXPECT_EQ(letters, std::vector<char>{'S'});
}

struct LossRow {
  const char* name;
  const char* focused;
  void (ToolButton::*change)(bool);
  const char* to;
};

class QtToolBarLossTest : public QtToolBarInputTest, public testing::WithParamInterface<LossRow> {};

TEST_P(QtToolBarLossTest, PassesTheFocusToItsNeighbour) {
  const LossRow& row = GetParam();
  window_.Native(row.focused).setFocus(Qt::TabFocusReason);
  (window_.Button(row.focused).*row.change)(false);
  Settle();
  EXPECT_EQ(Focused(), &window_.Native(row.to));
}

INSTANTIATE_TEST_SUITE_P(Rows, QtToolBarLossTest,
                         testing::Values(LossRow{"Disabled", "Stand", &ToolButton::Enabled, "Split"},
                                         LossRow{"Hidden", "Stand", &ToolButton::Visible, "Split"},
                                         LossRow{"LastDisabled", "ClumpStatistics", &ToolButton::Enabled,
                                                 "DealerStrengthStrong"}),
                         RowName());

TEST_F(QtToolBarInputTest, HidingTheBarGivesTheFocusToItsControl) {
  window_.Native("Hit").setFocus(Qt::TabFocusReason);
  Settle();
  window_.Model().Visible(false);
  EXPECT_EQ(window_.Itself()->ItsSite().Focus(), &window_.Itself()->control().Extender());
}

// The mouse.

class QtToolBarMouseTest : public QtToolBarInputTest {
 protected:
  QtToolBarMouseTest() {
    window_.Model().MousePressed.Connect([this](const MouseState& state) { presses_.push_back(state); });
    window_.Model().MouseMoved.Connect([this](const MouseState& state) { moves_.push_back(state); });
  }

  /// In the bar's units.
  QPointF CentreOf(const QWidget& native) { return QPointF(native.mapTo(&window_.Bar(), native.rect().center())) * 15; }
  void ExpectOnePress(std::int16_t button, const QPointF& place) {
    ASSERT_EQ(presses_.size(), 1U);
    EXPECT_EQ(presses_[0].button, button);
    EXPECT_EQ(QPointF(static_cast<qreal>(presses_[0].x), static_cast<qreal>(presses_[0].y)), place);
    presses_.clear();
  }

  std::vector<MouseState> presses_;
  std::vector<MouseState> moves_;
};

TEST_F(QtToolBarMouseTest, APressOnAButtonIsOneOnTheBar) {
  for (const std::int16_t button : {RightButton, LeftButton, MiddleButton}) {
    window_.ClickWithMouse("Double", button);
    ExpectOnePress(button, CentreOf(window_.Native("Double")));
    window_.Button("Double").Enabled(false);
    window_.ClickWithMouse("Double", button);
    ExpectOnePress(button, CentreOf(window_.Native("Double")));
    window_.Button("Double").Enabled(true);
    EXPECT_EQ(window_.Clicked(), button == LeftButton ? Texts{"Double"} : Texts{});
  }
}

TEST_F(QtToolBarMouseTest, APressBesideTheButtonsIsOneOnTheBar) {
  const QPoint place(window_.Bar().width() - 3, 30);
  ClickAt(window_.Window(), window_.Bar().mapTo(&window_.Window(), place), RightButton);
  Settle();
  ExpectOnePress(RightButton, QPointF(place) * 15);
}

TEST_F(QtToolBarMouseTest, AMoveOverAButtonIsOneOverTheBar) {
  for (const bool enabled : {true, false}) {
    window_.Button("Double").Enabled(enabled);
    MoveTo(window_.Window(), QPoint(1, 300));
    moves_.clear();
    MoveTo(window_.Window(), ReachablePlace(window_.Native("Double")).value());
    Settle();
    ASSERT_EQ(moves_.size(), 1U) << enabled;
    EXPECT_EQ(moves_[0].x, static_cast<float>(CentreOf(window_.Native("Double")).x()));
  }
}

TEST_F(QtToolBarMouseTest, TheMenuKeyIsARightPressOnTheFocusedButton) {
  QToolButton& native = window_.Native("Double");
  native.setFocus(Qt::TabFocusReason);
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(&native, &event);
  EXPECT_TRUE(presses_.empty()) << "Qt is not done with it";
  Settle();
  ExpectOnePress(RightButton, CentreOf(native));
}

TEST_F(QtToolBarMouseTest, NoMenuOfTheHostOpens) {
  struct HostMenu : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::ContextMenu) ++asked;
      return false;
    }
    int asked = 0;
  } menu;
  window_.Window().installEventFilter(&menu);
  for (const char* key : {"Hit", "Double"}) window_.ClickWithMouse(key, RightButton);
  window_.Button("Hit").Enabled(false);
  window_.ClickWithMouse("Hit", RightButton);
  ClickAt(window_.Window(), window_.Bar().mapTo(&window_.Window(), QPoint(window_.Bar().width() - 3, 30)), RightButton);
  EXPECT_EQ(menu.asked, 0);
  ClickAt(window_.Window(), QPoint(500, 300), RightButton);
  EXPECT_EQ(menu.asked, 1) << "beside the control it is asked";
}

// Ending in the middle.

struct EndRow {
  const char* name;
  bool isNarrow;
  void (*perform)(BarWindow&);
};

class QtToolBarEndTest : public testing::TestWithParam<EndRow> {};

TEST_P(QtToolBarEndTest, MayGoInTheClick) {
  const EndRow& row = GetParam();
  for (const bool withWindow : {false, true}) {
    BarWindow window;
    if (row.isNarrow) window.Resize(250, 60);
    window.Activate();
    const QPointer<QWidget> host(&window.Window());
    const QPointer<QToolBar> bar(&window.Bar());
    QObject::connect(window.Itself(), &qt::DecisionBAR::StatsButtonWasPressed, [&window, withWindow] {
      if (withWindow) {
        window.Destroy();
      } else {
        delete window.Itself();
      }
    });
    row.perform(window);
    Settle();
    EXPECT_FALSE(window.Itself());
    EXPECT_NE(host.isNull(), !withWindow);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(bar);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtToolBarEndTest,
    testing::Values(
        EndRow{"Mouse", false, [](BarWindow& window) { ClickOnBar(window.Bar(), window.Action("ClumpStatistics")); }},
        EndRow{"Space", false, [](BarWindow& window) { PressOnBar(window.Bar(), window.Action("ClumpStatistics")); }},
        EndRow{"Return", false,
               [](BarWindow& window) {
                 window.Native("ClumpStatistics").setFocus();
                 PressKey(window.Window(), Qt::Key_Return);
               }},
        EndRow{"InTheMenu", true,
               [](BarWindow& window) { ClickOnBar(window.Bar(), window.Action("ClumpStatistics")); }},
        EndRow{"InTheMenuByKey", true,
               [](BarWindow& window) { PressOnBar(window.Bar(), window.Action("ClumpStatistics")); }},
        EndRow{"RightPress", false,
               [](BarWindow& window) {
                 window.Model().MousePressed.Connect(
                     [&window](const MouseState&) { window.Button("ClumpStatistics").Click(); });
                 ClickAt(window.Window(), ReachablePlace(window.Native("Hit")).value(), RightButton);
               }}),
    RowName());

}  // namespace
}  // namespace tactix::tests
