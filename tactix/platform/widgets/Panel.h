#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A raised area that holds other widgets.
class TACTIX_EXPORT Panel final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::Panel; }
};

}  // namespace tactix
