#include "tactix-qt/StrategyListLITE.h"

#include <memory>
#include <utility>

namespace tactix::qt {

StrategyListLITE::StrategyListLITE(QWidget* parent) : NumberedStrategyList(parent) {
  auto control = std::make_unique<tactix::StrategyListLITE>(ItsSite());
  list_ = control.get();
  Take(std::move(control));
}

void StrategyListLITE::InputPlayingStrategyDescriptions() { list_->InputPlayingStrategyDescriptions(); }

}  // namespace tactix::qt
