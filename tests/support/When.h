#pragma once

#include <functional>
#include <utility>

namespace tactix::tests {

/// Does something as soon as something else is to be seen, in the middle of a wait too. `Clock` has an After, as Robot
/// and TestClock do, with whose end it is forgotten.
template <class Clock>
void When(Clock& clock, std::function<bool()> isSeen, std::function<void()> action) {
  clock.After(1, [&clock, isSeen = std::move(isSeen), action = std::move(action)]() mutable {
    if (isSeen()) return action();
    When(clock, std::move(isSeen), std::move(action));
  });
}

}  // namespace tactix::tests
