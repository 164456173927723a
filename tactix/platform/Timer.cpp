#include "tactix/platform/Timer.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/UserAction.h"

namespace tactix {

Timer::~Timer() {
  if (enabled_) site_.StopTimer(*this);
}

void Timer::Interval(std::int32_t milliseconds) {
  if (milliseconds < 0) throw Error(Error::InvalidPropertyValue);
  interval_ = milliseconds;
  if (enabled_) site_.StartTimer(*this);
}

void Timer::Enabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  if (enabled_) {
    site_.StartTimer(*this);
  } else {
    site_.StopTimer(*this);
  }
}

void Timer::Elapse() {
  if (enabled_) RunUserAction(site_, [this] { Tick.Raise(); });
}

}  // namespace tactix
