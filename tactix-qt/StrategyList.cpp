#include "tactix-qt/StrategyList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

StrategyList::StrategyList(QWidget* parent) : WidgetOf(parent) {}

StrategyList::~StrategyList() { EndControl(); }

void StrategyList::InputPlayingStrategyDescriptions() { Call(&Core::InputPlayingStrategyDescriptions); }

}  // namespace tactix::qt
