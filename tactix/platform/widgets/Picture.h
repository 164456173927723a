#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A flat, framed area that holds other widgets.
class TACTIX_EXPORT Picture final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::Picture; }
};

}  // namespace tactix
