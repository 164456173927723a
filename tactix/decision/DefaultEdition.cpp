#include "tactix/decision/DefaultEdition.h"

#include "tactix/platform/FactoryHook.h"

namespace tactix {

namespace {

FactoryHook<ObjectRef>& TheHook() {
  static FactoryHook<ObjectRef> hook("an edition object", "tactix::DefaultEdition::CreateWith");
  return hook;
}

}  // namespace

void DefaultEdition::CreateWith(Factory factory) { TheHook().CreateWith(std::move(factory)); }

ObjectRef DefaultEdition::Create() { return TheHook().Create(); }

}  // namespace tactix
