#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

/// A raised area that holds other widgets. Its caption stands in the middle, behind them.
class TACTIX_EXPORT Panel final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::Panel; }
};

}  // namespace tactix
