#pragma once

#include <vector>

#include "tactix-qt/Export.h"

class QWidget;

namespace tactix::qt {

/// Whether a screen reader hears of a widget in a ControlWidget. What only holds others or decorates has nothing to
/// say: it is passed over, and what lies in it stands in its place.
TACTIX_QT_EXPORT bool IsExposed(const QWidget& native);

/// What a screen reader finds in a ControlWidget or in a widget inside one, as one reads; an open menu comes last.
TACTIX_QT_EXPORT std::vector<QWidget*> ExposedChildren(const QWidget& native);

/// Inside what a screen reader finds it; null where it lies in no window any more.
TACTIX_QT_EXPORT QWidget* ExposedParent(const QWidget& native);

}  // namespace tactix::qt
