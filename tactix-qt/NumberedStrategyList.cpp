#include "tactix-qt/NumberedStrategyList.h"

#include <utility>

#include "tactix-qt/Integers.h"

namespace tactix::qt {

NumberedStrategyList::~NumberedStrategyList() { EndControl(); }

void NumberedStrategyList::Take(std::unique_ptr<tactix::NumberedStrategyList> list) {
  list_ = list.get();
  StrategyListControl::Take(std::move(list));
  list_->Events.StrategySelectionChanged.Connect(
      [this](const std::int32_t& strategy) { Q_EMIT StrategySelectionChanged(strategy); });
}

int NumberedStrategyList::SelectThisStrategy() const { return list_->SelectThisStrategy(); }
void NumberedStrategyList::SelectThisStrategy(int strategy) { list_->SelectThisStrategy(ToInt16(strategy)); }

}  // namespace tactix::qt
