#include "tactix/counting/CounterValueObject.h"

#include "tactix/platform/FactoryHook.h"

namespace tactix {

namespace {

FactoryHook<std::shared_ptr<CounterValueObject>>& TheHook() {
  static FactoryHook<std::shared_ptr<CounterValueObject>> hook("a counter value",
                                                               "tactix::CounterValueObject::CreateWith");
  return hook;
}

}  // namespace

CounterValueObject::~CounterValueObject() = default;

void CounterValueObject::CreateWith(Factory factory) { TheHook().CreateWith(std::move(factory)); }

std::shared_ptr<CounterValueObject> CounterValueObject::Create() { return TheHook().Create(); }

}  // namespace tactix
