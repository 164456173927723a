#include "trainer/screens/TrainerWindow.h"

#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/screens/ScoreBar.h"

namespace trainer::screens {
namespace {

using TrainerWindowTest = TrainerAtWork;

TEST_F(TrainerWindowTest, EveryPlayIsJudged) {
  for (const PlayInput& input : PlayInputs) {
    for (const bool byKey : {true, false}) {
      SCOPED_TRACE(std::string(input.button) + (byKey ? " by key" : " by click"));
      records_.clear();
      OpenAt(IsSplittable);
      const engine::Hand hand = HandOf(Session());
      const engine::Rank upCard = Session().CurrentRound().UpCard();
      const Play advised = Session().Advised();
      byKey ? Press(input.key) : Click(input.button);
      ASSERT_EQ(records_.size(), 1U);
      EXPECT_EQ(records_[0].round, 1);
      EXPECT_EQ(records_[0].splitHand, 0);
      EXPECT_EQ(records_[0].cards.Cards().size(), 2U);
      EXPECT_EQ(records_[0].cards.Total(), hand.Total());
      EXPECT_EQ(records_[0].upCard, upCard);
      EXPECT_EQ(records_[0].judgement.chosen, input.play);
      EXPECT_EQ(records_[0].judgement.advised, advised);
      const bool right = input.play == advised;
      EXPECT_EQ(Table().verdict, right ? Verdict::Right : Verdict::Wrong);
      const QString said = (right ? QStringLiteral("Right: ") : QStringLiteral("Better: ")) +
                           PlayText(advised, hand, upCard) + QLatin1Char('.');
      EXPECT_TRUE(Table().message.startsWith(said)) << Message();
    }
  }
}

TEST_F(TrainerWindowTest, OffersTheLegalPlaysAndNamesTheTotals) {
  OpenAt(IsStiff);
  EXPECT_FALSE(Find<QPushButton>("SplitButton").isVisible());
  EXPECT_TRUE(Find<QPushButton>("SurrenderButton").isVisible());
  const std::string total = std::to_string(HandOf(Session()).Total());
  EXPECT_EQ(Prompt(), "Seat 1 - You have  " + total + "  - Make your Selection");
  EXPECT_EQ(Message(), "Your play?");
}

TEST_F(TrainerWindowTest, AnIllegalPlayIsRefusedAndAskedForAgain) {
  OpenAt(IsStiff);
  const std::string prompt = Prompt();
  Press('P');
  EXPECT_EQ(Message(), "Split is not possible with this hand. Your play?");
  EXPECT_EQ(Table().verdict, Verdict::None);
  EXPECT_EQ(Prompt(), prompt);
  EXPECT_TRUE(records_.empty());
  EXPECT_EQ(Session().CurrentTally().decisions, 0);
  Press('S');
  EXPECT_EQ(records_.size(), 1U);
}

TEST_F(TrainerWindowTest, SplitsAskAgainForEachHand) {
  Open(SeedWhere([](engine::Session& session) {
    if (!IsSplittable(session)) return false;
    session.Decide(Play::Split);
    if (session.IsOver()) return false;
    session.Decide(Play::Stand);
    return !session.IsOver();
  }));
  Click("SplitButton");
  EXPECT_TRUE(Prompt().starts_with("Seat 1, hand 1 - ")) << Prompt();
  ASSERT_EQ(Table().hands.size(), 2U);
  EXPECT_TRUE(Table().hands[0].active);
  Press('S');
  EXPECT_TRUE(Prompt().starts_with("Seat 1, hand 2 - ")) << Prompt();
  EXPECT_FALSE(Table().hands[0].active);
  EXPECT_TRUE(Table().hands[1].active);
  Press('S');
  ASSERT_EQ(records_.size(), 3U);
  EXPECT_EQ(records_[0].splitHand, 0);
  EXPECT_EQ(records_[1].splitHand, 1);
  EXPECT_EQ(records_[2].splitHand, 2);
  EXPECT_TRUE(Session().IsOver());
  EXPECT_EQ(Session().CurrentTally().hands, 1);
}

TEST_F(TrainerWindowTest, AnyPlayDealsTheNextHand) {
  for (const PlayInput& input : PlayInputs) {
    SCOPED_TRACE(input.key);
    OpenAt(IsSplittable);
    StandToTheEnd();
    EXPECT_TRUE(Table().message.endsWith(QStringLiteral(" Any play deals the next hand."))) << Message();
    EXPECT_FALSE(Table().holeHidden);
    records_.clear();
    const auto dealt = Session().TheShoe().DealtCount();
    Press(input.key);
    EXPECT_GE(Session().TheShoe().DealtCount(), dealt + 4);
    EXPECT_TRUE(records_.empty());
  }
}

TEST_F(TrainerWindowTest, ARoundThatIsOverAtTheDealIsShownAndTold) {
  struct Row {
    const char* text;
    bool player;
    bool dealer;
  };
  const Row rows[] = {
      {"Blackjack pays 3 to 2. Any play deals the next hand.", true, false},
      {"The dealer has blackjack. Any play deals the next hand.", false, true},
      {"Blackjack for you and for the dealer: a push. Any play deals the next hand.", true, true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Open(SeedWhere([&row](engine::Session& session) {
      const engine::Round& round = session.CurrentRound();
      return round.HandsOf(0)[0].hand.IsBlackjack() == row.player && round.DealerHand().IsBlackjack() == row.dealer;
    }));
    EXPECT_EQ(Message(), row.text);
    EXPECT_FALSE(Table().holeHidden);
    EXPECT_EQ(Table().dealer.size(), 2U);
    EXPECT_FALSE(Table().hands[0].outcome.isEmpty());
    EXPECT_EQ(Session().CurrentTally().hands, 1);
  }
}

TEST_F(TrainerWindowTest, KeepsTheScore) {
  OpenAt(IsStiff);
  EXPECT_EQ(window_->Score().Text().toStdString(), "Hands 0, Correct none, Predictions none, Balance 0");
  ChooseFrom("cmdHoleCard", QStringLiteral("is &High"));
  Press('S');
  const engine::Tally& tally = Session().CurrentTally();
  const std::string balance = tally.net > 0 ? "+10" : tally.net < 0 ? "-10" : "0";
  EXPECT_EQ(window_->Score().Text().toStdString(), "Hands 1, Correct 0 of 1 (0.0 %), Predictions " +
                                                       std::to_string(Session().Predictions().Right()) +
                                                       " of 1, Balance " + balance);
}

TEST_F(TrainerWindowTest, OpensAtItsOwnSizeReadyForKeys) {
  OpenAt(IsStiff);
  const QWidget* const focused = window_->focusWidget();
  ASSERT_TRUE(focused);
  EXPECT_TRUE(window_->Box().isAncestorOf(focused));
  EXPECT_FALSE(qobject_cast<const QPushButton*>(focused)) << "Space must not press anything yet";
  EXPECT_EQ(window_->size(), QSize(1000, 900));
}

}  // namespace
}  // namespace trainer::screens
