#pragma once

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// Tells screen readers what Qt would tell them wrongly or not at all: names in plain words, roles, what a press does,
/// the number of a spin button, and none of the widgets that only hold others or decorate. A name that the host sets
/// with setAccessibleName() stays, on a control and on each of its child widgets. Calling it again changes nothing.
TACTIX_QT_EXPORT void InstallAccessibles();

}  // namespace tactix::qt
