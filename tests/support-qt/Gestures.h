#pragma once

#include <QPoint>
#include <cstdint>
#include <optional>

#include "tactix/platform/widgets/Menu.h"
#include "tactix/platform/widgets/Widget.h"

class QAction;
class QComboBox;
class QMenu;
class QToolBar;
class QWidget;

namespace tactix::tests {

/// The native widget that draws a child widget, or null.
QWidget* NativeOf(const Widget& widget);

/// What follows is done through the window system's events, as a mouse and a keyboard do it.
///
/// A place in the window where a user can touch the native widget; nothing when it is hidden or covered.
std::optional<QPoint> ReachablePlace(const QWidget& native);
void ClickAt(QWidget& window, const QPoint& place, std::int16_t button = LeftButton, std::int16_t shift = 0);
void MoveTo(QWidget& window, const QPoint& place, std::int16_t shift = 0);
/// Presses at one place and lets go at another.
void Drag(QWidget& window, const QPoint& from, const QPoint& to, std::int16_t button, std::int16_t shift);
/// Turns the mouse wheel by that many eighths of a degree, away from the user with a positive number. A notch is 120.
void TurnWheel(QWidget& window, const QPoint& place, int eighths);
void PressKey(QWidget& window, std::int32_t code, std::int16_t shift = 0);

/// Open the list and pick a row there; close it again without a pick when there is no such row.
void PickByMouse(QComboBox& box, int row);
void PickByReturn(QComboBox& box, int row);

/// Clicks a toolbar's button: on the bar, or in the menu at its end where it has no room. Does nothing where neither
/// can be reached.
void ClickOnBar(QToolBar& bar, QAction& action);
/// The same by keyboard, which takes the focus there. Its window must be active.
void PressOnBar(QToolBar& bar, QAction& action);

/// The open pop-up that draws a menu, or null.
QMenu* OpenMenuOf(const Menu& menu);
/// Clicks an entry of an open menu, by way of its parents; does nothing where an entry can't be seen.
void ClickEntry(QMenu& root, const MenuEntry& entry);
/// Leaves an open menu with Escape.
void LeaveMenu(QMenu& root);

/// Lets everything happen that is due now.
void Settle();

}  // namespace tactix::tests
