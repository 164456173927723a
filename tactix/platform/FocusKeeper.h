#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Widget;

/// Remembers for a site which widget has the keyboard focus and tells the controls that it enters.
class TACTIX_EXPORT FocusKeeper : public Trackable {
 public:
  Widget* Focus() const { return focus_.Get(); }

  /// The focus is now on the widget, or on none with null. Each control that it enters from outside hears GotFocus,
  /// the outermost first, as long as the focus stays there. Handlers may move it on, and destroy any of them or the
  /// keeper.
  void MoveTo(Widget* widget);

 private:
  Weak<Widget> focus_;
};

}  // namespace tactix
