#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

class TACTIX_EXPORT Label final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::Label; }
};

}  // namespace tactix
