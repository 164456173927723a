#include <set>

#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/engine/Counter.h"
#include "trainer/screens/Scoreboard.h"
#include "trainer/screens/StrategyBar.h"

namespace trainer::screens {
namespace {

class TrainerStrategiesTest : public TrainerAtWork {
 protected:
  StrategyBar& Bar() { return window_->Strategies(); }
  QComboBox& BoxOf(QWidget& control) { return *control.findChild<QComboBox*>(); }
  void Pick(QWidget& control, const QString& text) {
    QComboBox& box = BoxOf(control);
    const int row = box.findText(text);
    ASSERT_GE(row, 0) << text.toStdString();
    tactix::tests::PickByMouse(box, row);
    tactix::tests::Settle();
  }
  std::string RunningCount() {
    return window_->Board().Counts().control().Children.RunningCountDisplay.Children.labelCountValue.Caption();
  }
  std::string CountBy(int number) {
    engine::Counter counter(*engine::FindCountSystem(number), Session().TheRules().decks);
    counter.See(Session().Seen());
    return std::to_string(counter.RunningCount());
  }
};

TEST_F(TrainerStrategiesTest, ShowsWhatItBeginsWith) {
  OpenAt(IsStiff);
  EXPECT_EQ(Bar().Marquee().control().Children.StrategyListBox.Text(), "Select a Strategy");
  EXPECT_FALSE(Bar().Marquee().aStrategyExists());
  EXPECT_EQ(BoxOf(Bar().Betting()).currentText(), QStringLiteral("Flat Bet"));
  EXPECT_EQ(BoxOf(Bar().Counts()).currentText(), QStringLiteral("HI-Opt I"));
}

TEST_F(TrainerStrategiesTest, TheMarqueeChangesTheAdviceOfThisAndTheNextHand) {
  OpenAt(IsStiff);
  EXPECT_EQ(Session().Advised(), Play::Hit);
  Pick(Bar().Marquee(), QStringLiteral("Never Bust"));
  EXPECT_EQ(Message(), "The advice now follows Never Bust. Your play?");
  EXPECT_EQ(Session().Advised(), Play::Stand);
  EXPECT_TRUE(Bar().Marquee().control().Children.optStrategySelected.Value());
  Press('S');
  ASSERT_EQ(records_.size(), 1U);
  EXPECT_TRUE(records_[0].judgement.IsRight());
  do {
    Press('S');
  } while (Session().IsOver() || HandOf(Session()).IsSoft() || HandOf(Session()).Total() < 12 ||
           HandOf(Session()).Total() > 16);
  EXPECT_EQ(Session().Advised(), Play::Stand) << "the next hand, too";
}

TEST_F(TrainerStrategiesTest, ARowThatIsNotPresentIsRefused) {
  OpenAt(IsStiff);
  const std::string before = Message();
  Pick(Bar().Marquee(), QStringLiteral("Not Present"));
  EXPECT_EQ(Message(), before);
  EXPECT_NE(BoxOf(Bar().Marquee()).currentText(), QStringLiteral("Not Present"));
}

TEST_F(TrainerStrategiesTest, AProgressionSizesTheBet) {
  OpenAt(IsStiff);
  EXPECT_EQ(Session().CurrentBet(), 1000);
  Pick(Bar().Betting(), QStringLiteral("One-Three-Two-Six"));
  EXPECT_EQ(Message(), "The next bet is sized by One-Three-Two-Six. Your play?");
  EXPECT_EQ(Session().CurrentRound().HandsOf(0)[0].bet, 1000) << "not this one";
  constexpr int Units[] = {1, 3, 2, 6};
  int tripled = 0;
  for (int round = 0; round < 25; ++round) {
    StandToTheEnd();
    const int run = Session().Run();
    const int units = run > 0 ? Units[run % 4] : 1;
    tripled += units == 3 ? 1 : 0;
    Press('S');
    ASSERT_EQ(Session().CurrentBet(), units * 1000) << "after a run of " << run;
  }
  EXPECT_GT(tripled, 0);
}

TEST_F(TrainerStrategiesTest, TheUnitsMultiplyTheBet) {
  OpenAt(IsStiff);
  Pick(Bar().Units(), QStringLiteral(" 5-Units"));
  EXPECT_EQ(Message(), "The next bet is in steps of 50. Your play?");
  StandToTheEnd();
  Press('S');
  EXPECT_EQ(Session().CurrentBet(), 5000);
}

TEST_F(TrainerStrategiesTest, ASpreadFollowsTheTrueCount) {
  Open(SeedWhere([](engine::Session& session) { return IsStiff(session); }, {.decks = 1}), {.decks = 1});
  Pick(Bar().Betting(), QStringLiteral("1-4 Spread"));
  const auto* const plan = catalogue_->BettingPlanOf(2);
  ASSERT_TRUE(plan);
  std::set<int> sizes;
  for (int round = 0; round < 60; ++round) {
    StandToTheEnd();
    int trueCount = 0;
    if (!Session().TheShoe().NeedsShuffle()) {
      engine::Counter counter(*engine::FindCountSystem(21), 1);
      counter.See(Session().Seen());
      trueCount = counter.TrueCount(52 - static_cast<int>(Session().Seen().size())).value();
    }
    Press('S');
    const int units = static_cast<int>(Session().CurrentBet() / 1000);
    ASSERT_EQ(units, plan->UnitsFor(trueCount, 0)) << "at a true count of " << trueCount;
    sizes.insert(units);
  }
  EXPECT_GT(sizes.size(), 1U);
}

TEST_F(TrainerStrategiesTest, AnotherCountSystemRecountsTheShoeSoFar) {
  OpenAt(IsStiff);
  for (int i = 0; i < 10; ++i) Press('S');
  EXPECT_EQ(RunningCount(), CountBy(21));
  struct Row {
    const char* caption;
    int number;
  };
  for (const Row& row : {Row{"USTON Advanced Point Count", 13}, {"Snyder's Red-Seven", 32}, {"Omega II", 35}}) {
    Pick(Bar().Counts(), QLatin1String(row.caption));
    EXPECT_EQ(RunningCount(), CountBy(row.number)) << row.caption;
  }
  Pick(Bar().Counts(), QStringLiteral("Not Present"));
  EXPECT_EQ(RunningCount(), CountBy(35)) << "refused";
}

}  // namespace
}  // namespace trainer::screens
