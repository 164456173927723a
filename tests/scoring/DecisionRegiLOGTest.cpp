#include "tactix/scoring/DecisionRegiLOG.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"

namespace tactix::tests {
namespace {

class DecisionRegiLOGTest : public testing::Test {
 protected:
  DecisionRegiLOGTest() { log_.InitProperties(); }

  DecisionRegister& Inner() { return log_.Children.DecisionRegister; }
  Label& Feedback() { return log_.Children.labelTheShouldRecommendation; }

  HeadlessSite site_;
  DecisionRegiLOG log_{site_};
};

TEST_F(DecisionRegiLOGTest, SaysInWordsWhatShouldHaveBeenPlayed) {
  struct Row {
    std::int32_t verdict;
    const char* feedback;
    const char* inner;
  };
  const Row rows[] = {
      {1, "You Shoulda Hit", "Hit"},
      {2, "You Shoulda Stood", "Stand"},
      {3, "You Shoulda Split", "Split"},
      {4, "You Shoulda Doubled", "Double"},
      {5, "You Shoulda Surrendered", "Surr."},
      {100, "--- Correct! ---", "______"},
      {1, "You Shoulda Hit", "Hit"},
      {0, "???", "______"},
      {6, "???", "______"},
      {-1, "???", "______"},
      {101, "???", "______"},
      {std::numeric_limits<std::int32_t>::max(), "???", "______"},
  };
  EXPECT_EQ(Feedback().Caption(), "What Ya' Shoulda Done!...");
  EXPECT_EQ(Feedback().Font().Name, "Comic Sans MS");
  for (const Row& row : rows) {
    Feedback().Visible(false);
    log_.AfterAdvice(row.verdict);
    EXPECT_EQ(Feedback().Caption(), row.feedback) << row.verdict;
    EXPECT_EQ(Inner().Children.labelAfterAdvice[1].Caption(), row.inner) << row.verdict;
    EXPECT_TRUE(Feedback().Visible()) << row.verdict;
  }
}

TEST_F(DecisionRegiLOGTest, PassesOnWhatItIsGiven) {
  log_.NumberOfDecisions(8);
  log_.NumberOfCorrectDecisions(5);
  log_.NumberOfBreakDecisions(3);
  log_.TypeOfDecisionRegister(7);
  EXPECT_EQ(Inner().NumberOfDecisions(), 8);
  EXPECT_EQ(Inner().NumberOfCorrectDecisions(), 5);
  EXPECT_EQ(Inner().NumberOfBreakDecisions(), 3);
  EXPECT_EQ(Inner().TypeOfDecisionRegister(), 7);
  Inner().NumberOfDecisions(18);
  Inner().NumberOfCorrectDecisions(15);
  Inner().NumberOfBreakDecisions(13);
  Inner().TypeOfDecisionRegister(2);
  EXPECT_EQ(log_.NumberOfDecisions(), 18);
  EXPECT_EQ(log_.NumberOfCorrectDecisions(), 15);
  EXPECT_EQ(log_.NumberOfBreakDecisions(), 13);
  EXPECT_EQ(log_.TypeOfDecisionRegister(), 2);
}

TEST_F(DecisionRegiLOGTest, TheRegisterInsideShowsTheResults) {
  log_.DisplayTheDrillResults(4, 3);
  EXPECT_EQ(Inner().Children.theNumberOfDecisions.Caption(), "4");
  EXPECT_EQ(Inner().Children.theNumberOfCorrectDecisions.Caption(), "3 - (75.0%)");
  log_.NumberOfBreakDecisions(2);
  log_.ResetDecisionData();
  EXPECT_EQ(Inner().Children.theNumberOfDecisions.Caption(), "");
  EXPECT_EQ(Inner().Children.theNumberOfCorrectDecisions.Caption(), " - (.0%)");
  EXPECT_EQ(log_.NumberOfBreakDecisions(), 2);
  for (const bool breaks : {true, false}) {
    log_.SetupStatisticsBox(breaks);
    EXPECT_EQ(Inner().Children.lblBreakPercent.Visible(), breaks);
    EXPECT_EQ(Inner().Children.lblDecisions.Top(), breaks ? 110 : 195);
  }
}

TEST_F(DecisionRegiLOGTest, IsStandardWhenItIsNewAndWheneverItIsRead) {
  EXPECT_EQ(log_.TypeOfDecisionRegister(), DecisionRegisterType::StandardDecisionRegister);
  log_.TypeOfDecisionRegister(2);
  MemoryPropertyBag bag;
  bag.Write("TypeOfDecisionRegister", 2);
  log_.ReadProperties(bag);
  EXPECT_EQ(Inner().TypeOfDecisionRegister(), DecisionRegisterType::StandardDecisionRegister);
  EXPECT_EQ(site_.Changes(), std::vector<std::string>{});
}

TEST_F(DecisionRegiLOGTest, TheFeedbackStandsUnderTheRegisterOfEitherHeight) {
  for (const std::int32_t type : {1, 2, 1}) {
    log_.TypeOfDecisionRegister(type);
    log_.Displayed();
    const float height = type == 1 ? 1420 : 1800;
    EXPECT_EQ(Inner().Extender().Height(), height);
    EXPECT_EQ(Inner().Extender().Top(), 0);
    EXPECT_EQ(Feedback().Top(), height);
    EXPECT_EQ(Feedback().Top() + Feedback().Height(), log_.Extender().Height());
    EXPECT_GE(Feedback().Height(), 400);
  }
}

TEST_F(DecisionRegiLOGTest, ChildrenFillItsWidth) {
  log_.Extender().Place(5, 6, 4321, 3000);
  EXPECT_EQ(Inner().Extender().Width(), 4321);
  EXPECT_EQ(Inner().Children.panelDecisionRegister.Width(), 4321);
  EXPECT_EQ(Feedback().Width(), 4321);
  EXPECT_EQ(Feedback().Height(), 3000 - 1420);
  log_.Extender().Height(100);
  EXPECT_EQ(Feedback().Height(), 0);
}

TEST_F(DecisionRegiLOGTest, MayBeDestroyedWhenTheRegisterInsideChangesItsHeight) {
  class DestroyingObserver final : public WidgetObserver {
   public:
    std::unique_ptr<DecisionRegiLOG> target;
    void Changed(Widget&, Aspect aspect) override {
      if (aspect == Aspect::Geometry) target.reset();
    }
    void Gone(Widget&) override {}
  } observer;
  observer.target = std::make_unique<DecisionRegiLOG>(site_);
  observer.target->TypeOfDecisionRegister(2);
  observer.target->Children.DecisionRegister.Extender().Observe(&observer);
  observer.target->Displayed();
  EXPECT_EQ(observer.target, nullptr);
}

}  // namespace
}  // namespace tactix::tests
