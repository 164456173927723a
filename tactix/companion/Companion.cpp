#include "tactix/companion/Companion.h"

#include <memory>

#include "tactix/companion/Edition.h"
#include "tactix/companion/EmbeddedStrategies.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::companion {

void Install() {
  StrategyListData::CreateCatalogueWith(
      [] { return std::make_shared<IniStrategyCatalogue>(DefaultStrategies(), DefaultStrategiesName); });
  DefaultEdition::CreateWith([] { return std::make_shared<Edition>(); });
}

std::string_view DefaultStrategies() { return EmbeddedStrategies(); }

}  // namespace tactix::companion
