#pragma once

#include <span>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/platform/MethodTable.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/Weak.h"
#include "tactix/platform/widgets/Extender.h"

namespace tactix {

class PropertyTable;

/// Base of the controls. The constructor sets the design state only; then the container calls InitProperties for a new
/// control, or ReadProperties for a saved one, and from then on the other notifications as they arise.
///
/// Code of the host's that a control calls may do anything: see "Being destroyed" in docs/architecture.md.
class TACTIX_EXPORT Control : public Trackable {
 public:
  /// The site must outlive the control, except where a handler destroys both.
  explicit Control(Site& site);
  virtual ~Control();

  /// The control as its container sees it: its place there, and whether it is shown and enabled. A `Visible` or
  /// `Enabled` property of the control's own is something else.
  tactix::Extender& Extender() { return extender_; }
  const tactix::Extender& Extender() const { return extender_; }
  Site& ItsSite() const { return site_; }

  virtual void InitProperties() {}
  /// Both go through the saved rows of Properties(), in their order.
  virtual void ReadProperties(PropertyBag& bag);
  virtual void WriteProperties(PropertyBag& bag);
  /// The extender's size has changed.
  virtual void Resized() {}
  /// The control is shown for the first time, or again. Passed on to the controls inside this one.
  virtual void Displayed();
  /// The keyboard focus has come to the control from outside it.
  virtual void GotFocus() {}
  /// The container's font, colours or mode have changed. Passed on to the controls inside this one.
  virtual void AmbientChanged();
  /// The control is about to end. Passed on to the controls inside this one.
  virtual void Terminated();

  /// A late-bound object with the control's properties and methods, then its extender's; fails with 91 once the control
  /// is gone.
  ObjectRef Handle() { return extender_.Handle(); }

  /// The control's own properties and methods, for late-bound access, saving and type information.
  virtual const PropertyTable& Properties() const;
  virtual const MethodTable& Methods() const;

 protected:
  /// To be called first in the destructor of every control: handles and weak pointers then find it gone. Releasing the
  /// host's handlers and objects may run host code, which must not find a half-destroyed control.
  void MarkAsGone();

  /// A saved property has changed; the name is the one that it is saved under.
  void NotifyChanged(std::string_view propertyName) { site_.PropertyChanged(propertyName); }
  /// A property has changed that is neither announced nor a child widget's.
  void Touched() { site_.PropertyTouched(); }

 private:
  Site& site_;
  tactix::Extender extender_;
};

}  // namespace tactix
