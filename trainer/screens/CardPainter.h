#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <span>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// Height over width of a card.
inline constexpr qreal CardAspect = 1.4;

/// The part of a card's width that has to stay uncovered for its corner to be read.
inline constexpr qreal CardIndexStrip = 0.24;

/// A pip's centre as fractions of the card's width and height; below the middle of the card pips stand on their heads.
struct PipPlace {
  qreal x;
  qreal y;
};

/// The pips of a rank, as many as it counts for the ace to the ten. A face has none: it has a panel instead.
[[nodiscard]] std::span<const PipPlace> PipPlaces(engine::Rank rank);

/// The red or the black that a suit is printed in.
[[nodiscard]] QColor SuitColor(engine::Suit suit);

/// Paints the card's face into `bounds`, which is best CardAspect times as high as it is wide. Edges are put on whole
/// device pixels. The painter's state is left as it was.
void PaintCard(QPainter& painter, const QRectF& bounds, engine::Card card);

/// Paints the back that all cards share.
void PaintCardBack(QPainter& painter, const QRectF& bounds);

}  // namespace trainer::screens
