#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QMenu>
#include <string>
#include <vector>

#include "tactix-qt/AdviceButton.h"
#include "tactix-qt/DecisionBAR.h"
#include "tests/support/RowName.h"
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

// Where the focus of a control that maps no keys itself goes: to what Tab would reach first.

/// An advice button in a host's window.
struct AdviceAtHost {
  AdviceAtHost() {
    widget.resize(160, 60);
    window.show();
    window.activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(&window));
    Settle();
  }
  PushButton& Button() { return widget.control().Children.cmdAdviceButton; }
  Extender& List() { return widget.control().Children.StrategyListBox.Extender(); }
  QWidget* ListBox() { return NativeOf(widget.control().Children.StrategyListBox.Children.StrategyListBox); }
  void OpenTheList() { widget.control().Children.mnuSelectStrategy.Chosen.Raise(); }

  QWidget window;
  qt::AdviceButton widget{&window};
};

enum class Entry { Button, List, Control };

struct EntryRow {
  const char* name;
  void (*prepare)(AdviceAtHost&);
  Entry entry;
};

class QtFocusEntryTest : public testing::TestWithParam<EntryRow> {};

TEST_P(QtFocusEntryTest, IsTheFirstChildThatAUserCanReach) {
  AdviceAtHost host;
  host.widget.control().Children.StrategyListBox.AddItem("Zero");
  GetParam().prepare(host);
  QWidget* const expected = GetParam().entry == Entry::Button ? NativeOf(host.Button())
                            : GetParam().entry == Entry::List ? host.ListBox()
                                                              : NativeOf(host.widget.control().Extender());
  EXPECT_EQ(host.widget.focusProxy(), expected);
  host.window.setFocus();
  host.widget.setFocus();
  Settle();
  EXPECT_EQ(QApplication::focusWidget(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, QtFocusEntryTest,
    testing::Values(EntryRow{"AtFirst", [](AdviceAtHost&) {}, Entry::Button},
                    EntryRow{"WithTheListOpen", [](AdviceAtHost& host) { host.OpenTheList(); }, Entry::Button},
                    EntryRow{"WithTheListOpenAndTheButtonDisabled",
                             [](AdviceAtHost& host) {
                               host.OpenTheList();
                               host.Button().Enabled(false);
                             },
                             Entry::List},
                    EntryRow{"WithTheButtonDisabledBeforeTheListOpens",
                             [](AdviceAtHost& host) {
                               host.Button().Enabled(false);
                               host.OpenTheList();
                             },
                             Entry::List},
                    EntryRow{"WithTheListDisabledToo",
                             [](AdviceAtHost& host) {
                               host.OpenTheList();
                               host.Button().Enabled(false);
                               host.List().Enabled(false);
                             },
                             Entry::Control},
                    EntryRow{"WithTheButtonHidden", [](AdviceAtHost& host) { host.Button().Visible(false); },
                             Entry::Control},
                    EntryRow{"WithTheButtonShownAgain",
                             [](AdviceAtHost& host) {
                               host.Button().Visible(false);
                               host.Button().Visible(true);
                             },
                             Entry::Button},
                    EntryRow{"WithTheWholeHiddenAndShownAgain",
                             [](AdviceAtHost& host) {
                               host.widget.hide();
                               host.Button().Enabled(false);
                               host.Button().Enabled(true);
                               host.widget.show();
                             },
                             Entry::Button},
                    EntryRow{"WithTheWholeDisabledAndEnabledAgain",
                             [](AdviceAtHost& host) {
                               host.widget.setEnabled(false);
                               host.OpenTheList();
                               host.widget.setEnabled(true);
                             },
                             Entry::Button}),
    RowName());

TEST(QtFocusEntryTest, IsAToolBarEvenWhileOneOfItsButtonsHasTheFocus) {
  qt::DecisionBAR bar;
  QWidget* const strip = NativeOf(bar.control().Children.DecisionToolBar);
  bar.show();
  bar.activateWindow();
  static_cast<void>(QTest::qWaitForWindowActive(&bar));
  ASSERT_EQ(bar.focusProxy(), strip);
  bar.setFocus();
  ASSERT_TRUE(strip->isAncestorOf(QApplication::focusWidget()));
  bar.control().Children.DecisionBAR_ID.Visible(true);
  EXPECT_EQ(bar.focusProxy(), strip);
}

TEST(QtFocusEntryTest, LeavesTheTabKeyItsOrder) {
  AdviceAtHost host;
  QWidget before(&host.window);
  QWidget after(&host.window);
  for (QWidget* widget : {&before, &after}) {
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->show();
  }
  QWidget::setTabOrder(&before, &host.widget);
  QWidget::setTabOrder(&host.widget, &after);
  host.OpenTheList();
  host.Button().Enabled(false);
  host.Button().Enabled(true);
  before.setFocus();
  std::vector<QWidget*> reached;
  for (int i = 0; i < 3; ++i) {
    PressKey(host.window, Qt::Key_Tab);
    Settle();
    reached.push_back(QApplication::focusWidget());
  }
  EXPECT_EQ(reached, (std::vector<QWidget*>{NativeOf(host.Button()), host.ListBox(), &after}));
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
