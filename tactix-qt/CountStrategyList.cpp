#include "tactix-qt/CountStrategyList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

CountStrategyList::CountStrategyList(QWidget* parent) : WidgetOf(parent) {
  Relay(&Core::EventSet::StrategySelectionChanged, &CountStrategyList::StrategySelectionChanged);
  control().Events.StrategySelectionChanged.Connect([this](std::int16_t, const std::string& text) {
    const ListBox& box = control().Children.StrategyListBox;
    const std::int32_t row = box.ListIndex();
    if (row < 0) return;
    // A filled list knows each row's system; the rows that a new one is designed with stand in the systems' order.
    const std::int32_t known = box.ItemData(row);
    const std::int32_t system = known != 0 ? known : row + LowestCardCountIndex;
    Q_EMIT countSystemPicked(static_cast<CountStrategyPossibilities>(system), ToQt(text));
  });
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

void CountStrategyList::resetCountStrategy() { Reset("CountStrategy"); }

}  // namespace tactix::qt
