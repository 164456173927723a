#include <QClipboard>
#include <set>

#include "tests/trainer/screens/TrainerAtWork.h"
#include "trainer/screens/TableDescription.h"

namespace trainer::screens {
namespace {

using engine::CardRange;
using TrainerMenusTest = TrainerAtWork;

TEST_F(TrainerMenusTest, AHitCardIsPredictedByThePressAndScoredByTheCard) {
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
    Open(SeedWhere([&row](engine::Session& session) {
      if (!IsStiff(session)) return false;
      session.Decide(Play::Hit);
      return engine::RangeOf(session.CurrentRound().HandsOf(0)[0].hand.Cards()[2].rank) ==
             row.range.value_or(CardRange::High);
    }));
    if (!row.range && row.shift != 0) Q_EMIT window_->Box().HitCardHiPrediction();
    Click("HitButton", tactix::LeftButton, row.shift);
    ASSERT_EQ(records_.size(), 1U);
    EXPECT_EQ(records_[0].judgement.hitCardPrediction, row.range ? std::optional(true) : std::nullopt);
    EXPECT_EQ(Session().Predictions().Made(), row.range ? 1 : 0);
    EXPECT_EQ(Session().Predictions().Right(), row.range ? 1 : 0);
    EXPECT_EQ(Message().find(" Hit card predicted right.") != std::string::npos, row.range.has_value()) << Message();
  }
}

TEST_F(TrainerMenusTest, AHoleCardIsPredictedByTheMenuAndScoredAtTheEnd) {
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
    Open(SeedWhere([&row](engine::Session& session) {
      const engine::Rank hole = session.CurrentRound().DealerHand().Cards()[1].rank;
      return IsStiff(session) && engine::RangeOf(hole) == row.range.value_or(CardRange::High);
    }));
    if (!row.range) ChooseFrom("cmdHoleCard", QStringLiteral("is &High"));
    ChooseFrom("cmdHoleCard", QLatin1String(row.entry));
    EXPECT_EQ(Message(), row.text);
    EXPECT_EQ(Session().Predictions().Made(), 0);
    Press('S');
    ASSERT_EQ(records_.size(), 1U);
    EXPECT_EQ(records_[0].judgement.holeCardPrediction, row.range ? std::optional(true) : std::nullopt);
    EXPECT_EQ(Session().Predictions().Made(), row.range ? 1 : 0);
    EXPECT_EQ(Message().find(" Hole card predicted right.") != std::string::npos, row.range.has_value()) << Message();
  }
  ChooseFrom("cmdHoleCard", QStringLiteral("is &High"));
  EXPECT_EQ(Message(), "The hole card is open already. Any play deals the next hand.");
}

TEST_F(TrainerMenusTest, TheTensRatioIsJudgedAtOnce) {
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

TEST_F(TrainerMenusTest, BurnsACardAndNamesIt) {
  OpenAt(IsStiff);
  const auto left = Session().TheShoe().RemainingCount();
  engine::Session foreseen = Session();
  ChooseFrom("cmdOptions", QStringLiteral("Burn A &Card"));
  EXPECT_EQ(Session().TheShoe().RemainingCount(), left - 1);
  EXPECT_EQ(Message(), "Burned: " + CardInWords(foreseen.Burn()).toStdString() + ". Your play?");
  std::set<engine::Rank> tens;
  for (int i = 0; i < 60; ++i) {
    const engine::Card next = foreseen.Burn();
    if (engine::PointsOf(next.rank) == 10) tens.insert(next.rank);
    Q_EMIT window_->Box().BurnACardRequested();
    ASSERT_EQ(Message(), "Burned: " + CardInWords(next).toStdString() + ". Your play?");
  }
  EXPECT_EQ(tens.size(), 4U) << "tens and faces by their own names";
}

TEST_F(TrainerMenusTest, TheShoeCanBeBurnedThroughInOneRound) {
  Open(SeedWhere([](engine::Session& session) { return IsStiff(session); }, {.decks = 1}), {.decks = 1});
  for (int i = 0; i < 200; ++i) Q_EMIT window_->Box().BurnACardRequested();
  Q_EMIT window_->Box().TensRatioHiPrediction();
  Press('H');
  EXPECT_EQ(records_.size(), 1U);
}

TEST_F(TrainerMenusTest, CopiesTheHandButNotTheHoleCard) {
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

TEST_F(TrainerMenusTest, MayBeDestroyedWhileAMenuIsOpen) {
  OpenAt(IsStiff);
  WhenAMenuIsOpen([this](QMenu*) { window_.reset(); });
  Click("cmdOptions");
  EXPECT_FALSE(window_);
}

}  // namespace
}  // namespace trainer::screens
