#pragma once

#include "tactix-qt/DecisionToolBar.h"
#include "tactix-qt/Export.h"

class QMainWindow;
class QToolBar;

namespace tactix::qt {

/// Docks a decision toolbar in a main window, at the edge that its Alignment names, and returns the window's toolbar
/// that holds it from then on:
///
///     auto* const bar = new tactix::qt::DecisionBAR2;
///     tactix::qt::DockIn(window, *bar);
///
/// The two follow each other. Setting Alignment moves the toolbar to that edge, or lets it float where Alignment is
/// DBAlignNone or no row. Where the user drags it, the host adds it or QMainWindow::restoreState() puts it, Alignment
/// becomes that edge, or DBAlignNone where it floats, once the toolbar rests there. At the left and the right the
/// buttons stand in a column.
///
/// Where the user may drag it is the returned toolbar's to say: setMovable(), setFloatable(), setAllowedAreas(). Its
/// object name, under which QMainWindow::saveState() knows it, is "DecisionBarDock"; a window with two needs another
/// one for the second.
///
/// The bar belongs to the toolbar, and so to the window, which deletes it. When the bar goes first, or gets another
/// parent, the toolbar goes as well.
TACTIX_QT_EXPORT QToolBar* DockIn(QMainWindow& window, DecisionToolBarControl& bar);

}  // namespace tactix::qt
