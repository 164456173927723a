#include "tactix-qt/StrategyList.h"

#include <memory>
#include <utility>

namespace tactix::qt {

StrategyList::StrategyList(QWidget* parent) : NumberedStrategyList(parent) {
  auto control = std::make_unique<tactix::StrategyList>(ItsSite());
  list_ = control.get();
  Take(std::move(control));
}

void StrategyList::InputPlayingStrategyDescriptions() { list_->InputPlayingStrategyDescriptions(); }

}  // namespace tactix::qt
