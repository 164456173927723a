#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/TestClock.h"
#include "tests/support/When.h"
#include "tests/trainer/screens/Sessions.h"
#include "trainer/screens/Messages.h"
#include "trainer/screens/TableView.h"
#include "trainer/screens/TrainerWindow.h"

namespace trainer::screens {

using Play = engine::Decision;
using Verdict = TableModel::Verdict;

struct PlayInput {
  Play play;
  char key;
  const char* button;
};
inline constexpr PlayInput PlayInputs[] = {
    {Play::Hit, 'H', "HitButton"},       {Play::Stand, 'S', "StandButton"},         {Play::Split, 'P', "SplitButton"},
    {Play::Double, 'D', "DoubleButton"}, {Play::Surrender, 'G', "SurrenderButton"},
};

/// A trainer window and somebody who plays, with key and mouse events.
class TrainerAtWork : public testing::Test {
 protected:
  TrainerAtWork()
      : catalogue_(std::make_shared<tactix::companion::IniStrategyCatalogue>(
            tactix::companion::DefaultStrategies(), tactix::companion::DefaultStrategiesName)) {}
  ~TrainerAtWork() override { tactix::StrategyListData::UseCatalogue(nullptr); }

  void Open(std::uint64_t seed, const engine::Rules& rules = {}) {
    window_ = std::make_unique<TrainerWindow>(engine::Session(rules, seed), catalogue_);
    QObject::connect(window_.get(), &TrainerWindow::Judged,
                     [this](const DecisionRecord& record) { records_.push_back(record); });
    // Painted anew after each key, it would take most of the tests' time. What it looks like has tests of its own.
    window_->Table().setUpdatesEnabled(false);
    window_->show();
    window_->Deal();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  /// At a round as wanted.
  void OpenAt(bool (*isWanted)(const engine::Session&)) {
    Open(SeedWhere([isWanted](engine::Session& session) { return isWanted(session); }));
  }

  template <typename Native>
  Native& Find(const char* name) {
    auto* const native = window_->findChild<Native*>(QLatin1String(name));
    if (!native) throw std::logic_error(std::string("the window has no ") + name);
    return *native;
  }
  void Click(const char* name, std::int16_t button = tactix::LeftButton, std::int16_t shift = 0) {
    const auto place = tactix::tests::ReachablePlace(Find<QWidget>(name));
    ASSERT_TRUE(place) << name;
    tactix::tests::ClickAt(*window_, *place, button, shift);
  }
  void Press(char key) { tactix::tests::PressKey(*window_, key); }
  void WhenAMenuIsOpen(std::function<void(QMenu*)> action) {
    const auto open = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    tactix::tests::When(
        clock_, [open] { return open() != nullptr; }, [open, action = std::move(action)] { action(open()); });
  }
  /// Does something as soon as a widget is hidden: in the middle of its flash.
  void WhenHidden(const char* name, std::function<void()> action) {
    const QPointer<QWidget> widget(&Find<QWidget>(name));
    tactix::tests::When(
        clock_, [widget] { return widget && !widget->isVisible(); }, std::move(action));
  }
  /// Clicks a button that opens a menu, and picks an entry there by its text.
  void ChooseFrom(const char* name, const QString& entry, std::int16_t button = tactix::LeftButton) {
    WhenAMenuIsOpen([entry](QMenu* menu) {
      for (QAction* action : menu->actions()) {
        if (action->text() == entry)
          return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      }
      menu->hide();
      ADD_FAILURE() << "no entry " << entry.toStdString();
    });
    Click(name, button);
  }
  /// The list in the decision box.
  QComboBox& StrategyBox() { return *window_->Box().findChild<QComboBox*>(QStringLiteral("StrategyListBox")); }
  int RowOf(const QString& text) { return StrategyBox().findText(text); }

  const engine::Session& Session() const { return window_->CurrentSession(); }
  const TableModel& Table() const { return window_->Table().Model(); }
  std::string Message() const { return Table().message.toStdString(); }
  std::string Prompt() { return Find<QLabel>("lblUserControlCaption").text().toStdString(); }
  void StandToTheEnd() {
    while (!Session().IsOver()) Press('S');
  }

  tactix::tests::TestClock clock_;
  std::shared_ptr<tactix::companion::IniStrategyCatalogue> catalogue_;
  std::unique_ptr<TrainerWindow> window_;
  std::vector<DecisionRecord> records_;
};

}  // namespace trainer::screens
