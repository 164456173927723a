#include "tactix-qt/BetStrategyList.h"

#include <memory>
#include <utility>

namespace tactix::qt {

BetStrategyList::BetStrategyList(QWidget* parent) : NumberedStrategyList(parent) {
  auto control = std::make_unique<tactix::BetStrategyList>(ItsSite());
  list_ = control.get();
  Take(std::move(control));
}

void BetStrategyList::InputBettingStrategyDescriptions() { list_->InputBettingStrategyDescriptions(); }

}  // namespace tactix::qt
