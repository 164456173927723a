#pragma once

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// Tells screen readers what Qt would tell them wrongly or not at all: the buttons of a toolbar's group are radio
/// buttons, and labels that take clicks are buttons. Calling it again changes nothing.
TACTIX_QT_EXPORT void InstallAccessibles();

}  // namespace tactix::qt
