#include "tactix/decision/Blinker.h"

#include <cmath>

#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

namespace {

constexpr int Rounds = 4;
constexpr float HalfRound = 0.2F;

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
  for (int round = 0; round < Rounds; ++round) {
    for (const bool on : {false, true}) {
      element.Put(property, on);
      if (!control) return false;
      try {
        if (!Wait(HalfRound)) return false;
      } catch (...) {
        if (control && !on) PutOnQuietly(element, property);
        throw;
      }
    }
  }
  return true;
}

}  // namespace tactix
