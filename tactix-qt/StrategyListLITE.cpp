#include "tactix-qt/StrategyListLITE.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

StrategyListLITE::StrategyListLITE(QWidget* parent) : WidgetOf(parent) {}

StrategyListLITE::~StrategyListLITE() { EndControl(); }

void StrategyListLITE::InputPlayingStrategyDescriptions() { Call(&Core::InputPlayingStrategyDescriptions); }

}  // namespace tactix::qt
