#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// The framed middle of a jack, queen or king: a large letter on a medallion, with the rank's crown and the suit at
/// both ends, the same after half a turn. Drawn in the card sheet's coordinates.
void PaintCourtPanel(QPainter& painter, const QRectF& panel, engine::Card card, const QColor& ink);

}  // namespace trainer::screens
