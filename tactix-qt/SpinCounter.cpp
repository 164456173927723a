#include "tactix-qt/SpinCounter.h"

#include <memory>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

SpinCounter::SpinCounter(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::SpinCounter>(ItsSite());
  counter_ = control.get();
  Own(std::move(control));
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  counter_->Events.CounterValueHasChanged.Connect(
      [this](const std::int16_t& value) { Q_EMIT CounterValueHasChanged(value); });
}

SpinCounter::~SpinCounter() { EndControl(); }

int SpinCounter::MaximumLimit() const { return counter_->MaximumLimit(); }
void SpinCounter::MaximumLimit(int limit) { counter_->MaximumLimit(ToInt16(limit)); }
bool SpinCounter::NumberWrap() const { return counter_->NumberWrap(); }
void SpinCounter::NumberWrap(bool wrap) { counter_->NumberWrap(wrap); }
bool SpinCounter::AllowNegNumbers() const { return counter_->AllowNegNumbers(); }
void SpinCounter::AllowNegNumbers(bool allow) { counter_->AllowNegNumbers(allow); }
int SpinCounter::CounterValue() const { return counter_->CounterValue(); }
void SpinCounter::CounterValue(int value) { counter_->CounterValue(ToInt16(value)); }
SpinCounter::SpinCounterPossibilities SpinCounter::ControlHandedness() const {
  return static_cast<SpinCounterPossibilities>(counter_->ControlHandedness().Value());
}
void SpinCounter::ControlHandedness(SpinCounterPossibilities handedness) {
  counter_->ControlHandedness(static_cast<std::int32_t>(handedness));
}
QFont SpinCounter::Font() const { return ToQt(counter_->Font()); }
void SpinCounter::Font(const QFont& font) { counter_->Font(FromQt(font)); }
bool SpinCounter::UseDefaultSize() const { return counter_->UseDefaultSize(); }
void SpinCounter::UseDefaultSize(bool use) { counter_->UseDefaultSize(use); }
void SpinCounter::ResetSizeToDefault() { counter_->ResetSizeToDefault(); }

}  // namespace tactix::qt
