#include "tactix/counting/CounterValueObject.h"

#include <utility>

#include "tactix/platform/Error.h"

namespace tactix {

namespace {

CounterValueObject::Factory& TheFactory() {
  static CounterValueObject::Factory factory;
  return factory;
}

}  // namespace

CounterValueObject::~CounterValueObject() = default;

// The old factory is destroyed after the new one is in place, because destroying it may run host code.
void CounterValueObject::CreateWith(Factory factory) { std::swap(TheFactory(), factory); }

std::shared_ptr<CounterValueObject> CounterValueObject::Create() {
  const Factory create = TheFactory();  // a copy: it may set another factory while it runs
  std::shared_ptr<CounterValueObject> value = create ? create() : nullptr;
  if (!value) throw Error(Error::ObjectNotSet);
  return value;
}

}  // namespace tactix
