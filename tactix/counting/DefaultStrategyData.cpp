#include "tactix/counting/DefaultStrategyData.h"

#include "tactix/platform/FactoryHook.h"

namespace tactix {

namespace {

FactoryHook<ObjectRef>& TheHook() {
  static FactoryHook<ObjectRef> hook("a strategy data block", "tactix::DefaultStrategyData::CreateWith");
  return hook;
}

}  // namespace

void DefaultStrategyData::CreateWith(Factory factory) { TheHook().CreateWith(std::move(factory)); }

ObjectRef DefaultStrategyData::Create() { return TheHook().Create(); }

}  // namespace tactix
