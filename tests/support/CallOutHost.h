#pragma once

#include <memory>
#include <vector>

#include "tactix/platform/Control.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tests/support/CallOuts.h"
#include "tests/support/HostObjects.h"

namespace tactix::tests {

struct CatalogueEntry;

/// A host with one control in a window, that supplies all a control may ask of it and counts each time it is asked. All
/// that it hands to the control lies in the window, and is gone with it.
class CallOutHost {
 public:
  explicit CallOutHost(const CatalogueEntry& entry);
  ~CallOutHost();
  CallOutHost(const CallOutHost&) = delete;
  CallOutHost& operator=(const CallOutHost&) = delete;

  CallOuts Calls;

  /// Null once it is destroyed.
  Control* ItsControl() const { return window_ ? window_->control.get() : nullptr; }
  /// The control's late-bound object; lives on.
  const ObjectRef& Handle() const { return handle_; }
  bool HasWindow() const { return window_ != nullptr; }

  // What lies in the window.
  HostSite& Site() const { return window_->site; }
  HostBag& Bag() const { return window_->bag; }
  const ObjectRef& Edition() const { return window_->edition; }
  const ObjectRef& Collection() const { return window_->collection; }
  const ObjectRef& DataBlock() const { return window_->dataBlock; }
  const ObjectRef& FlashedObject() const { return window_->flashedObject; }
  /// Holds an object.
  const Variant& DecisionBlock() const { return window_->decisionBlock; }

  /// Puts new objects in the place of those in the window.
  void RenewTheObjects();
  void DestroyControl();
  /// Nothing while the control is ending: a site outlives that.
  void DestroyWindow();

 private:
  struct Window {
    explicit Window(CallOuts& calls) : site(calls), bag(calls) {}

    HostSite site;
    HostBag bag;
    ObjectRef edition;
    ObjectRef collection;
    ObjectRef dataBlock;
    ObjectRef flashedObject;
    Variant decisionBlock;
    std::unique_ptr<Control> control;
  };

  void SetTheHooks();

  std::unique_ptr<Window> window_;
  ObjectRef handle_;
  bool controlIsEnding_ = false;
};

}  // namespace tactix::tests
