#pragma once

#include <QPainterPath>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// The outline of a suit in the unit square around the origin, upright, to be filled. Scale it to any size.
const QPainterPath& SuitPath(engine::Suit suit);

/// The suit's outline centred on `centre`, `size` wide and high; upside down where `inverted`.
enum class Upright { Yes, No };
QPainterPath SuitPathAt(engine::Suit suit, QPointF centre, qreal size, Upright upright = Upright::Yes);

bool IsRed(engine::Suit suit);

}  // namespace trainer::screens
