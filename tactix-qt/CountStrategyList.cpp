#include "tactix-qt/CountStrategyList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

CountStrategyList::CountStrategyList(QWidget* parent) : WidgetOf(parent) {
  Relay(&Core::EventSet::StrategySelectionChanged, &CountStrategyList::StrategySelectionChanged);
}

CountStrategyList::~CountStrategyList() { EndControl(); }

// The row is ListIndex's, and so is the default.
CountStrategyList::CountStrategyPossibilities CountStrategyList::CountStrategy() const {
  return static_cast<CountStrategyPossibilities>(ListIndex());
}
void CountStrategyList::setCountStrategy(CountStrategyPossibilities system) { Call(&Core::CountStrategy, system); }

int CountStrategyList::CountValue(CountStrategyPossibilities forThisCount, int andThisCard) const {
  return Get<int>(&Core::CountValue, forThisCount, andThisCard);
}
void CountStrategyList::InputCountStrategyDescriptions() { Call(&Core::InputCountStrategyDescriptions); }

}  // namespace tactix::qt
