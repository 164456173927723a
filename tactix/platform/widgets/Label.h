#pragma once

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

class TACTIX_EXPORT Label final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::Label; }

  /// The user clicks it. A label to whose click nobody listens lets the mouse through to its parent.
  void Click() {
    Perform([this] { Clicked.Raise(); });
  }
  bool TakesClicks() const { return Clicked.HasHandlers(); }

  Event<> Clicked{0, "Click"};
};

}  // namespace tactix
