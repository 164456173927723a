#pragma once

#include <QPainterPath>

#include "trainer/engine/Card.h"

namespace trainer::screens {

/// How a rank is drawn: as in a card's corner, as a face's large letter, or as the light line along that letter.
enum class RankStroke { Index, Letter, Inline };

/// The rank's letter or figures as an outline, one unit high, from y 0 to 1, centred on x 0. Drawn by ourselves, so a
/// card looks the same whichever fonts a machine has.
const QPainterPath& RankPath(engine::Rank rank, RankStroke stroke);

/// The same, `height` high, with the middle of its top edge at `top`.
QPainterPath RankPathAt(engine::Rank rank, QPointF top, qreal height, RankStroke stroke);

}  // namespace trainer::screens
