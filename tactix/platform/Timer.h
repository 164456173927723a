#pragma once

#include <cstdint>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Site;

/// Ticks at an interval until it is disabled; a tick does not stop it.
class TACTIX_EXPORT Timer final : public Trackable {
 public:
  explicit Timer(Site& site) : site_(site) {}
  ~Timer();

  /// In milliseconds, 0 by default; 0 ticks as soon as the event loop runs. A negative one fails with 380. Setting it
  /// restarts a running timer, with the same interval too.
  std::int32_t Interval() const { return interval_; }
  void Interval(std::int32_t milliseconds);

  /// False by default.
  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled);

  Event<> Tick{0, "Tick"};

  /// For the site: the interval has passed. An error thrown by a handler goes to the site's Unhandled.
  void Elapse();

 private:
  Site& site_;
  std::int32_t interval_ = 0;
  bool enabled_ = false;
};

}  // namespace tactix
