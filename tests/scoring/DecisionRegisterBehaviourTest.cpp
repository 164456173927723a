// What the player sees of the registers.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/scoring/DecisionRegiLOG.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

template <class C>
class RegisterAtWindow : public testing::Test {
 protected:
  RegisterAtWindow() { control_->InitProperties(); }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<C> control_ = std::make_unique<C>(robot_->NewSite());
};

using DecisionRegisterBehaviourTest = RegisterAtWindow<DecisionRegister>;
using DecisionRegiLOGBehaviourTest = RegisterAtWindow<DecisionRegiLOG>;

TEST_F(DecisionRegisterBehaviourTest, AFreshRegisterShowsNoDecisions) {
  const DecisionRegister::ChildWidgets& seen = control_->Children;
  robot_->Show(*control_);
  EXPECT_EQ(robot_->SeesText(seen.lblDecisions), "Decisions:");
  EXPECT_EQ(robot_->SeesText(seen.theNumberOfDecisions), "");
  EXPECT_EQ(robot_->SeesText(seen.lblCorrectDecisions), "Correct:");
  EXPECT_EQ(robot_->SeesText(seen.theNumberOfCorrectDecisions), " - (.0%)");
  EXPECT_FALSE(robot_->SeesShown(seen.lblBreakDecisions));
  EXPECT_FALSE(robot_->SeesShown(seen.lblBreakPercent));
  EXPECT_EQ(control_->Extender().Height(), 1420);
}

TEST_F(DecisionRegisterBehaviourTest, CountsAndTypeThatWereSetBeforeShowWithTheRegister) {
  control_->NumberOfDecisions(1234);
  control_->NumberOfCorrectDecisions(617);
  control_->TypeOfDecisionRegister(DecisionRegisterType::AfterAdviceDecisionRegister);
  control_->AfterAdvice(AfterAdvicePossibilities::afterYouShouldaSplit);
  robot_->Show(*control_);
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfDecisions), "1,234");
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfCorrectDecisions), "617 - (50.0%)");
  EXPECT_EQ(robot_->SeesText(control_->Children.labelAfterAdvice[1]), "______");
  EXPECT_TRUE(robot_->SeesShown(control_->Children.labelAfterAdvice[1]));
  EXPECT_EQ(control_->Extender().Height(), 1800);
}

TEST_F(DecisionRegisterBehaviourTest, ShowsADrill) {
  robot_->Show(*control_);
  control_->DisplayTheDrillResults(3, 2);
  control_->AfterAdvice(AfterAdvicePossibilities::afterYouShouldaSurrendered);
  control_->SetupStatisticsBox(true);
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfDecisions), "3");
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfCorrectDecisions), "2 - (66.7%)");
  EXPECT_EQ(robot_->SeesText(control_->Children.labelAfterAdvice[1]), "Surr.");
  EXPECT_TRUE(robot_->SeesShown(control_->Children.lblBreakDecisions));
  EXPECT_EQ(robot_->SeesText(control_->Children.lblBreakPercent), "22.8%");
  control_->ResetDecisionData();
  control_->SetupStatisticsBox(false);
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfDecisions), "");
  EXPECT_EQ(robot_->SeesText(control_->Children.theNumberOfCorrectDecisions), " - (.0%)");
  EXPECT_FALSE(robot_->SeesShown(control_->Children.lblBreakPercent));
}

TEST_F(DecisionRegisterBehaviourTest, TakesItsHeightAgainWhenItIsShownAgain) {
  robot_->Show(*control_);
  control_->TypeOfDecisionRegister(2);
  EXPECT_EQ(control_->Extender().Height(), 1420);
  control_->Displayed();
  EXPECT_EQ(control_->Extender().Height(), 1800);
}

TEST_F(DecisionRegiLOGBehaviourTest, SaysWhatShouldHaveBeenPlayed) {
  robot_->Show(*control_);
  const DecisionRegister::ChildWidgets& inner = control_->Children.DecisionRegister.Children;
  const Label& feedback = control_->Children.labelTheShouldRecommendation;
  EXPECT_EQ(robot_->SeesText(feedback), "What Ya' Shoulda Done!...");
  EXPECT_EQ(robot_->SeesText(inner.theNumberOfCorrectDecisions), " - (.0%)");
  control_->DisplayTheDrillResults(4, 3);
  control_->AfterAdvice(AfterAdvicePossibilities::afterYouShouldaDoubled);
  EXPECT_EQ(robot_->SeesText(inner.theNumberOfDecisions), "4");
  EXPECT_EQ(robot_->SeesText(inner.theNumberOfCorrectDecisions), "3 - (75.0%)");
  EXPECT_EQ(robot_->SeesText(inner.labelAfterAdvice[1]), "Double");
  EXPECT_EQ(robot_->SeesText(feedback), "You Shoulda Doubled");
  control_->AfterAdvice(AfterAdvicePossibilities::afterYourPlayWasCorrect);
  EXPECT_EQ(robot_->SeesText(inner.labelAfterAdvice[1]), "______");
  EXPECT_EQ(robot_->SeesText(feedback), "--- Correct! ---");
  control_->AfterAdvice(AfterAdvicePossibilities::afterNoAdvice);
  EXPECT_EQ(robot_->SeesText(feedback), "???");
  EXPECT_TRUE(robot_->SeesShown(feedback));
}

TEST_F(DecisionRegiLOGBehaviourTest, TheFeedbackStandsUnderAnAfterAdviceRegister) {
  control_->TypeOfDecisionRegister(2);
  robot_->Show(*control_);
  EXPECT_EQ(control_->Children.DecisionRegister.Extender().Height(), 1800);
  EXPECT_EQ(control_->Children.labelTheShouldRecommendation.Top(), 1800);
  EXPECT_TRUE(robot_->SeesShown(control_->Children.labelTheShouldRecommendation));
}

}  // namespace
}  // namespace tactix::tests
