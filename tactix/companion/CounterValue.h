#pragma once

#include <cstdint>

#include "tactix/counting/CounterValueObject.h"
#include "tactix/platform/Export.h"

namespace tactix::companion {

/// The library's own counter value: a whole number, 0 at first. Its steps stop at 0, at the limit and, where numbers
/// may be negative, at LowestSigned; a number already beyond such an end stays as it is. Never fails.
class TACTIX_EXPORT CounterValue final : public CounterValueObject {
 public:
  static constexpr std::int16_t LowestSigned = -999;

  std::int16_t Value() const override { return value_; }
  void Value(std::int16_t value) override { value_ = value; }

  /// From 0, and from anything below it, to the limit.
  void StepDownWrapping(std::int16_t limit) override;
  void StepDownSigned() override;
  void StepDownToZero() override;
  void StepUpToLimit(std::int16_t limit) override;

 private:
  std::int16_t value_ = 0;
};

}  // namespace tactix::companion
