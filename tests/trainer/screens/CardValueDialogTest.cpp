#include "trainer/screens/CardValueDialog.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <set>
#include <string>
#include <utility>

#include "tactix-qt/ClumpCardList.h"
#include "tactix-qt/CountValueSelector.h"
#include "tests/support-qt/Gestures.h"

namespace trainer::screens {
namespace {

using engine::Rank;
using engine::Suit;

constexpr int OmegaII = 35;
constexpr int OmegaPoints[] = {0, 1, 1, 2, 2, 2, 1, 0, -1, -2};
constexpr int ClumpValues[] = {-1, 1, 1, 1, 1, 1, 0, 0, 0, -1};

std::string Signed(int number) { return (number > 0 ? "+" : "") + std::to_string(number); }

template <class List>
void Pick(CardValueDialog& dialog, int value) {
  tactix::tests::PickByMouse(*dialog.findChild<List*>()->template findChild<QComboBox*>(), value + 10);
  tactix::tests::Settle();
}

void Next(CardValueDialog& dialog) { dialog.findChild<QPushButton*>(QStringLiteral("NextCard"))->click(); }

/// All that it asks for.
std::set<std::string> CardsOf(CardValueDialog& dialog) {
  std::set<std::string> names;
  for (int i = 0; i < 300; ++i) {
    names.insert(engine::NameOf(dialog.Card()));
    Next(dialog);
  }
  return names;
}

TEST(CardValueDialogTest, AsksForEachKindOfCardThatHasAnAnswer) {
  struct Row {
    const char* name;
    int system;
    std::set<std::string> cards;
  };
  const Row rows[] = {
      {"Omega II", OmegaII, {"Ah", "2h", "3h", "4h", "5h", "6h", "7h", "8h", "9h", "Th"}},
      {"a five of 11 points", 29, {"Ah", "2h", "3h", "4h", "6h", "7h", "8h", "9h", "Th"}},
      {"sevens of both colours", 32, {"Ah", "2h", "3h", "4h", "5h", "6h", "7h", "7s", "8h", "9h", "Th"}},
  };
  for (const Row& row : rows) {
    CardValueDialog dialog(*engine::FindCountSystem(row.system), 3);
    EXPECT_EQ(CardsOf(dialog), row.cards) << row.name;
  }
}

TEST(CardValueDialogTest, SaysTheColourOfASevenWhereItCounts) {
  constexpr int RedSeven = 32;
  CardValueDialog dialog(*engine::FindCountSystem(RedSeven), 3);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  struct Row {
    engine::Card card;
    const char* question;
    const char* atZero;
    const char* atOne;
    const char* clump;
  };
  const Row rows[] = {
      {{Rank::Seven, Suit::Hearts},
       "What is a red seven worth?",
       "No: the count of a red seven is +1, not 0.",
       "Right: the count of a red seven is +1.",
       "Right: the clump value of a red seven is 0."},
      {{Rank::Seven, Suit::Spades},
       "What is a black seven worth?",
       "Right: the count of a black seven is 0.",
       "No: the count of a black seven is 0, not +1.",
       "Right: the clump value of a black seven is 0."},
  };
  for (const Row& row : rows) {
    for (int i = 0; i < 300 && dialog.Card() != row.card; ++i) Next(dialog);
    ASSERT_EQ(dialog.Card(), row.card);
    EXPECT_EQ(dialog.ResultText().toStdString(), row.question);
    Pick<tactix::qt::CountValueSelector>(dialog, 0);
    EXPECT_EQ(dialog.ResultText().toStdString(), row.atZero);
    Pick<tactix::qt::CountValueSelector>(dialog, 1);
    EXPECT_EQ(dialog.ResultText().toStdString(), row.atOne);
    Pick<tactix::qt::ClumpCardList>(dialog, 0);
    EXPECT_EQ(dialog.ResultText().toStdString(), row.clump);
  }
}

TEST(CardValueDialogTest, JudgesThePointsAndTheClumpValue) {
  CardValueDialog dialog(*engine::FindCountSystem(OmegaII), 3);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  std::set<int> asked;
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(dialog.ResultText(), QStringLiteral("What is this card worth?"));
    const int card = engine::PointsOf(dialog.Card().rank);
    asked.insert(card);
    const int points = OmegaPoints[card - 1];
    const int clump = ClumpValues[card - 1];
    SCOPED_TRACE(card);
    Pick<tactix::qt::CountValueSelector>(dialog, points);
    EXPECT_EQ(dialog.ResultText().toStdString(), "Right: the count of this card is " + Signed(points) + ".");
    Pick<tactix::qt::CountValueSelector>(dialog, points + 1);
    EXPECT_EQ(dialog.ResultText().toStdString(),
              "No: the count of this card is " + Signed(points) + ", not " + Signed(points + 1) + ".");
    Pick<tactix::qt::ClumpCardList>(dialog, clump);
    EXPECT_EQ(dialog.ResultText().toStdString(), "Right: the clump value of this card is " + Signed(clump) + ".");
    Pick<tactix::qt::ClumpCardList>(dialog, clump - 1);
    EXPECT_EQ(dialog.ResultText().toStdString(),
              "No: the clump value of this card is " + Signed(clump) + ", not " + Signed(clump - 1) + ".");
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("NextCard")), Qt::LeftButton);
  }
  EXPECT_GT(asked.size(), 4U);
}

TEST(CardValueDialogTest, EitherNeighbourOfHalfAPointIsRight) {
  constexpr int KelvoAPC = 16;
  CardValueDialog dialog(*engine::FindCountSystem(KelvoAPC), 3);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  while (dialog.Card().rank != Rank::Two) Next(dialog);
  const std::pair<int, const char*> rows[] = {{0, "No: the count of this card is +1.5, not 0."},
                                              {1, "Right: the count of this card is +1.5."},
                                              {2, "Right: the count of this card is +1.5."},
                                              {3, "No: the count of this card is +1.5, not +3."}};
  for (const auto& [value, text] : rows) {
    Pick<tactix::qt::CountValueSelector>(dialog, value);
    EXPECT_EQ(dialog.ResultText().toStdString(), text);
  }
}

}  // namespace
}  // namespace trainer::screens
