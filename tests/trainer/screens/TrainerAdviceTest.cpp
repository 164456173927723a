#include "tactix/decision/Flash.h"
#include "tests/trainer/screens/TrainerAtWork.h"

namespace trainer::screens {
namespace {

using TrainerAdviceTest = TrainerAtWork;

TEST_F(TrainerAdviceTest, AdviceComesAfterTheFlash) {
  OpenAt(IsStiff);
  bool hidden = false;
  WhenHidden("HitButton", [&hidden] { hidden = true; });
  const engine::Hand hand = HandOf(Session());
  QTest::keyClick(window_->windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(hidden) << "the advised button flashes";
  EXPECT_EQ(Message(), "Advice: " + PlayText(Play::Hit, hand, Session().CurrentRound().UpCard()).toStdString() + ".");
  EXPECT_TRUE(Find<QPushButton>("HitButton").isDefault());
  EXPECT_EQ(Session().CurrentTally().decisions, 0);
}

TEST_F(TrainerAdviceTest, AdviceIsNotGivenForTheHandAfterTheOneItWasAskedFor) {
  Open(SeedWhere([](engine::Session& session) {
    if (!IsStiff(session)) return false;
    session.Decide(Play::Hit);
    return !session.IsOver();
  }));
  std::string played;
  WhenHidden("HitButton", [&] {
    Press('H');
    played = Message();
  });
  Click("cmdAdviceButton");
  EXPECT_TRUE(played.starts_with("Right: ")) << played;
  EXPECT_EQ(Message(), played);
}

TEST_F(TrainerAdviceTest, AdviceOnANewHandThatIsAskedForInTheFlashOfTheOldOneIsGiven) {
  Open(SeedWhere([](engine::Session& session) {
    if (!IsStiff(session)) return false;
    session.Decide(Play::Hit);
    return !session.IsOver() && session.Advised() == Play::Stand;
  }));
  std::string advice;
  WhenHidden("HitButton", [&] {
    Press('H');
    Click("cmdAdviceButton");
    advice = Message();
    Press('P');
  });
  Click("cmdAdviceButton");
  EXPECT_TRUE(advice.starts_with("Advice: Stand")) << advice;
  EXPECT_TRUE(Message().starts_with("Split is not possible")) << "the old hand's is not: " << Message();
}

TEST_F(TrainerAdviceTest, AdviceIsGivenHoweverSoonAfterTheDealItWasAskedFor) {
  OpenAt(IsStiff);
  while (true) {
    StandToTheEnd();
    Press('S');
    if (!Session().IsOver()) break;
  }
  Click("cmdAdviceButton");
  EXPECT_TRUE(Message().starts_with("Advice: ")) << Message();
}

TEST_F(TrainerAdviceTest, BetweenRoundsThereIsNothingToAdvise) {
  OpenAt(IsStiff);
  Press('S');
  const std::string message = Message();
  bool hidden = false;
  WhenHidden("HitButton", [&hidden] { hidden = true; });
  Click("cmdAdviceButton");
  clock_.Wait(tactix::FlashDuration);
  EXPECT_FALSE(hidden);
  EXPECT_EQ(Message(), message);
}

TEST_F(TrainerAdviceTest, ThePickedStrategyAdvisesAndJudgesTheSameHand) {
  OpenAt(IsStiff);
  const engine::Hand hand = HandOf(Session());
  const engine::Rank upCard = Session().CurrentRound().UpCard();
  EXPECT_EQ(Session().Advised(), Play::Hit);
  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  auto& list = StrategyBox();
  EXPECT_TRUE(list.isVisible());
  ASSERT_GE(RowOf(QStringLiteral("Never Bust")), 0);
  tactix::tests::PickByMouse(list, RowOf(QStringLiteral("Never Bust")));
  EXPECT_EQ(Message(), "The advice now follows Never Bust. Your play?");
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(Find<QWidget>("AdviceButton").toolTip().endsWith(QStringLiteral("NEVER BUST")));
  EXPECT_EQ(Session().Advised(), Play::Stand);
  const std::string advice = PlayText(Play::Stand, hand, upCard).toStdString();
  bool hidden = false;
  WhenHidden("StandButton", [&hidden] { hidden = true; });
  Click("cmdAdviceButton");
  EXPECT_TRUE(hidden) << "the newly advised button flashes";
  EXPECT_EQ(Message(), "Advice by Never Bust: " + advice + ".");
  Press('S');
  EXPECT_TRUE(Message().starts_with("Right by Never Bust: " + advice + ".")) << Message();
  EXPECT_EQ(Table().verdict, Verdict::Right);
}

TEST_F(TrainerAdviceTest, ARowWithoutAStrategyChangesNothing) {
  OpenAt(IsStiff);
  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  ASSERT_FALSE(HasFatalFailure());
  Q_EMIT window_->Box().EvaluationStrategySelected(6);
  EXPECT_EQ(Message(), "No such strategy; the advice stays as it was. Your play?");
  EXPECT_EQ(Session().Advised(), Play::Hit);
}

TEST_F(TrainerAdviceTest, MayBeDestroyedWhileAButtonFlashes) {
  OpenAt(IsStiff);
  WhenHidden("HitButton", [this] { window_.reset(); });
  Click("cmdAdviceButton");
  EXPECT_FALSE(window_);
}

}  // namespace
}  // namespace trainer::screens
