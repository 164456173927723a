#include "tactix/companion/CounterValue.h"

namespace tactix::companion {

void CounterValue::StepDownWrapping(std::int16_t limit) {
  if (value_ > 0) {
    --value_;
  } else {
    value_ = limit;
  }
}

void CounterValue::StepDownSigned() {
  if (value_ > LowestSigned) --value_;
}

void CounterValue::StepDownToZero() {
  if (value_ > 0) --value_;
}

void CounterValue::StepUpToLimit(std::int16_t limit) {
  if (value_ < limit) ++value_;
}

}  // namespace tactix::companion
