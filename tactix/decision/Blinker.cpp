#include "tactix/decision/Blinker.h"

#include <cmath>

#include "tactix/decision/Flash.h"
#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

namespace {

constexpr float StepSeconds = FlashStep / 1000.0F;

/// Counts a flash as long as it runs, if what counts it still exists then.
class Counted {
 public:
  Counted(const Control& control, int& flashes) : control_(control), flashes_(flashes) { ++flashes_; }
  ~Counted() {
    if (control_) --flashes_;
  }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;

 private:
  Weak<const Control> control_;
  int& flashes_;
};

/// Shows or enables the element after a failed wait, so that the player is not left without it. Its own error is
/// ignored: the wait's error reaches the caller.
void PutOnQuietly(Object& element, std::string_view property) {
  try {
    element.Put(property, true);
  } catch (...) {
  }
}

}  // namespace

Blinker::Blinker(Control& control, Timer& timer)
    : control_(control),
      timer_(timer),
      // The timer is left running after the tick; setting its interval restarts it for the next wait.
      tick_(timer.Tick.Connect([this] { elapsed_ = true; })) {}

bool Blinker::Wait(float seconds) {
  if (!std::isfinite(seconds) || seconds < 0) throw Error(Error::InvalidPropertyValue);
  const Weak<Control> control(control_);
  elapsed_ = false;
  timer_.Interval(Variant(seconds * 1000.0F).ToLong());
  timer_.Enabled(true);
  control_.ItsSite().RunUntil([this, &control] { return !control || elapsed_; });
  return static_cast<bool>(control);
}

bool Blinker::Flash(const ObjectRef& element) {
  if (!element) throw Error(Error::ObjectNotSet);
  // A copy: the reference may be to a member of the control, which may be destroyed during the flash.
  const ObjectRef kept = element;
  const Weak<Control> control(control_);
  if (!PutOffAndOn(*kept, "Visible")) return false;
  kept->Put("DEFAULT", true);
  return static_cast<bool>(control);
}

bool Blinker::FlashEnabled(const ObjectRef& element) {
  if (!element) throw Error(Error::ObjectNotSet);
  const ObjectRef kept = element;
  return PutOffAndOn(*kept, "Enabled");
}

bool Blinker::PutOffAndOn(Object& element, std::string_view property) {
  const Weak<Control> control(control_);
  const Counted counted(control_, flashes_);
  for (std::int32_t round = 0; round < FlashRounds; ++round) {
    for (const bool on : {false, true}) {
      element.Put(property, on);
      if (!control) return false;
      try {
        if (!Wait(StepSeconds)) return false;
      } catch (...) {
        if (control && !on) PutOnQuietly(element, property);
        throw;
      }
    }
  }
  return true;
}

}  // namespace tactix
