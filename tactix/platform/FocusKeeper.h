#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Widget;

/// Remembers for a site which widget has the keyboard focus and tells the controls that it enters.
class TACTIX_EXPORT FocusKeeper : public Trackable {
 public:
  Widget* Focus() const { return focus_.Get(); }

  /// The focus has moved to the widget, or to none with null. Each control that it has entered from outside gets
  /// GotFocus, the outermost first, until a handler moves the focus elsewhere. Handlers may also destroy the controls
  /// and this keeper.
  void MoveTo(Widget* widget);

 private:
  Weak<Widget> focus_;
};

}  // namespace tactix
