#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "trainer/screens/CardPainter.h"
#include "trainer/screens/TableModel.h"

namespace trainer::screens {

using engine::Card;
using engine::Rank;
using engine::Suit;

inline constexpr Card TenOfSpades{Rank::Ten, Suit::Spades};
inline constexpr Card AceOfHearts{Rank::Ace, Suit::Hearts};
inline constexpr Card SixOfClubs{Rank::Six, Suit::Clubs};
inline constexpr Card QueenOfDiamonds{Rank::Queen, Suit::Diamonds};

inline std::vector<Card> AllCards() {
  std::vector<Card> cards;
  for (int suit = 0; suit < engine::SuitCount; ++suit) {
    for (int rank = 1; rank <= engine::RankCount; ++rank) {
      cards.push_back({static_cast<Rank>(rank), static_cast<Suit>(suit)});
    }
  }
  return cards;
}

inline TableModel SoftSeventeen() {
  TableModel model;
  model.dealer = {TenOfSpades};
  model.holeHidden = true;
  model.hands = {{.cards = {AceOfHearts, SixOfClubs}, .label = "soft 17", .bet = "", .outcome = "", .active = true}};
  model.shoeLeft = -1;
  return model;
}

inline TableModel Crowded(std::size_t hands, std::size_t cardsInHand, std::size_t dealerCards) {
  TableModel model;
  model.dealer.assign(dealerCards, TenOfSpades);
  model.dealerLabel = "Dealer has 17";
  model.hands.assign(hands, {.cards = std::vector<Card>(cardsInHand, SixOfClubs),
                             .label = "soft 17",
                             .bet = "$25",
                             .outcome = "Bust",
                             .active = false});
  model.message = "Correct: stand on 17 against 6";
  return model;
}

inline QImage Canvas(QSize size, qreal ratio = 1) {
  QImage image(size * ratio, QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::magenta);
  return image;
}

inline QImage CardImage(Card card, qreal ratio = 1) {
  QImage image = Canvas({60, 84}, ratio);
  QPainter painter(&image);
  PaintCard(painter, QRectF(0, 0, 60, 84), card);
  return image;
}

inline int CountPixels(const QImage& image, const QColor& color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color.rgb() ? 1 : 0;
  }
  return count;
}

inline double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

inline double Contrast(const QColor& one, const QColor& other) {
  const auto [low, high] = std::minmax({Luminance(one), Luminance(other)});
  return (high + 0.05) / (low + 0.05);
}

}  // namespace trainer::screens
