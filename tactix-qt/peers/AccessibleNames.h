#pragma once

#include <QString>

#include "tactix-qt/Export.h"

namespace tactix {
class Widget;
}

namespace tactix::qt {

class ControlWidget;
class Peer;

/// What a screen reader calls a control: the name that its host has given the widget, by setAccessibleName() or by a
/// label whose buddy it is, or else what the control is, in plain words.
TACTIX_QT_EXPORT QString SpokenNameOf(const ControlWidget& widget);

/// What a screen reader calls a child widget, unless the host has given it a name: its caption, or else its tool tip. A
/// list, a spin button and a toolbar are called as their control is. Never the name under which the control knows it;
/// empty where there is nothing to say.
TACTIX_QT_EXPORT QString SpokenNameOf(const Peer& peer);

/// Whether a new text is read out at once: prompts and verdicts.
TACTIX_QT_EXPORT bool IsAnnounced(const Widget& widget);

}  // namespace tactix::qt
