#pragma once

#include <functional>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"

namespace tactix {

/// How an edition object is made when a toolbar needs one and the host has given it none. The factory may fail with an
/// Error, throw something else, call back into the toolbar, and destroy the toolbar or its window.
class TACTIX_EXPORT DefaultEdition {
 public:
  using Factory = std::function<ObjectRef()>;

  /// Empty by default.
  static void CreateWith(Factory factory);
  /// A new edition object. Fails with 91 when the factory is empty or makes none.
  static ObjectRef Create();
};

}  // namespace tactix
