#include "trainer/screens/CardPainter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "tests/trainer/screens/Pictures.h"
#include "trainer/screens/SuitShapes.h"

namespace trainer::screens {
namespace {

std::string Bytes(const QImage& image) {
  return {reinterpret_cast<const char*>(image.constBits()), static_cast<std::size_t>(image.sizeInBytes())};
}

TEST(CardPainterTest, PipsCountWhatTheRankSays) {
  for (int rank = 1; rank <= 10; ++rank) EXPECT_EQ(PipPlaces(static_cast<Rank>(rank)).size(), std::size_t(rank));
  for (const Rank face : {Rank::Jack, Rank::Queen, Rank::King}) EXPECT_TRUE(PipPlaces(face).empty());
}

TEST(CardPainterTest, PipsAreSymmetric) {
  const auto has = [](Rank rank, qreal x, qreal y) {
    const auto pips = PipPlaces(rank);
    return std::any_of(pips.begin(), pips.end(),
                       [&](PipPlace pip) { return std::abs(pip.x - x) < 1e-9 && std::abs(pip.y - y) < 1e-9; });
  };
  for (int value = 1; value <= 10; ++value) {
    const Rank rank = static_cast<Rank>(value);
    for (const PipPlace& pip : PipPlaces(rank)) {
      EXPECT_TRUE(has(rank, 1 - pip.x, pip.y)) << value << " left to right";
      // Seven pips can't be the same upside down: the odd one stands in the upper half.
      const bool oddPip = rank == Rank::Seven && pip.x == 0.5;
      EXPECT_EQ(has(rank, 1 - pip.x, 1 - pip.y), !oddPip) << value << " upside down";
    }
  }
}

TEST(CardPainterTest, EveryFaceAndTheBackLookDifferent) {
  for (const qreal ratio : {1.0, 1.5, 2.0}) {
    std::set<std::string> pictures;
    for (const Card card : AllCards()) pictures.insert(Bytes(CardImage(card, ratio)));
    QImage back = Canvas({60, 84}, ratio);
    QPainter painter(&back);
    PaintCardBack(painter, QRectF(0, 0, 60, 84));
    painter.end();
    pictures.insert(Bytes(back));
    EXPECT_EQ(pictures.size(), 53U) << ratio;
  }
}

TEST(CardPainterTest, BothCornersNameTheCard) {
  std::set<std::string> upper;
  std::set<std::string> lower;
  const QSize strip(static_cast<int>(60 * CardIndexStrip), 28);
  for (const Card card : AllCards()) {
    const QImage image = CardImage(card);
    upper.insert(Bytes(image.copy(QRect(QPoint(0, 0), strip))));
    lower.insert(Bytes(image.copy(QRect(QPoint(60, 84) - QPoint(strip.width(), strip.height()), strip))));
  }
  EXPECT_EQ(upper.size(), 52U);
  EXPECT_EQ(lower.size(), 52U);
}

TEST(CardPainterTest, HeartsAndDiamondsAreRedTheOthersBlack) {
  for (const Card card : AllCards()) {
    const bool red = card.suit == Suit::Hearts || card.suit == Suit::Diamonds;
    const QImage image = CardImage(card, 2);
    EXPECT_EQ(CountPixels(image, SuitColor(Suit::Hearts)) > 100, red) << engine::NameOf(card);
    EXPECT_EQ(CountPixels(image, SuitColor(Suit::Spades)) > 100, !red) << engine::NameOf(card);
  }
  const QColor redInk = SuitColor(Suit::Hearts);
  EXPECT_GT(redInk.red(), 2 * (redInk.green() + redInk.blue()));
  EXPECT_EQ(redInk, SuitColor(Suit::Diamonds));
  EXPECT_EQ(SuitColor(Suit::Clubs), SuitColor(Suit::Spades));
  const QColor paper = CardImage({Rank::Two, Suit::Clubs}).pixelColor(15, 42);
  for (const Suit suit : {Suit::Hearts, Suit::Spades}) EXPECT_GE(Contrast(SuitColor(suit), paper), 4.5);
}

TEST(CardPainterTest, SuitsFillTheirSquareAndStayInside) {
  for (int suit = 0; suit < engine::SuitCount; ++suit) {
    const QRectF bounds = SuitPath(static_cast<Suit>(suit)).boundingRect();
    EXPECT_TRUE(QRectF(-0.5, -0.5, 1, 1).contains(bounds)) << suit;
    EXPECT_GT(bounds.height(), 0.9) << suit;
    EXPECT_NEAR(bounds.center().x(), 0, 0.005) << suit;
  }
}

TEST(CardPainterTest, OutlinesStandOnWholeDevicePixels) {
  for (const qreal ratio : {1.0, 1.5, 2.0}) {
    QImage image = Canvas({80, 100}, ratio);
    QPainter painter(&image);
    PaintCard(painter, QRectF(7.3, 5.4, 60, 84), SixOfClubs);
    painter.end();
    const int left = static_cast<int>(std::lround(7.3 * ratio));
    const int row = image.height() / 2;
    EXPECT_EQ(image.pixelColor(left - 1, row), QColor(Qt::magenta)) << ratio;
    EXPECT_NE(image.pixelColor(left, row), QColor(Qt::magenta)) << ratio;
    EXPECT_EQ(image.pixelColor(left + 2, row), image.pixelColor(left + 5, row)) << ratio;
    // The outline is one colour, without a half-covered neighbour outside it.
    EXPECT_LT(image.pixelColor(left, row).lightness(), 200) << ratio;
  }
}

TEST(CardPainterTest, LeavesThePainterAsItWas) {
  QImage image = Canvas({60, 84});
  QPainter painter(&image);
  painter.setPen(Qt::cyan);
  painter.setBrush(Qt::yellow);
  PaintCard(painter, QRectF(0, 0, 60, 84), QueenOfDiamonds);
  PaintCardBack(painter, QRectF(0, 0, 60, 84));
  EXPECT_EQ(painter.pen().color(), QColor(Qt::cyan));
  EXPECT_EQ(painter.brush().color(), QColor(Qt::yellow));
  EXPECT_TRUE(painter.transform().isIdentity());
  EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

}  // namespace
}  // namespace trainer::screens
