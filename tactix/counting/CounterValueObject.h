#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "tactix/platform/Export.h"

namespace tactix {

/// The number behind a spin counter, and the rules by which it is stepped. What happens at its ends is up to this
/// object. A host may supply its own.
///
/// Any operation may fail with an Error, throw something else, call back into the counter, and destroy the counter or
/// its window; the counter keeps its value alive until the operation has returned. The same goes for the factory and,
/// except for throwing, for the destructor.
class TACTIX_EXPORT CounterValueObject {
 public:
  using Factory = std::function<std::shared_ptr<CounterValueObject>()>;

  virtual ~CounterValueObject();

  /// How a counter creates its value on first use. Empty by default.
  static void CreateWith(Factory factory);
  /// A new value. Fails with 91 when the factory is empty or makes none.
  static std::shared_ptr<CounterValueObject> Create();

  /// 0 in a new one. Setting it checks no limit.
  virtual std::int16_t Value() const = 0;
  virtual void Value(std::int16_t value) = 0;

  /// One down, and from the lower end to the limit.
  virtual void StepDownWrapping(std::int16_t limit) = 0;
  /// One down, below zero too.
  virtual void StepDownSigned() = 0;
  /// One down, but not below zero.
  virtual void StepDownToZero() = 0;
  /// One up, but not above the limit.
  virtual void StepUpToLimit(std::int16_t limit) = 0;

 protected:
  CounterValueObject() = default;
  CounterValueObject(const CounterValueObject&) = default;
  CounterValueObject& operator=(const CounterValueObject&) = default;
};

}  // namespace tactix
