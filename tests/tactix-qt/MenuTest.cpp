#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <functional>
#include <string>
#include <vector>

#include "tactix-qt/MenuPopUp.h"
#include "tests/support-qt/TestClock.h"
#include "tests/support/RowName.h"
#include "tests/support/When.h"
#include "tests/tactix-qt/NativeProbeWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class QtMenuTest : public testing::Test {
 protected:
  QtMenuTest() { window_.Show(); }

  /// Opens the menu and runs the script while it is open. Leaves it where the script has not, or it would stay open.
  void Open(const std::function<void(QMenu&)>& script) {
    bool wasOpen = false;
    WhenOpen(children_.ProbeMenu, [&wasOpen, &script](QMenu& open) {
      wasOpen = true;
      const QPointer<QMenu> still(&open);
      script(open);
      if (still) LeaveMenu(*still);
    });
    ClickAt(window_.Window(), ReachablePlace(*NativeOf(children_.MenuButton)).value());
    Settle();
    EXPECT_TRUE(wasOpen);
  }
  void WhenOpen(const Menu& menu, std::function<void(QMenu&)> script) {
    When(
        clock_, [&menu] { return OpenMenuOf(menu) != nullptr; },
        [&menu, script = std::move(script)] { script(*OpenMenuOf(menu)); });
  }

  TestClock clock_;
  NativeProbeWindow window_;
  OuterProbe::ChildWidgets& children_ = window_.Children();
};

TEST_F(QtMenuTest, ShowsItsEntries) {
  Texts entries;
  QPoint place;
  Open([&](QMenu& menu) {
    place = menu.pos();
    for (const QAction* action : menu.actions()) {
      if (!action->isVisible()) continue;
      entries.push_back(action->isSeparator() ? "-" : action->text().toStdString());
      if (action->isChecked()) entries.back() += " checked";
      if (!action->isEnabled()) entries.back() += " disabled";
      if (action->menu()) entries.back() += " opens " + action->menu()->actions().value(0)->text().toStdString();
    }
  });
  EXPECT_EQ(entries, (Texts{"&Plain", "&Checked checked", "&Disabled disabled", "-", "&More opens D&eep"}));
  // 200 by 300 twips.
  EXPECT_EQ(place, NativeOf(window_.Probe().Extender())->mapToGlobal(QPoint(13, 20)));
}

struct ChoiceRow {
  const char* name;
  MenuEntry OuterProbe::ChildWidgets::*entry;
  Texts events;
};

class QtMenuChoiceTest : public QtMenuTest, public testing::WithParamInterface<ChoiceRow> {};

TEST_P(QtMenuChoiceTest, RunsTheHandlerBeforeThePopUpReturns) {
  Open([this](QMenu& menu) { ClickEntry(menu, children_.*GetParam().entry); });
  EXPECT_EQ(window_.Recorder().Take(), GetParam().events);
  EXPECT_FALSE(children_.ProbeMenu.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(
    Entries, QtMenuChoiceTest,
    testing::Values(ChoiceRow{"Plain", &OuterProbe::ChildWidgets::PlainEntry, {"MenuChosen#5(1)", "MenuClosed#6"}},
                    ChoiceRow{"Deep", &OuterProbe::ChildWidgets::DeepEntry, {"MenuChosen#5(7)", "MenuClosed#6"}},
                    ChoiceRow{"Disabled", &OuterProbe::ChildWidgets::DisabledEntry, {"MenuClosed#6"}},
                    ChoiceRow{"Hidden", &OuterProbe::ChildWidgets::HiddenEntry, {"MenuClosed#6"}}),
    RowName());

TEST_F(QtMenuTest, AKeyChooses) {
  Open([](QMenu& menu) { PressKey(menu, 'P'); });
  EXPECT_EQ(window_.Recorder().Take(), (Texts{"MenuChosen#5(1)", "MenuClosed#6"}));
}

TEST_F(QtMenuTest, AClickBesideItClosesIt) {
  Open([this](QMenu&) { ClickAt(window_.Window(), window_.Window().rect().bottomRight() - QPoint(3, 3)); });
  EXPECT_EQ(window_.Recorder().Take(), Texts{"MenuClosed#6"});
}

TEST_F(QtMenuTest, MouseMovesOverTheControlStillReachIt) {
  Open([this](QMenu& menu) {
    const QWidget& panel = *NativeOf(children_.ButtonPanel);
    const QPoint beyond = panel.mapToGlobal(panel.rect().bottomRight() - QPoint(4, 4));
    ASSERT_FALSE(menu.geometry().contains(beyond));
    MoveTo(window_.Window(), window_.Window().mapFromGlobal(beyond), CtrlKey);
  });
  EXPECT_EQ(window_.Recorder().Take(), (Texts{"MouseWasMoved#11(0, 2)", "MenuClosed#6"}));
}

TEST_F(QtMenuTest, MouseMovesOverTheMenuDoNotReachWhatIsUnderIt) {
  Open([](QMenu& menu) { MoveTo(menu, menu.rect().center()); });
  EXPECT_EQ(window_.Recorder().Take(), Texts{"MenuClosed#6"});
}

TEST_F(QtMenuTest, ASecondOneClosesTheFirstWhichReturnsLast) {
  Menu second("Second");
  MenuEntry entry("&Entry");
  second.Add(entry);
  entry.Chosen.Connect([this] { window_.Recorder().Note("entry"); });
  Open([&](QMenu& menu) {
    const QPointer<QMenu> first(&menu);
    WhenOpen(second, [&, first](QMenu& open) {
      EXPECT_FALSE(first && first->isVisible());
      EXPECT_FALSE(children_.ProbeMenu.IsOpen());
      ClickEntry(open, entry);
    });
    window_.Itself().ItsSite().PopUp(second, window_.Probe().Extender(), 0, 0);
    window_.Recorder().Note("second returned");
  });
  EXPECT_EQ(window_.Recorder().Take(), (Texts{"entry", "second returned", "MenuClosed#6"}));
}

TEST_F(QtMenuTest, AMenuWithoutEntriesClosesAtOnce) {
  Menu empty("Empty");
  window_.Itself().ItsSite().PopUp(empty, window_.Probe().Extender(), 0, 0);
  EXPECT_FALSE(empty.IsOpen());
}

}  // namespace
}  // namespace tactix::tests
