#pragma once

#include <cstdint>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/PushButton.h"

namespace tactix {

/// A whole number on a button: each click adds one.
class TACTIX_EXPORT @NAME@ : public Control {
 public:
  explicit @NAME@(Site& site);
  ~@NAME@() override;

  /// The number, 0 by default. A change is shown, announced and reported, one to the same number, too.
  std::int16_t Value() const { return value_; }
  void Value(std::int16_t value);

  void Resized() override;
  /// Restoring raises no event and notifies nothing.
  const PropertyTable& Properties() const override;

  struct EventSet {
    /// After each change; carries the number.
    Event<std::int16_t> ValueChanged{1, "ValueChanged"};

    auto All() { return std::tie(ValueChanged); }
  } Events;

  struct ChildWidgets {
    PushButton ValueButton;
  } Children;

 private:
  void Show(std::int16_t value);

  std::int16_t value_ = 0;
};

}  // namespace tactix
