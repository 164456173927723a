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

/// Makes the Tab key go through all that lies inside a child widget in reading order, line by line. Qt's default would
/// be the order in which the native widgets were made, the z-order.
TACTIX_QT_EXPORT void OrderTabs(const Widget& widget, QWidget& native);

/// Detaches `native` and all native widgets inside it from their child widgets.
TACTIX_QT_EXPORT void ReleasePeers(QWidget& native);

/// Shows the fonts of all child widgets inside `native` anew: the host's font is another one.
TACTIX_QT_EXPORT void ShowFonts(QWidget& native);

/// Where the focus goes when a control gets it as a whole: its own native widget if it maps keys, else that of its
/// first child, as one reads, at which Tab would stop; its own again where there is none. Whether the control itself is
/// shown and enabled does not matter.
TACTIX_QT_EXPORT QWidget& FocusEntry(const Widget& control, QWidget& native);

}  // namespace tactix::qt
