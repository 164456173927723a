#include "trainer/screens/TableLayout.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "tests/trainer/screens/Pictures.h"
#include "trainer/screens/CardPainter.h"

namespace trainer::screens {
namespace {

// Rounding of the last digit is no overlap.
bool Within(const QRectF& outer, const QRectF& inner) {
  return outer.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(inner);
}

bool Overlap(const QRectF& one, const QRectF& other) {
  return one.adjusted(1e-6, 1e-6, -1e-6, -1e-6).intersects(other);
}

void ExpectNothingCollides(const TableModel& model, QSizeF size) {
  SCOPED_TRACE(testing::Message() << size.width() << "x" << size.height() << ", " << model.hands.size() << " hands of "
                                  << model.hands.front().cards.size() << ", dealer " << model.dealer.size());
  const TableLayout layout = LayOut(model, size);
  const QRectF table(QPointF(), size);
  ASSERT_EQ(layout.dealerCards.size(), model.dealer.size());
  ASSERT_EQ(layout.hands.size(), model.hands.size());

  std::vector<std::pair<std::vector<QRectF>, QRectF>> fans = {{layout.dealerCards, layout.dealerArea}};
  for (const TableLayout::Hand& hand : layout.hands) fans.emplace_back(hand.cards, hand.area);
  for (const auto& [cards, area] : fans) {
    EXPECT_TRUE(Within(table, area));
    for (std::size_t i = 0; i < cards.size(); ++i) {
      EXPECT_TRUE(Within(area, cards[i])) << "card " << i;
      EXPECT_EQ(cards[i].size(), layout.hands.front().cards.front().size());
      EXPECT_NEAR(cards[i].height(), cards[i].width() * CardAspect, 1e-9);
      EXPECT_GE(cards[i].width(), 24) << "too small to be read";
      if (i == 0) continue;
      EXPECT_GE(cards[i].left() - cards[i - 1].left(), cards[i].width() * CardIndexStrip - 1e-6);
    }
  }
  EXPECT_TRUE(Within(table, layout.message));
  EXPECT_FALSE(Overlap(layout.message, layout.dealerArea));
  for (const QRectF& corner : {layout.shoe, layout.banner}) {
    EXPECT_TRUE(Within(table, corner));
    EXPECT_FALSE(Overlap(corner, layout.dealerArea));
    EXPECT_FALSE(Overlap(corner, layout.message));
  }
  for (std::size_t i = 0; i < layout.hands.size(); ++i) {
    const TableLayout::Hand& hand = layout.hands[i];
    for (const QRectF& part : {hand.label, hand.frame, hand.wager}) EXPECT_TRUE(Within(hand.area, part));
    EXPECT_FALSE(Overlap(hand.label, hand.frame));
    EXPECT_FALSE(Overlap(hand.wager, hand.frame));
    EXPECT_FALSE(Overlap(hand.area, layout.dealerArea));
    EXPECT_FALSE(Overlap(hand.area, layout.message));
    for (std::size_t other = 0; other < i; ++other) EXPECT_FALSE(Overlap(hand.area, layout.hands[other].area));
  }
}

TEST(TableLayoutTest, NothingLeavesTheTableOrCollides) {
  constexpr QSizeF Sizes[] = {{560, 320}, {640, 360}, {900, 480}, {1400, 330}, {600, 900}, {1501, 777}, {3840, 2160}};
  for (const QSizeF size : Sizes) {
    for (std::size_t hands = 1; hands <= 4; ++hands) {
      for (std::size_t cards = 1; cards <= 12; ++cards) {
        for (const std::size_t dealer : {1U, 2U, 5U, 8U, 12U}) {
          ExpectNothingCollides(Crowded(hands, cards, dealer), size);
          if (HasFailure()) return;
        }
      }
    }
  }
}

TEST(TableLayoutTest, PrintStandsBetweenDealerAndMessage) {
  for (const QSizeF size : {QSizeF(560, 320), QSizeF(900, 480), QSizeF(3840, 2160)}) {
    const TableLayout layout = LayOut(Crowded(3, 3, 3), size);
    EXPECT_GE(layout.printHeight, 8);
    EXPECT_GE(layout.printCentre.y() - layout.printHeight, layout.dealerArea.bottom());
    EXPECT_LE(layout.printCentre.y(), layout.message.top());
  }
}

TEST(TableLayoutTest, HiddenHoleCardHasItsPlaceWithoutBeingKnown) {
  TableModel model = SoftSeventeen();
  EXPECT_EQ(LayOut(model, {900, 480}).dealerCards.size(), 2U);
  model.holeHidden = false;
  EXPECT_EQ(LayOut(model, {900, 480}).dealerCards.size(), 1U);
}

TEST(TableLayoutTest, CardsKeepTheirSizeWhileTheyFit) {
  const qreal two = LayOut(Crowded(1, 2, 2), {900, 480}).hands[0].cards[0].width();
  const qreal eight = LayOut(Crowded(1, 8, 2), {900, 480}).hands[0].cards[0].width();
  EXPECT_EQ(two, eight);
}

}  // namespace
}  // namespace trainer::screens
