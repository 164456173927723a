#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A separator that runs along its longer side, for decoration only.
class TACTIX_EXPORT Line final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::Line; }
};

}  // namespace tactix
