#include "tactix-qt/CountValueSelector.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

CountValueSelector::CountValueSelector(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Relay(&Core::EventSet::CountValueSelected, &CountValueSelector::CountValueSelected);
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

}  // namespace tactix::qt
