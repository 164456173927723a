#pragma once

#include "tactix/companion/Companion.h"
#include "tactix/counting/CounterValueObject.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::tests {

/// Empties the hooks through which controls create what a host has not supplied, at its begin and at its end.
class EmptyHooks {
 public:
  EmptyHooks() { Empty(); }
  ~EmptyHooks() { Empty(); }
  EmptyHooks(const EmptyHooks&) = delete;
  EmptyHooks& operator=(const EmptyHooks&) = delete;

  /// Fills them with the library's own.
  void Install() { companion::Install(); }

 private:
  static void Empty() {
    StrategyListData::CreateCatalogueWith(nullptr);
    StrategyListData::UseCatalogue(nullptr);
    DefaultEdition::CreateWith(nullptr);
    DefaultStrategyData::CreateWith(nullptr);
    CounterValueObject::CreateWith(nullptr);
  }
};

}  // namespace tactix::tests
