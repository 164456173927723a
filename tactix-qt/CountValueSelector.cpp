#include "tactix-qt/CountValueSelector.h"

#include <memory>
#include <utility>

namespace tactix::qt {

CountValueSelector::CountValueSelector(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::CountValueSelector>(ItsSite());
  selector_ = control.get();
  Own(std::move(control));
  selector_->Events.CountValueSelected.Connect([this](const std::int32_t& value) { Q_EMIT CountValueSelected(value); });
}

CountValueSelector::~CountValueSelector() { EndControl(); }

CountValueSelector::theCardValuePossibilities CountValueSelector::CardValue() const {
  return static_cast<theCardValuePossibilities>(selector_->CardValue().Value());
}
void CountValueSelector::CardValue(theCardValuePossibilities card) {
  selector_->CardValue(static_cast<std::int32_t>(card));
}
CountValueSelector::CardPointValuePossibilities CountValueSelector::PointValue() const {
  return static_cast<CardPointValuePossibilities>(selector_->PointValue().Value());
}
void CountValueSelector::PointValue(CardPointValuePossibilities value) {
  selector_->PointValue(static_cast<std::int32_t>(value));
}

}  // namespace tactix::qt
