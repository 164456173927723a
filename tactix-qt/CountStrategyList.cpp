#include "tactix-qt/CountStrategyList.h"

#include <memory>
#include <string>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

CountStrategyList::CountStrategyList(QWidget* parent) : StrategyListControl(parent) {
  auto control = std::make_unique<tactix::CountStrategyList>(ItsSite());
  list_ = control.get();
  Take(std::move(control));
  list_->Events.StrategySelectionChanged.Connect([this](const std::int16_t& system, const std::string& description) {
    Q_EMIT StrategySelectionChanged(system, ToQt(description));
  });
}

CountStrategyList::~CountStrategyList() { EndControl(); }

CountStrategyList::CountStrategyPossibilities CountStrategyList::CountStrategy() const {
  return static_cast<CountStrategyPossibilities>(list_->CountStrategy().Value());
}
void CountStrategyList::CountStrategy(CountStrategyPossibilities system) {
  list_->CountStrategy(static_cast<std::int32_t>(system));
}
int CountStrategyList::CountValue(CountStrategyPossibilities forThisCount, int andThisCard) const {
  return list_->CountValue(static_cast<std::int32_t>(forThisCount), ToInt16(andThisCard));
}
void CountStrategyList::InputCountStrategyDescriptions() { list_->InputCountStrategyDescriptions(); }

}  // namespace tactix::qt
