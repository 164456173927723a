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

constexpr int OmegaII = 35;
constexpr int OmegaPoints[] = {0, 1, 1, 2, 2, 2, 1, 0, -1, -2};
constexpr int ClumpValues[] = {-1, 1, 1, 1, 1, 1, 0, 0, 0, -1};

std::string Signed(int number) { return (number > 0 ? "+" : "") + std::to_string(number); }

template <class List>
void Pick(CardValueDialog& dialog, int value) {
  tactix::tests::PickByMouse(*dialog.findChild<List*>()->template findChild<QComboBox*>(), value + 10);
  tactix::tests::Settle();
}

TEST(CardValueDialogTest, JudgesThePointsAndTheClumpValue) {
  CardValueDialog dialog(*engine::FindCountSystem(OmegaII), 3);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  std::set<int> asked;
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(dialog.ResultText(), QStringLiteral("What is this card worth?"));
    const int card = dialog.Card();
    asked.insert(card);
    const int points = OmegaPoints[card - 1];
    const int clump = ClumpValues[card - 1];
    SCOPED_TRACE(card);
    Pick<tactix::qt::CountValueSelector>(dialog, points);
    EXPECT_EQ(dialog.ResultText().toStdString(), "Right: the count is " + Signed(points) + ".");
    Pick<tactix::qt::CountValueSelector>(dialog, points + 1);
    EXPECT_EQ(dialog.ResultText().toStdString(),
              "No: the count is " + Signed(points) + ", not " + Signed(points + 1) + ".");
    Pick<tactix::qt::ClumpCardList>(dialog, clump);
    EXPECT_EQ(dialog.ResultText().toStdString(), "Right: the clump value is " + Signed(clump) + ".");
    Pick<tactix::qt::ClumpCardList>(dialog, clump - 1);
    EXPECT_EQ(dialog.ResultText().toStdString(),
              "No: the clump value is " + Signed(clump) + ", not " + Signed(clump - 1) + ".");
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("NextCard")), Qt::LeftButton);
  }
  EXPECT_GT(asked.size(), 4U);
}

TEST(CardValueDialogTest, EitherNeighbourOfHalfAPointIsRight) {
  constexpr int KelvoAPC = 16;
  CardValueDialog dialog(*engine::FindCountSystem(KelvoAPC), 3);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  while (dialog.Card() != 2) dialog.findChild<QPushButton*>(QStringLiteral("NextCard"))->click();
  const std::pair<int, const char*> rows[] = {{0, "No: the count is +1.5, not 0."},
                                              {1, "Right: the count is +1.5."},
                                              {2, "Right: the count is +1.5."},
                                              {3, "No: the count is +1.5, not +3."}};
  for (const auto& [value, text] : rows) {
    Pick<tactix::qt::CountValueSelector>(dialog, value);
    EXPECT_EQ(dialog.ResultText().toStdString(), text);
  }
}

}  // namespace
}  // namespace trainer::screens
