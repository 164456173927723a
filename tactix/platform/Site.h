#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "tactix/platform/Color.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Font.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Control;
class Menu;
class PushButton;
class Timer;
class Widget;

/// What a control asks of the container it sits on. A front end implements it; HeadlessSite does so without a toolkit.
/// A site outlives the controls on it, except where a handler destroys both.
///
/// Notices, waits, pop-ups, beeps and moves of the focus may run any code of the host's, which may fail, call back into
/// the control, or destroy it and the site. The other operations run none, and do not fail.
class TACTIX_EXPORT Site : public Trackable {
 public:
  virtual ~Site() = default;

  /// Called by each control when it is constructed and when it is destroyed.
  virtual void Attach(Control&) {}
  virtual void Detach(Control&) {}

  // What the container wants the control to look like.
  virtual Font AmbientFont() const = 0;
  virtual Color AmbientForeColor() const = 0;
  virtual Color AmbientBackColor() const = 0;
  /// True when the host runs, false in a form designer.
  virtual bool UserMode() const = 0;

  /// A saved property has changed; the name is the one that it is saved under.
  virtual void PropertyChanged(std::string_view name) = 0;
  /// A property that no notice tells of may have changed, perhaps one of a control inside. Runs none of the host's
  /// code.
  virtual void PropertyTouched() {}

  /// Starts or restarts the timer's ticks at its interval; the site calls Timer::Elapse until it is stopped.
  virtual void StartTimer(Timer& timer) = 0;
  virtual void StopTimer(Timer& timer) = 0;

  /// Runs the event loop, asleep between events, until `done` answers true. Calls may nest.
  virtual void RunUntil(const std::function<bool()>& done) = 0;

  virtual void Beep() = 0;

  /// Pops the menu up at a place in the units of `within`'s children and returns when it has closed; the chosen entry's
  /// handlers have run by then. A second pop-up closes the first, whose call returns after the second's.
  virtual void PopUp(Menu& menu, Widget& within, float x, float y) = 0;

  /// The screen's size in twips.
  virtual float ScreenWidth() const = 0;
  virtual float ScreenHeight() const = 0;

  /// Gives the keyboard focus to a widget of a control on this site, or takes it away from all with null.
  virtual void SetFocus(Widget* widget) = 0;
  /// The widget that has the keyboard focus, or null.
  virtual Widget* Focus() const = 0;

  /// The button has become its window's default button; the site clears that flag of every other button.
  virtual void MadeDefault(PushButton& button) = 0;

  /// Gets the errors that come out of a user's actions and timer ticks, which must not unwind through a toolkit. Errors
  /// of a host's call go to that host instead.
  virtual void Unhandled(const Error& error) = 0;

  /// The site of the outermost control.
  virtual Site& Outermost() { return *this; }
};

}  // namespace tactix
