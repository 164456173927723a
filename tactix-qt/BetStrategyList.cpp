#include "tactix-qt/BetStrategyList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

BetStrategyList::BetStrategyList(QWidget* parent) : WidgetOf(parent) {}

BetStrategyList::~BetStrategyList() { EndControl(); }

void BetStrategyList::InputBettingStrategyDescriptions() { Call(&Core::InputBettingStrategyDescriptions); }

}  // namespace tactix::qt
