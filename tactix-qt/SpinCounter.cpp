#include "tactix-qt/SpinCounter.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

SpinCounter::SpinCounter(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  Relay(&Core::EventSet::CounterValueHasChanged, &SpinCounter::CounterValueHasChanged);
}

SpinCounter::~SpinCounter() { EndControl(); }

int SpinCounter::MaximumLimit() const { return Get<int>(&Core::MaximumLimit); }
bool SpinCounter::NumberWrap() const { return Get<bool>(&Core::NumberWrap); }
bool SpinCounter::AllowNegNumbers() const { return Get<bool>(&Core::AllowNegNumbers); }
int SpinCounter::CounterValue() const { return GetOr(0, &Core::CounterValue); }
SpinCounter::SpinCounterPossibilities SpinCounter::ControlHandedness() const {
  return Get<SpinCounterPossibilities>(&Core::ControlHandedness);
}
QFont SpinCounter::Font() const { return Get<QFont>(&Core::Font); }
bool SpinCounter::UseDefaultSize() const { return Get<bool>(&Core::UseDefaultSize); }

void SpinCounter::setMaximumLimit(int limit) { Call(&Core::MaximumLimit, limit); }
void SpinCounter::setNumberWrap(bool wrap) { Call(&Core::NumberWrap, wrap); }
void SpinCounter::setAllowNegNumbers(bool allow) { Call(&Core::AllowNegNumbers, allow); }
void SpinCounter::setCounterValue(int value) { Call(&Core::CounterValue, value); }
void SpinCounter::setControlHandedness(SpinCounterPossibilities handedness) {
  Call(&Core::ControlHandedness, handedness);
}
void SpinCounter::setControlFont(const QFont& font) { Call(&Core::Font, font); }
void SpinCounter::setUseDefaultSize(bool use) { Call(&Core::UseDefaultSize, use); }
void SpinCounter::ResetSizeToDefault() { Call(&Core::ResetSizeToDefault); }

void SpinCounter::resetMaximumLimit() { Reset("MaximumLimit"); }
void SpinCounter::resetAllowNegNumbers() { Reset("AllowNegNumbers"); }
void SpinCounter::resetCounterValue() { Reset("CounterValue"); }
void SpinCounter::resetControlHandedness() { Reset("ControlHandedness"); }
void SpinCounter::resetFont() { Reset("Font"); }

bool SpinCounter::ReadingCreates(std::string_view property) const {
  return property == "CounterValue" && !control().HasCounterValue();
}

}  // namespace tactix::qt
