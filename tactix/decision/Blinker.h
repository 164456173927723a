#pragma once

#include <string_view>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Timer.h"

namespace tactix {

/// Waits on a control's blink timer while the user interface goes on running, and flashes elements with such waits. A
/// flash that fails during a wait leaves its element shown or enabled.
class TACTIX_EXPORT Blinker {
 public:
  Blinker(Control& control, Timer& timer);

  /// Waits that many seconds. Waits nest: a flash that starts during a flash runs inside it. A negative or non-finite
  /// time fails with 380. False when the control has been destroyed meanwhile.
  bool Wait(float seconds);

  /// Hides and shows the element as tactix/decision/Flash.h says, four rounds of hidden 0.2 s and shown 0.2 s; then it
  /// becomes the default button. It ends shown even if it was hidden before. The element needs the properties "Visible"
  /// and "DEFAULT"; null fails with 91. False when the control has been destroyed meanwhile.
  bool Flash(const ObjectRef& element);
  /// Four rounds of disabled 0.2 s and enabled 0.2 s. It ends enabled even if it was disabled before. The element needs
  /// the property "Enabled"; null fails with 91. False when the control has been destroyed meanwhile.
  bool FlashEnabled(const ObjectRef& element);

  /// How many flashes run, one inside the other.
  int Flashes() const { return flashes_; }

 private:
  bool PutOffAndOn(Object& element, std::string_view property);

  Control& control_;
  Timer& timer_;
  ScopedConnection tick_;
  int flashes_ = 0;
  bool elapsed_ = false;
};

}  // namespace tactix
