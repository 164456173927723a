#pragma once

#include <QSizeF>

#include "tactix-qt/Export.h"

class QWidget;

namespace tactix::qt {

/// How many times wider and higher than designed the letters inside a control's native widget are, those that have
/// grown most; never less than 1. A text that leaves its font to the container is designed for up to 12 points. What
/// the texts say does not matter, so that a size hint stays the same while they change.
TACTIX_QT_EXPORT QSizeF TextGrowth(const QWidget& native);

}  // namespace tactix::qt
