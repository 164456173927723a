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

/// A failed wait must not leave the player without the element; what it has failed with goes on.
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
      // The tick leaves the timer running; the next wait restarts it by setting its interval.
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
  // A copy: what was passed may belong to the control.
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
