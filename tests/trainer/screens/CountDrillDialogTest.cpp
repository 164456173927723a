#include "trainer/screens/CountDrillDialog.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>

#include "tactix-qt/SpinCounter.h"
#include "tactix/companion/Companion.h"
#include "trainer/screens/CardView.h"

namespace trainer::screens {
namespace {

class CountDrillDialogTest : public testing::Test {
 protected:
  CountDrillDialogTest() {
    tactix::companion::Install();
    Open(21, 6);
  }

  void Open(int system, int decks) {
    dialog_ = std::make_unique<CountDrillDialog>(*engine::FindCountSystem(system), decks, 5);
    dialog_->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
  }

  template <typename Native>
  Native& Find(const char* name) {
    return *dialog_->findChild<Native*>(QLatin1String(name));
  }
  QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
  tactix::qt::SpinCounter& Answer() { return Find<tactix::qt::SpinCounter>("DrillAnswer"); }
  void Click(const char* name) { QTest::mouseClick(&Button(name), Qt::LeftButton); }
  std::string Result() { return dialog_->ResultText().toStdString(); }
  QTimer& Timer() { return Find<QTimer>("DrillTimer"); }
  /// The time of a card is over.
  void Tick() {
    QTimerEvent tick(Timer().timerId());
    QApplication::sendEvent(&Timer(), &tick);
  }
  /// Deals the shortest drill at the highest speed, to its end.
  void DealAll() {
    Find<QComboBox>("DrillLength").setCurrentIndex(0);
    QComboBox& speed = Find<QComboBox>("DrillSpeed");
    speed.setCurrentIndex(speed.count() - 1);
    Click("DrillStart");
    for (int card = 0; card < 10; ++card) Tick();
    ASSERT_TRUE(Button("DrillCheck").isEnabled());
  }

  std::unique_ptr<CountDrillDialog> dialog_;
};

TEST_F(CountDrillDialogTest, DealsAtTheChosenSpeedAndThenAsks) {
  EXPECT_EQ(Result(), "Count the cards as they come.");
  EXPECT_FALSE(Button("DrillCheck").isEnabled());
  EXPECT_FALSE(Answer().isEnabled());
  EXPECT_EQ(dialog_->Drill(), nullptr);
  QComboBox& speed = Find<QComboBox>("DrillSpeed");
  EXPECT_EQ(speed.currentData().toInt(), 1000);
  speed.setCurrentIndex(speed.count() - 1);
  EXPECT_EQ(speed.currentData().toInt(), 250);
  Find<QComboBox>("DrillLength").setCurrentIndex(0);
  Click("DrillStart");
  EXPECT_EQ(dialog_->Drill()->Shown(), 1) << "the first card comes at once";
  EXPECT_TRUE(dialog_->findChild<CardView*>()->Shown().has_value());
  EXPECT_EQ(Result(), "Count from 0.");
  EXPECT_TRUE(Timer().isActive());
  EXPECT_EQ(Timer().interval(), 250);
  for (int card = 2; card <= 10; ++card) {
    Tick();
    EXPECT_EQ(dialog_->Drill()->Shown(), card);
    EXPECT_FALSE(Answer().isEnabled());
  }
  Tick();
  EXPECT_FALSE(Timer().isActive());
  EXPECT_TRUE(Button("DrillCheck").isEnabled());
  EXPECT_TRUE(dialog_->Drill()->IsOver());
  EXPECT_EQ(dialog_->Drill()->Shown(), 10);
  EXPECT_FALSE(dialog_->findChild<CardView*>()->Shown().has_value()) << "the last card is turned over";
  EXPECT_EQ(Result(), "What is the running count?");
  EXPECT_TRUE(Answer().isAncestorOf(dialog_->focusWidget()));
}

TEST_F(CountDrillDialogTest, TellsHowFarOffAnAnswerWas) {
  struct Row {
    int off;
    const char* text;  // %1 is the running count
  };
  const Row rows[] = {
      {0, "Right: the running count is %1."},
      {2, "The running count is %1; you are off by 2, too high."},
      {-1, "The running count is %1; you are off by 1, too low."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    DealAll();
    const int running = dialog_->Drill()->RunningCount();
    EXPECT_EQ(Answer().CounterValue(), 0);
    Answer().CounterValue(running + row.off);
    Click("DrillCheck");
    EXPECT_EQ(Result(), QString::fromLatin1(row.text).arg(running).toStdString());
    EXPECT_FALSE(Button("DrillCheck").isEnabled()) << "one answer a drill";
  }
}

TEST_F(CountDrillDialogTest, TheAnswerIsSpunByKey) {
  DealAll();
  QTest::keyClick(dialog_->focusWidget(), Qt::Key_Down);
  QTest::keyClick(dialog_->focusWidget(), Qt::Key_Down);
  EXPECT_EQ(Answer().CounterValue(), -2);
  QTest::keyClick(dialog_->focusWidget(), Qt::Key_Up);
  EXPECT_EQ(Answer().CounterValue(), -1);
}

TEST_F(CountDrillDialogTest, TheAnswerStandsWhereTheSystemStarts) {
  struct Row {
    const char* name;
    int system;
    int decks;
    int start;
  };
  for (const Row& row : {Row{"USTON SS", 14, 8, -32}, {"Red-Seven", 32, 6, -12}, {"HI-Opt I", 21, 6, 0}}) {
    SCOPED_TRACE(row.name);
    Open(row.system, row.decks);
    Click("DrillStart");
    EXPECT_EQ(Answer().CounterValue(), row.start);
  }
}

TEST_F(CountDrillDialogTest, EachDrillHasItsOwnCards) {
  DealAll();
  const int first = dialog_->Drill()->RunningCount();
  int others = 0;
  for (int i = 0; i < 3; ++i) {
    DealAll();
    others += dialog_->Drill()->RunningCount() != first ? 1 : 0;
  }
  EXPECT_GT(others, 0);
}

}  // namespace
}  // namespace trainer::screens
