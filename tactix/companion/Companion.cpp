#include "tactix/companion/Companion.h"

#include <memory>

#include "tactix/companion/CounterValue.h"
#include "tactix/companion/Edition.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/companion/StrategyDataBlock.h"
#include "tactix/companion/private/EmbeddedStrategies.h"
#include "tactix/counting/CounterValueObject.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::companion {

void Install() {
  StrategyListData::CreateCatalogueWith(
      [] { return std::make_shared<IniStrategyCatalogue>(DefaultStrategies(), DefaultStrategiesName); });
  DefaultEdition::CreateWith([] { return std::make_shared<Edition>(); });
  DefaultStrategyData::CreateWith([] { return std::make_shared<StrategyDataBlock>(); });
  CounterValueObject::CreateWith([] { return std::make_shared<CounterValue>(); });
}

std::string_view DefaultStrategies() { return EmbeddedStrategies(); }

}  // namespace tactix::companion
