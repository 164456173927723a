#pragma once

#include <QKeyEvent>

#include "tactix-qt/Export.h"

namespace tactix::qt {

class QtSite;

/// Enter without modifiers, on either side of the keyboard.
TACTIX_QT_EXPORT bool IsEnter(const QKeyEvent& event);
/// A to Z; function and keypad keys are no letters.
TACTIX_QT_EXPORT bool IsLetter(const QKeyEvent& event);

/// Clicks the default button of the site's window if the event is Enter and there is one that a user can press.
/// Accepts the event then, and answers true.
TACTIX_QT_EXPORT bool PressDefaultButton(QKeyEvent& event, const QtSite& site);

}  // namespace tactix::qt
