#pragma once

#include "tactix-qt/Export.h"

class QWidget;

namespace tactix {
class Widget;
}

namespace tactix::qt {

class QtSite;

/// Makes native widgets for all that lies inside a child widget, bottom of the z-order first.
TACTIX_QT_EXPORT void MakePeers(Widget& widget, QtSite& site, QWidget& native);

/// Tab goes from the native widget on through all that lies inside its child widget, as one reads: line by line. Made
/// as they are, the bottom of the z-order would come first.
TACTIX_QT_EXPORT void OrderTabs(const Widget& widget, QWidget& native);

/// Cuts all ties between the native widgets under `native`, and itself, and their child widgets.
TACTIX_QT_EXPORT void ReleasePeers(QWidget& native);

/// Where the focus goes when a control gets it as a whole: its own native widget if it maps keys, else that of its
/// first child, as one reads, at which Tab would stop; its own again where there is none. Whether the control itself is
/// shown and enabled does not matter.
TACTIX_QT_EXPORT QWidget& FocusEntry(const Widget& control, QWidget& native);

}  // namespace tactix::qt
