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

/// Where the focus goes when a control gets it as a whole: the control itself if it maps keys, else its first child
/// that a user can reach.
TACTIX_QT_EXPORT QWidget& FocusEntry(QWidget& native);

}  // namespace tactix::qt
