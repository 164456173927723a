#pragma once

#include "tactix-qt/Export.h"

class QWidget;

namespace tactix::qt {

/// Stands wherever a native widget's event handler calls into a control. As long as one stands, no retired native
/// widget is deleted, so every handler on the stack finds its widget when the call comes back.
class TACTIX_QT_EXPORT HandlerScope {
 public:
  HandlerScope();
  ~HandlerScope();
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;
};

/// Takes a native widget out of its window and deletes it once no handler can be running on it.
TACTIX_QT_EXPORT void Retire(QWidget& native);

}  // namespace tactix::qt
