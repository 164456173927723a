#pragma once

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A pair of buttons, one above the other, for stepping a value up and down. The value is the control's; this widget
/// holds none.
class TACTIX_EXPORT SpinButton final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::SpinButton; }

  /// The user spins by one: presses one of the buttons, or holds it (once for each repeat), or turns the wheel. It
  /// takes the focus and, if it still can be used then, reports. The arrow keys up and down do the same.
  void SpinUp() { Spin(SpunUp); }
  void SpinDown() { Spin(SpunDown); }

  Event<> SpunUp{0, "SpinUp"};
  Event<> SpunDown{0, "SpinDown"};

 private:
  bool TakesKey(const KeyPress& key) override;
  void Spin(Event<>& direction);
};

}  // namespace tactix
