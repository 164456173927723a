#include <QAbstractItemView>
#include <QSignalSpy>
#include <set>

#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/engine/BettingCount.h"
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
  std::string TrueCount() {
    return window_->Board().Counts().control().Children.TrueCountDisplay.Children.labelCountValue.Caption();
  }
  std::string AdjustedCount() { return window_->Board().Statistics().control().Children.datAdjustedCount.Caption(); }
  /// That of the next bet.
  int BettingCountBy(int number) {
    if (Session().TheShoe().NeedsShuffle()) return 0;
    return engine::BettingCount(*engine::FindCountSystem(number), Session().TheRules().decks, Session().Seen());
  }
  int Units() { return static_cast<int>(Session().CurrentBet() / 1000); }
  std::string Shown() { return BoxOf(Bar().Marquee()).currentText().toStdString(); }
  bool IsMarked() { return Bar().Marquee().control().Children.optStrategySelected.Value(); }
  void OpenOneDeck() {
    Open(SeedWhere([](engine::Session& session) { return IsStiff(session); }, {.decks = 1}), {.decks = 1});
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

TEST_F(TrainerStrategiesTest, ASpreadFollowsTheCountOfTheSystem) {
  struct Row {
    const char* caption;
    int number;
  };
  constexpr int FirstSystem = 21;
  for (const Row& row :
       {Row{"HI-Opt I", FirstSystem}, {"USTON Advanced Point Count", 13}, {"Snyder's Red-Seven", 32}}) {
    SCOPED_TRACE(row.caption);
    OpenOneDeck();
    Pick(Bar().Counts(), QLatin1String(row.caption));
    Pick(Bar().Betting(), QStringLiteral("1-12 Spread"));
    const auto* const plan = catalogue_->BettingPlanOf(4);
    ASSERT_TRUE(plan);
    std::set<int> sizes;
    int differs = 0;
    for (int round = 0; round < 60; ++round) {
      StandToTheEnd();
      const int units = plan->UnitsFor(BettingCountBy(row.number), 0);
      differs += units != plan->UnitsFor(BettingCountBy(FirstSystem), 0) ? 1 : 0;
      Press('S');
      ASSERT_EQ(Units(), units);
      sizes.insert(units);
    }
    EXPECT_GT(sizes.size(), 2U);
    EXPECT_EQ(differs > 0, row.number != FirstSystem) << "or the rounds do not tell the systems apart";
  }
}

TEST_F(TrainerStrategiesTest, ASpreadGoesByNothingInAFreshShoe) {
  OpenOneDeck();
  Pick(Bar().Counts(), QStringLiteral("Snyder's Red-Seven"));
  Pick(Bar().Betting(), QStringLiteral("1-12 Spread"));
  int shuffles = 0;
  for (int round = 0; round < 40; ++round) {
    StandToTheEnd();
    const bool shufflesNow = Session().TheShoe().NeedsShuffle();
    Press('S');
    if (!shufflesNow) continue;
    ++shuffles;
    ASSERT_EQ(Units(), 1);
  }
  EXPECT_GT(shuffles, 3);
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

TEST_F(TrainerStrategiesTest, ARecountChangesAllCountsAndTheNextBet) {
  constexpr int AcesAgainstAll = 36;
  constexpr int Uston = 13;
  OpenOneDeck();
  Pick(Bar().Counts(), QStringLiteral("Alan Wilson's Point Count"));
  Pick(Bar().Betting(), QStringLiteral("1-12 Spread"));
  const auto* const plan = catalogue_->BettingPlanOf(4);
  const auto unitsBy = [&](int system) { return plan->UnitsFor(BettingCountBy(system), 0); };
  StandToTheEnd();
  for (int round = 0; round < 200 && unitsBy(Uston) == unitsBy(AcesAgainstAll); ++round) {
    Press('S');
    StandToTheEnd();
  }
  ASSERT_NE(unitsBy(Uston), unitsBy(AcesAgainstAll));
  const int units = unitsBy(Uston);
  Pick(Bar().Counts(), QStringLiteral("USTON Advanced Point Count"));
  engine::Counter counter(*engine::FindCountSystem(Uston), 1);
  counter.See(Session().Seen());
  EXPECT_EQ(RunningCount(), std::to_string(counter.RunningCount()));
  EXPECT_EQ(TrueCount(), std::to_string(counter.TrueCount(52 - static_cast<int>(Session().Seen().size())).value()));
  EXPECT_EQ(AdjustedCount(), std::to_string(BettingCountBy(Uston)));
  Press('S');
  EXPECT_EQ(Units(), units);
}

TEST_F(TrainerStrategiesTest, AProgressionBeginsWhereItIsPicked) {
  for (const bool midRound : {false, true}) {
    SCOPED_TRACE(midRound);
    OpenAt(IsStiff);
    StandToTheEnd();
    while (Session().Run() < 2) {
      Press('S');
      StandToTheEnd();
    }
    if (midRound) {
      do Press('S');
      while (Session().IsOver());
    }
    Pick(Bar().Betting(), QStringLiteral("Progressive Up as You Win"));
    StandToTheEnd();
    int wins = 0;
    int most = 0;
    for (int round = 0; round < 30; ++round) {
      Press('S');
      ASSERT_EQ(Units(), std::min(wins + 1, 6)) << "in round " << round;
      StandToTheEnd();
      const engine::Money net = Session().CurrentRound().Net();
      wins = net > 0 ? wins + 1 : net < 0 ? 0 : wins;
      most = std::max(most, wins);
    }
    EXPECT_GT(most, 1);
  }
}

TEST_F(TrainerStrategiesTest, TheMarqueeShowsTheStrategyInUse) {
  OpenAt(IsStiff);
  const QSignalSpy picks(&Bar(), &StrategyBar::PlayingPicked);
  Pick(Bar().Marquee(), QStringLiteral("Empty Seat"));
  EXPECT_EQ(Message(), "No such strategy; the advice stays as it was. Your play?");
  EXPECT_EQ(Bar().Marquee().control().Children.StrategyListBox.Text(), "Select a Strategy");
  EXPECT_EQ(Bar().Marquee().ListIndex(), -2) << "none";
  EXPECT_FALSE(IsMarked());
  EXPECT_EQ(picks.size(), 1);

  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  tactix::tests::PickByMouse(StrategyBox(), RowOf(QStringLiteral("Never Bust")));
  EXPECT_EQ(Message(), "The advice now follows Never Bust. Your play?");
  EXPECT_EQ(Shown(), "Never Bust");
  EXPECT_TRUE(IsMarked());
  EXPECT_EQ(picks.size(), 1) << "not picked again";

  Pick(Bar().Marquee(), QStringLiteral("Mimic the Dealer"));
  EXPECT_EQ(Shown(), "Mimic the Dealer");
  EXPECT_EQ(picks.size(), 2);
  for (const char* row : {"Empty Seat", "Not Present"}) {
    SCOPED_TRACE(row);
    Pick(Bar().Marquee(), QLatin1String(row));
    EXPECT_EQ(Shown(), "Mimic the Dealer");
    EXPECT_TRUE(IsMarked());
  }
  EXPECT_EQ(picks.size(), 3) << "the empty seat; what is not present is not reported";

  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  tactix::tests::PickByMouse(StrategyBox(), RowOf(QStringLiteral("Empty Seat")));
  EXPECT_EQ(Shown(), "Mimic the Dealer");
}

TEST_F(TrainerStrategiesTest, TheListsTakeKeys) {
  OpenAt(IsStiff);
  QComboBox& box = BoxOf(Bar().Betting());
  for (const auto key : {Qt::Key_Space, Qt::Key_F4}) {
    box.setFocus();
    QTest::keyClick(&box, key);
    EXPECT_TRUE(box.view()->isVisible()) << key;
    box.hidePopup();
  }
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(Message(), "The next bet is sized by 1-2 Spread. Your play?");
  tactix::tests::Settle();
  Press('S');
  EXPECT_EQ(records_.size(), 1U) << "keys are plays again";
}

TEST_F(TrainerStrategiesTest, AListThatClosesWithoutAPickGivesTheKeysBack) {
  OpenAt(IsStiff);
  QComboBox& box = BoxOf(Bar().Counts());
  const QString system = box.currentText();
  tactix::tests::ClickAt(*window_, *tactix::tests::ReachablePlace(box));
  ASSERT_TRUE(QTest::qWaitFor([&] { return box.view()->isVisible(); }));
  QTest::keyClick(box.view(), Qt::Key_Escape);
  tactix::tests::Settle();
  EXPECT_FALSE(box.view()->isVisible());
  EXPECT_FALSE(box.hasFocus());
  Press('S');
  EXPECT_EQ(records_.size(), 1U);
  EXPECT_EQ(box.currentText(), system);
}

TEST_F(TrainerStrategiesTest, TheListsHaveNamesAndComeInTheirOrder) {
  OpenAt(IsStiff);
  std::vector<std::string> names;
  QWidget* const first = &BoxOf(Bar().Marquee());
  QWidget* at = first;
  do {
    if (qobject_cast<QComboBox*>(at) && Bar().isAncestorOf(at)) names.push_back(at->accessibleName().toStdString());
    at = at->nextInFocusChain();
  } while (at != first);
  EXPECT_EQ(names, (std::vector<std::string>{"Strategy of seat 1", "Betting strategy", "Bet", "Count system"}));
}

TEST_F(TrainerStrategiesTest, ThePlaysStayInSightInALowWindow) {
  OpenAt(IsStiff);
  window_->resize(window_->minimumSizeHint());
  tactix::tests::Settle();
  EXPECT_LE(window_->height(), 720) << "fits on a screen of 768 lines";
  for (const char* name : {"HitButton", "StandButton"}) {
    const auto* const button = window_->findChild<QWidget*>(QLatin1String(name));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect()) << name;
    EXPECT_GE(button->height(), 30) << name;
  }
}

TEST_F(TrainerStrategiesTest, TheEmptySeatBetsOneUnit) {
  OpenAt(IsStiff);
  Pick(Bar().Betting(), QStringLiteral("Progressive Up as You Win"));
  do {
    StandToTheEnd();
    Press('S');
  } while (Units() == 1);
  Pick(Bar().Betting(), QStringLiteral("Empty Seat"));
  StandToTheEnd();
  EXPECT_TRUE(Message().ends_with("Any play deals the next hand.")) << Message();
  Press('S');
  EXPECT_EQ(Units(), 1);
}

}  // namespace
}  // namespace trainer::screens
