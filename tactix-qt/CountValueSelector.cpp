#include "tactix-qt/CountValueSelector.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

CountValueSelector::CountValueSelector(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Relay(&Core::EventSet::CountValueSelected, &CountValueSelector::CountValueSelected);
  control().Events.CountValueSelected.Connect([this](std::int32_t value) {
    if (value < LowestPointValue || value > HighestPointValue) return;
    Q_EMIT countValuePicked(static_cast<CardPointValuePossibilities>(value));
  });
}

CountValueSelector::~CountValueSelector() { EndControl(); }

CountValueSelector::theCardValuePossibilities CountValueSelector::CardValue() const {
  return Get<theCardValuePossibilities>(&Core::CardValue);
}
CountValueSelector::CardPointValuePossibilities CountValueSelector::PointValue() const {
  return Get<CardPointValuePossibilities>(&Core::PointValue);
}

void CountValueSelector::setCardValue(theCardValuePossibilities card) { Call(&Core::CardValue, card); }
void CountValueSelector::setPointValue(CardPointValuePossibilities value) { Call(&Core::PointValue, value); }

void CountValueSelector::resetCardValue() { Reset("CardValue"); }
void CountValueSelector::resetPointValue() { Reset("PointValue", ResetBy::Restoring); }

}  // namespace tactix::qt
