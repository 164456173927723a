#pragma once

#include <concepts>
#include <string_view>
#include <utility>

#include "tactix/platform/Control.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/Tolerance.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

/// How a control reads and writes its saved properties: one after the other, for as long as it exists. The bag is the
/// host's, so that each call of it may destroy the control; from then on the steps do nothing, and what they are given
/// to run does not run. A step is all that touches the control: what a property's default needs of it is asked for by a
/// function.
class SavedProperties {
 public:
  SavedProperties(const Control& control, PropertyBag& bag, OnFailure onFailure = OnFailure::PassOver)
      : control_(control), bag_(bag), onFailure_(onFailure) {}

  /// Reads a property and hands its value to `take`. The default is a value, or a function that returns it. False when
  /// the control is gone.
  template <class Default, class Take>
  bool Read(std::string_view name, const Default& defaultValue, Take&& take) {
    return Step([&] {
      const Variant value = bag_.Read(name, ValueOf(defaultValue));
      if (control_) take(value);
    });
  }

  /// Writes what `get` returns, with a default as above. False when the control is gone.
  template <class Get, class Default>
  bool Write(std::string_view name, Get&& get, const Default& defaultValue) {
    return Step([&] {
      const Variant value = get();
      if (control_) bag_.Write(name, value, ValueOf(defaultValue));
    });
  }
  /// The same for a value that is stored whatever it is.
  template <class Get>
  bool Write(std::string_view name, Get&& get) {
    return Step([&] {
      const Variant value = get();
      if (control_) bag_.Write(name, value);
    });
  }

 private:
  template <class Action>
  bool Step(Action&& action) {
    if (control_) Run(onFailure_, action);
    return static_cast<bool>(control_);
  }
  template <class Default>
  static Variant ValueOf(const Default& defaultValue) {
    if constexpr (std::invocable<const Default&>) {
      return defaultValue();
    } else {
      return defaultValue;
    }
  }

  Weak<const Control> control_;
  PropertyBag& bag_;
  OnFailure onFailure_;
};

}  // namespace tactix
