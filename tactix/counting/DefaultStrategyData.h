#pragma once

#include <functional>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"

namespace tactix {

/// How a strategy data block is made when a panel needs one of its own. The factory may fail with an Error, throw
/// something else, call back into the panel, and destroy the panel or its window.
class TACTIX_EXPORT DefaultStrategyData {
 public:
  using Factory = std::function<ObjectRef()>;

  /// Empty by default.
  static void CreateWith(Factory factory);
  /// A new, empty block. Fails with 91 when the factory is empty or makes none.
  static ObjectRef Create();
};

}  // namespace tactix
