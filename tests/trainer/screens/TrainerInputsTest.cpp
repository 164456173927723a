#include <QMenuBar>
#include <QToolBar>

#include "tactix-qt/peers/ToolBarPeer.h"
#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/screens/ScoreBar.h"

namespace trainer::screens {
namespace {

constexpr const char* BoxEntry = "Decision &box";
constexpr const char* ToolBarEntry = "Decision &toolbar";
constexpr const char* LegendEntry = "Toolbar with &legend";

class TrainerInputsTest : public TrainerAtWork {
 protected:
  TrainerInputsTest() { tactix::companion::Install(); }

  /// Chooses from the View menu.
  void View(const char* entry) {
    QMenu* const menu = window_->menuBar()->actions().at(0)->menu();
    ASSERT_EQ(menu->title(), QStringLiteral("&View"));
    for (QAction* action : menu->actions()) {
      if (action->text() == QLatin1String(entry)) return action->trigger();
    }
    FAIL() << entry;
  }
  tactix::ToolButton& Model(const char* key) {
    return window_->ToolBar().Bar().control().Children.DecisionToolBar.Button(key);
  }
  QAction& Tool(const char* key) { return *tactix::qt::ToolBarPeer::ActionOf(Model(key)); }
  void ClickTool(const char* key) {
    tactix::tests::ClickOnBar(Find<QToolBar>("DecisionToolBar"), Tool(key));
    QCoreApplication::processEvents();
  }
  std::string Record() { return Find<QLabel>("ToolBarRecord").text().toStdString(); }
  std::string BarPrompt() { return Find<QLabel>("ToolBarPrompt").text().toStdString(); }
};

TEST_F(TrainerInputsTest, TheViewMenuSwitchesTheInput) {
  struct Row {
    const char* entry;
    bool box;
    bool bar;
    bool legend;
  };
  const Row rows[] = {{ToolBarEntry, false, true, false},
                      {LegendEntry, false, true, true},
                      {BoxEntry, true, false, false},
                      {LegendEntry, false, true, true},
                      {ToolBarEntry, false, true, false}};
  OpenAt(IsStiff);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.entry);
    View(row.entry);
    EXPECT_EQ(window_->Box().isVisible(), row.box);
    EXPECT_EQ(window_->ToolBar().Bar().isVisible(), row.bar);
    EXPECT_EQ(window_->ToolBar().Legend().isVisible(), row.legend);
    const std::string total = std::to_string(HandOf(Session()).Total());
    EXPECT_EQ(row.box ? Prompt() : BarPrompt(), "Seat 1 - You have  " + total + "  - Make your Selection");
    const QWidget* const focused = window_->focusWidget();
    ASSERT_TRUE(focused);
    const QWidget& expected = row.legend ? static_cast<QWidget&>(window_->ToolBar().Legend())
                              : row.box  ? static_cast<QWidget&>(window_->Box())
                                         : window_->ToolBar().Bar();
    EXPECT_TRUE(focused == &expected || expected.isAncestorOf(focused));
  }
}

TEST_F(TrainerInputsTest, EveryPlayOfTheToolBarAndTheLegendIsJudged) {
  struct Row {
    const char* key;
    char letter;
    Play play;
  };
  const Row rows[] = {{"Hit", 'H', Play::Hit},
                      {"Stand", 'S', Play::Stand},
                      {"Split", 'P', Play::Split},
                      {"Double", 'D', Play::Double},
                      {"Surrender", 'G', Play::Surrender}};
  for (const Row& row : rows) {
    for (const bool byLetter : {false, true}) {
      SCOPED_TRACE(std::string(row.key) + (byLetter ? " by letter" : " by click"));
      records_.clear();
      OpenAt(IsSplittable);
      View(LegendEntry);
      byLetter ? Press(row.letter) : ClickTool(row.key);
      ASSERT_EQ(records_.size(), 1U);
      EXPECT_EQ(records_[0].judgement.chosen, row.play);
    }
  }
}

TEST_F(TrainerInputsTest, TheToolBarOffersTheLegalPlaysAndBetweenRoundsAll) {
  OpenAt(IsStiff);
  View(ToolBarEntry);
  EXPECT_TRUE(Tool("Hit").isEnabled());
  EXPECT_FALSE(Tool("Split").isEnabled());
  EXPECT_TRUE(Tool("Surrender").isEnabled());
  while (!Session().IsOver()) ClickTool("Stand");
  EXPECT_EQ(BarPrompt(), "");
  EXPECT_TRUE(Tool("Split").isEnabled());
  const auto dealt = Session().TheShoe().DealtCount();
  ClickTool("Split");
  EXPECT_GE(Session().TheShoe().DealtCount(), dealt + 4) << "any play deals";
}

TEST_F(TrainerInputsTest, AnIllegalLetterIsRefusedAndKeepsThePredictions) {
  OpenAt(IsStiff);
  View(LegendEntry);
  ClickTool("HolecardLow");
  ClickTool("TensRatioLow");
  Press('P');
  EXPECT_EQ(Message(), "Split is not possible with this hand. Your play?");
  EXPECT_TRUE(records_.empty());
  EXPECT_EQ(Session().Predictions().Made(), 0);
  EXPECT_EQ(Record(), "Predicted: hole card low, tens ratio low");
}

TEST_F(TrainerInputsTest, ShowsTheResponseRecord) {
  struct Row {
    const char* key;
    const char* record;
  };
  const Row rows[] = {
      {"HitcardMid", "Predicted: hit card mid"},
      {"HolecardHigh", "Predicted: hit card mid, hole card high"},
      {"TensRatioHigh", "Predicted: hit card mid, hole card high, tens ratio high"},
      {"DealerStrengthWeak", "Predicted: hit card mid, hole card high, tens ratio high, dealer weak"},
      {"DealerStrengthStrong", "Predicted: hit card mid, hole card high, tens ratio high, dealer strong"},
      {"HitcardUnknown", "Predicted: hit card unknown, hole card high, tens ratio high, dealer strong"},
  };
  OpenAt(IsStiff);
  View(ToolBarEntry);
  EXPECT_EQ(Record(), "No predictions");
  for (const Row& row : rows) {
    ClickTool(row.key);
    EXPECT_EQ(Record(), row.record);
    EXPECT_TRUE(Tool(row.key).isChecked()) << row.key;
  }
  ClickTool("Stand");
  EXPECT_EQ(Record(), "No predictions");
}

TEST_F(TrainerInputsTest, PredictionsGoWithThePlayAndAreScored) {
  // A stand that ends the round, a low hole card and a weak dealer: all but the tens ratio is known beforehand.
  Open(SeedWhere([](engine::Session& session) {
    const engine::Hand& dealer = session.CurrentRound().DealerHand();
    return IsStiff(session) && dealer.IsStiff() && engine::RangeOf(dealer.Cards()[1].rank) == engine::CardRange::Low;
  }));
  View(ToolBarEntry);
  ClickTool("HolecardLow");
  ClickTool("DealerStrengthWeak");
  ClickTool("TensRatioHigh");
  ClickTool("Stand");
  ASSERT_EQ(records_.size(), 1U);
  EXPECT_EQ(records_[0].judgement.holeCardPrediction, true);
  EXPECT_EQ(records_[0].judgement.dealerPrediction, true);
  EXPECT_EQ(Session().Predictions().Made(), 3);
  EXPECT_GE(Session().Predictions().Right(), 2);
  EXPECT_NE(Message().find("Hole card predicted right. Dealer's hand predicted right. Tens ratio predicted "),
            std::string::npos)
      << Message();
}

TEST_F(TrainerInputsTest, AnUnknownTakesAPredictionBack) {
  Open(SeedWhere([](engine::Session& session) {
    if (!IsStiff(session)) return false;
    session.Decide(Play::Hit);
    return !session.IsOver();
  }));
  View(ToolBarEntry);
  ClickTool("HitcardHigh");
  ClickTool("HolecardHigh");
  ClickTool("Hit");
  EXPECT_EQ(Session().Predictions().Made(), 1) << "the hit card has been seen, the hole card has not";
  ClickTool("HolecardUnknown");
  ClickTool("Stand");
  EXPECT_EQ(Session().Predictions().Made(), 1);
}

TEST_F(TrainerInputsTest, AdviceFlashesTheAdvisedPlay) {
  OpenAt(IsStiff);
  View(ToolBarEntry);
  bool sawItDisabled = false;
  tactix::tests::When(
      clock_, [this] { return !Tool("Hit").isEnabled(); }, [&sawItDisabled] { sawItDisabled = true; });
  ClickTool("Advice");
  EXPECT_TRUE(sawItDisabled);
  EXPECT_TRUE(Tool("Hit").isEnabled());
  EXPECT_TRUE(records_.empty());
}

TEST_F(TrainerInputsTest, StatisticsCountTheCardsSeen) {
  OpenAt(IsStiff);
  View(ToolBarEntry);
  ClickTool("ClumpStatistics");
  int seen[4] = {};
  for (const engine::Card card : HandOf(Session()).Cards()) ++seen[static_cast<int>(engine::RangeOf(card.rank))];
  ++seen[static_cast<int>(engine::CardRange::High)];  // the up card; the hole card is not seen
  EXPECT_EQ(Message(), "Seen since the shuffle: " + std::to_string(seen[1]) + " low, " + std::to_string(seen[2]) +
                           " mid and " + std::to_string(seen[3]) + " high cards. Your play?");
}

}  // namespace
}  // namespace trainer::screens
