#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

/// A box around other widgets with its caption in the upper edge.
class TACTIX_EXPORT Frame final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::Frame; }
};

}  // namespace tactix
