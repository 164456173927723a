#pragma once

#include <memory>
#include <utility>

#include "tactix/companion/CounterValue.h"
#include "tactix/counting/CounterValueObject.h"

namespace tactix::tests {

/// The library's own counter values.
inline void InstallCounterValues() {
  CounterValueObject::CreateWith([] { return std::make_shared<companion::CounterValue>(); });
}

/// Lets spin counters create their values, with the library's own or a test's, for as long as it lives.
class InstalledCounterValues {
 public:
  InstalledCounterValues() { InstallCounterValues(); }
  explicit InstalledCounterValues(CounterValueObject::Factory factory) {
    CounterValueObject::CreateWith(std::move(factory));
  }
  ~InstalledCounterValues() { CounterValueObject::CreateWith(nullptr); }
  InstalledCounterValues(const InstalledCounterValues&) = delete;
  InstalledCounterValues& operator=(const InstalledCounterValues&) = delete;
};

}  // namespace tactix::tests
