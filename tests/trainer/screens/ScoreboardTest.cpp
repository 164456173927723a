#include "trainer/screens/Scoreboard.h"

#include <QMenuBar>

#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/screens/StatisticsBlock.h"

namespace trainer::screens {
namespace {

class ScoreboardTest : public TrainerAtWork {
 protected:
  std::string Caption(const tactix::Label& label) { return label.Caption(); }
  tactix::DecisionRegiLOG& Log() { return window_->Board().Register().control(); }
  tactix::DecisionRegister::ChildWidgets& Register() { return Log().Children.DecisionRegister.Children; }
};

TEST_F(ScoreboardTest, TheRegisterIsFedAfterEveryDecision) {
  OpenAt(IsStiff);
  EXPECT_EQ(Caption(Register().theNumberOfDecisions), "");
  EXPECT_EQ(Caption(Register().theNumberOfCorrectDecisions), " - (.0%)");
  EXPECT_EQ(Session().Advised(), Play::Hit);
  Press('S');
  EXPECT_EQ(Caption(Register().theNumberOfDecisions), "1");
  EXPECT_EQ(Caption(Register().theNumberOfCorrectDecisions), " - (.0%)");
  EXPECT_EQ(Caption(Register().labelAfterAdvice[1]), "Hit");
  EXPECT_EQ(Caption(Log().Children.labelTheShouldRecommendation), "You Shoulda Hit");

  Press('S');  // deals
  while (Session().IsOver()) Press('S');
  const engine::Decision right = Session().Advised();
  for (const PlayInput& input : PlayInputs) {
    if (input.play == right) Press(input.key);
  }
  EXPECT_EQ(Caption(Register().theNumberOfDecisions), "2");
  EXPECT_EQ(Caption(Register().theNumberOfCorrectDecisions), "1 - (50.0%)");
  EXPECT_EQ(Caption(Register().labelAfterAdvice[1]), "______");
  EXPECT_EQ(Caption(Log().Children.labelTheShouldRecommendation), "--- Correct! ---");
}

TEST_F(ScoreboardTest, TheCountsFollowTheShoe) {
  OpenAt(IsStiff);
  for (int i = 0; i < 12; ++i) {
    tactix::companion::StrategyDataBlock block;
    FillStatistics(Session(), *engine::FindCountSystem(21), block);
    auto& counts = window_->Board().Counts().control().Children;
    EXPECT_EQ(Caption(counts.RunningCountDisplay.Children.labelCountValue), std::to_string(block.RunningCount));
    EXPECT_EQ(Caption(counts.TrueCountDisplay.Children.labelCountValue), std::to_string(block.TrueCount));
    auto& panel = window_->Board().Statistics().control().Children;
    EXPECT_EQ(Caption(panel.datAces), std::to_string(block.AcesDealt));
    EXPECT_EQ(Caption(panel.datTargetRating), std::to_string(block.TargetRating));
    Press('S');
  }
}

TEST_F(ScoreboardTest, TheViewMenuHidesTheCounts) {
  OpenAt(IsStiff);
  QAction* toggle = nullptr;
  for (QAction* action : window_->menuBar()->actions().at(0)->menu()->actions()) {
    if (action->text() == QStringLiteral("&Counts and statistics")) toggle = action;
  }
  ASSERT_TRUE(toggle);
  Scoreboard& board = window_->Board();
  EXPECT_TRUE(toggle->isChecked());
  for (const bool shown : {false, true}) {
    toggle->trigger();
    EXPECT_EQ(board.Counts().isVisible(), shown);
    EXPECT_EQ(board.Statistics().isVisible(), shown);
    EXPECT_TRUE(board.Register().isVisible());
  }
}

}  // namespace
}  // namespace trainer::screens
