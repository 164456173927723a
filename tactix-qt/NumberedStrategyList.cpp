#include "tactix-qt/NumberedStrategyList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

NumberedStrategyList::NumberedStrategyList(Maker make, QWidget* parent) : WidgetOf(make, parent) {
  Relay(&Core::EventSet::StrategySelectionChanged, &NumberedStrategyList::StrategySelectionChanged);
}

NumberedStrategyList::~NumberedStrategyList() { EndControl(); }

// The row is ListIndex's, and so is the default.
int NumberedStrategyList::SelectThisStrategy() const { return ListIndex(); }
void NumberedStrategyList::setSelectThisStrategy(int strategy) { Call(&Core::SelectThisStrategy, strategy); }

}  // namespace tactix::qt
