#include "trainer/screens/TrainerWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support-qt/Gestures.h"
#include "tests/trainer/screens/Sessions.h"
#include "trainer/screens/Messages.h"
#include "trainer/screens/ScoreBar.h"
#include "trainer/screens/TableView.h"

namespace trainer::screens {
namespace {

using engine::CardRange;
using Play = engine::Decision;
using Verdict = TableModel::Verdict;

struct PlayInput {
  Play play;
  char key;
  const char* button;
};
constexpr PlayInput PlayInputs[] = {
    {Play::Hit, 'H', "HitButton"},       {Play::Stand, 'S', "StandButton"},         {Play::Split, 'P', "SplitButton"},
    {Play::Double, 'D', "DoubleButton"}, {Play::Surrender, 'G', "SurrenderButton"},
};
constexpr int FlashTime = 1600;

class TrainerWindowTest : public testing::Test {
 protected:
  TrainerWindowTest()
      : catalogue_(std::make_shared<tactix::companion::IniStrategyCatalogue>(
            tactix::companion::DefaultStrategies(), tactix::companion::DefaultStrategiesName)) {
    tactix::StrategyListData::UseCatalogue(catalogue_);
  }
  ~TrainerWindowTest() override { tactix::StrategyListData::UseCatalogue(nullptr); }

  void Open(std::uint64_t seed, const engine::Rules& rules = {}) {
    window_ = std::make_unique<TrainerWindow>(engine::Session(rules, seed), catalogue_);
    QObject::connect(window_.get(), &TrainerWindow::Judged,
                     [this](const DecisionRecord& record) { records_.push_back(record); });
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
  /// Clicks a button that opens a menu, and picks an entry there by its text.
  void ChooseFrom(const char* name, const QString& entry, std::int16_t button = tactix::LeftButton) {
    QTimer::singleShot(50, window_.get(), [entry] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      ASSERT_TRUE(menu);
      for (QAction* action : menu->actions()) {
        if (action->text() == entry)
          return QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
      }
      menu->hide();
      ADD_FAILURE() << "no entry " << entry.toStdString();
    });
    Click(name, button);
  }
  int RowOf(const QString& text) { return Find<QComboBox>("StrategyListBox").findText(text); }

  const engine::Session& Session() const { return window_->CurrentSession(); }
  const TableModel& Table() const { return window_->Table().Model(); }
  std::string Message() const { return Table().message.toStdString(); }
  std::string Prompt() { return Find<QLabel>("lblUserControlCaption").text().toStdString(); }
  void StandToTheEnd() {
    while (!Session().IsOver()) Press('S');
  }

  std::shared_ptr<tactix::companion::IniStrategyCatalogue> catalogue_;
  std::unique_ptr<TrainerWindow> window_;
  std::vector<DecisionRecord> records_;
};

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

TEST_F(TrainerWindowTest, AHitCardIsPredictedByThePressAndScoredByTheCard) {
  struct Row {
    const char* name;
    std::int16_t shift;
    std::optional<CardRange> range;
  };
  const Row rows[] = {
      {"high", tactix::ShiftKey, CardRange::High},
      {"low", tactix::CtrlKey, CardRange::Low},
      {"mid", tactix::AltKey, CardRange::Mid},
      {"unknown", tactix::CtrlKey + tactix::ShiftKey, std::nullopt},
      {"none", 0, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    records_.clear();
    OpenAt(IsStiff);
    Click("HitButton", tactix::LeftButton, row.shift);
    ASSERT_EQ(records_.size(), 1U);
    const engine::Rank drawn = Session().CurrentRound().HandsOf(0)[0].hand.Cards()[2].rank;
    std::optional<bool> expected;
    if (row.range) expected = *row.range == engine::RangeOf(drawn);
    EXPECT_EQ(records_[0].judgement.hitCardPrediction, expected);
    EXPECT_EQ(Session().Predictions().Made(), row.range ? 1 : 0);
    const char* text = !expected ? "" : *expected ? " Hit card predicted right." : " Hit card predicted wrong.";
    EXPECT_NE(Message().find(text), std::string::npos) << Message();
    EXPECT_EQ(Message().find("predicted") != std::string::npos, expected.has_value());
  }
}

TEST_F(TrainerWindowTest, AHoleCardIsPredictedByTheMenuAndScoredAtTheEnd) {
  struct Row {
    const char* entry;
    std::optional<CardRange> range;
    const char* text;
  };
  const Row rows[] = {
      {"is &High", CardRange::High, "Your prediction: the hole card is high. Your play?"},
      {"is &Low", CardRange::Low, "Your prediction: the hole card is low. Your play?"},
      {"Is &7, 8 or 9", CardRange::Mid, "Your prediction: the hole card is mid. Your play?"},
      {"is &Unknown", std::nullopt, "No prediction of the hole card. Your play?"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.entry);
    records_.clear();
    OpenAt(IsStiff);
    ChooseFrom("cmdHoleCard", QLatin1String(row.entry));
    EXPECT_EQ(Message(), row.text);
    EXPECT_EQ(Session().Predictions().Made(), 0);
    Press('S');
    ASSERT_EQ(records_.size(), 1U);
    std::optional<bool> expected;
    const engine::Rank hole = Session().CurrentRound().DealerHand().Cards()[1].rank;
    if (row.range) expected = *row.range == engine::RangeOf(hole);
    EXPECT_EQ(records_[0].judgement.holeCardPrediction, expected);
    EXPECT_EQ(Session().Predictions().Made(), row.range ? 1 : 0);
    EXPECT_EQ(Message().find("Hole card predicted") != std::string::npos, row.range.has_value());
  }
  ChooseFrom("cmdHoleCard", QStringLiteral("is &High"));
  EXPECT_EQ(Message(), "The hole card is open already. Any play deals the next hand.");
}

TEST_F(TrainerWindowTest, TheTensRatioIsJudgedAtOnce) {
  OpenAt(IsStiff);
  ChooseFrom("cmdTensRatio", QStringLiteral("is &High"));
  const std::string first = Message();
  const Verdict high = Table().verdict;
  ChooseFrom("cmdTensRatio", QStringLiteral("is &Low"));
  EXPECT_EQ(Message(), first) << "the cards are what they are";
  EXPECT_EQ(first, high == Verdict::Right ? "The cards to come are rich in tens. Your play?"
                                          : "The cards to come are poor in tens. Your play?");
  EXPECT_EQ(Table().verdict, high == Verdict::Right ? Verdict::Wrong : Verdict::Right);
  EXPECT_EQ(Session().Predictions().Made(), 2);
  EXPECT_EQ(Session().Predictions().Right(), 1);
}

TEST_F(TrainerWindowTest, AdviceComesAfterTheFlash) {
  OpenAt(IsStiff);
  bool hidden = false;
  QTimer::singleShot(100, window_.get(), [&] { hidden = !Find<QPushButton>("HitButton").isVisible(); });
  const engine::Hand hand = HandOf(Session());
  QTest::keyClick(window_->windowHandle(), Qt::Key_Return);
  EXPECT_TRUE(hidden) << "the advised button flashes";
  EXPECT_EQ(Message(), "Advice: " + PlayText(Play::Hit, hand, Session().CurrentRound().UpCard()).toStdString() + ".");
  EXPECT_TRUE(Find<QPushButton>("HitButton").isDefault());
  EXPECT_EQ(Session().CurrentTally().decisions, 0);
}

TEST_F(TrainerWindowTest, AdviceIsNotGivenForTheHandAfterTheOneItWasAskedFor) {
  Open(SeedWhere([](engine::Session& session) {
    if (!IsStiff(session)) return false;
    session.Decide(Play::Hit);
    return !session.IsOver();
  }));
  std::string played;
  QTimer::singleShot(500, window_.get(), [&] {
    Press('H');
    played = Message();
  });
  Click("cmdAdviceButton");
  EXPECT_TRUE(played.starts_with("Right: ")) << played;
  EXPECT_EQ(Message(), played);
}

TEST_F(TrainerWindowTest, BetweenRoundsThereIsNothingToAdvise) {
  OpenAt(IsStiff);
  Press('S');
  const std::string message = Message();
  QTest::qWait(FlashTime);
  bool hidden = false;
  QTimer::singleShot(100, window_.get(), [&] { hidden = !Find<QPushButton>("HitButton").isVisible(); });
  Click("cmdAdviceButton");
  QTest::qWait(150);
  EXPECT_FALSE(hidden);
  EXPECT_EQ(Message(), message);
}

TEST_F(TrainerWindowTest, ThePickedStrategyAdvisesAndJudgesTheSameHand) {
  OpenAt(IsStiff);
  const engine::Hand hand = HandOf(Session());
  const engine::Rank upCard = Session().CurrentRound().UpCard();
  EXPECT_EQ(Session().Advised(), Play::Hit);
  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  auto& list = Find<QComboBox>("StrategyListBox");
  EXPECT_TRUE(list.isVisible());
  ASSERT_GE(RowOf(QStringLiteral("Never Bust")), 0);
  tactix::tests::PickByMouse(list, RowOf(QStringLiteral("Never Bust")));
  EXPECT_EQ(Message(), "The advice now follows Never Bust. Your play?");
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(Find<QPushButton>("cmdAdviceButton").toolTip().endsWith(QStringLiteral("NEVER BUST")));
  EXPECT_EQ(Session().Advised(), Play::Stand);
  const std::string advice = PlayText(Play::Stand, hand, upCard).toStdString();
  QTest::qWait(50);
  Click("cmdAdviceButton");
  EXPECT_EQ(Message(), "Advice by Never Bust: " + advice + ".");
  Press('S');
  EXPECT_TRUE(Message().starts_with("Right by Never Bust: " + advice + ".")) << Message();
  EXPECT_EQ(Table().verdict, Verdict::Right);
}

TEST_F(TrainerWindowTest, ARowWithoutAStrategyChangesNothing) {
  OpenAt(IsStiff);
  ChooseFrom("cmdAdviceButton", QStringLiteral("&Select Strategy"), tactix::RightButton);
  ASSERT_FALSE(HasFatalFailure());
  Q_EMIT window_->Box().EvaluationStrategySelected(6);
  EXPECT_EQ(Message(), "No such strategy; the advice stays as it was. Your play?");
  EXPECT_EQ(Session().Advised(), Play::Hit);
}

TEST_F(TrainerWindowTest, BurnsACardAndNamesIt) {
  OpenAt(IsStiff);
  const auto left = Session().TheShoe().RemainingCount();
  ChooseFrom("cmdOptions", QStringLiteral("Burn A &Card"));
  EXPECT_EQ(Session().TheShoe().RemainingCount(), left - 1);
  EXPECT_TRUE(Message().starts_with("Burned: ")) << Message();
  EXPECT_TRUE(Message().ends_with(". Your play?")) << Message();
}

TEST_F(TrainerWindowTest, TheShoeCanBeBurnedThroughInOneRound) {
  Open(SeedWhere([](engine::Session& session) { return IsStiff(session); }, {.decks = 1}), {.decks = 1});
  for (int i = 0; i < 200; ++i) Q_EMIT window_->Box().BurnACardRequested();
  Q_EMIT window_->Box().TensRatioHiPrediction();
  Press('H');
  EXPECT_EQ(records_.size(), 1U);
}

TEST_F(TrainerWindowTest, CopiesTheHandButNotTheHoleCard) {
  OpenAt(IsStiff);
  ChooseFrom("cmdOptions", QStringLiteral("&Plug Hand in Clipboard"));
  const auto cards = HandOf(Session()).Cards();
  const engine::Hand& dealer = Session().CurrentRound().DealerHand();
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
            NameOf(cards[0]) + " " + NameOf(cards[1]) + " against " + NameOf(dealer.Cards()[0]));
  EXPECT_EQ(Message(), "The hand is in the clipboard. Your play?");
  QGuiApplication::clipboard()->setText(QStringLiteral("mine"));
  Press('S');
  ChooseFrom("cmdOptions", QStringLiteral("&Plug Hand in Clipboard"));
  EXPECT_EQ(Message(), "There is no hand to copy. Any play deals the next hand.");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("mine"));
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

TEST_F(TrainerWindowTest, OpensAtItsOwnSize) {
  OpenAt(IsStiff);
  EXPECT_EQ(window_->size(), QSize(900, 780));
}

TEST_F(TrainerWindowTest, MayBeDestroyedWhileAButtonFlashes) {
  OpenAt(IsStiff);
  QTimer::singleShot(300, qApp, [this] { window_.reset(); });
  Click("cmdAdviceButton");
  EXPECT_FALSE(window_);
}

TEST_F(TrainerWindowTest, MayBeDestroyedWhileAMenuIsOpen) {
  OpenAt(IsStiff);
  QTimer::singleShot(100, qApp, [this] { window_.reset(); });
  Click("cmdOptions");
  EXPECT_FALSE(window_);
}

}  // namespace
}  // namespace trainer::screens
