#include "tactix/counting/DefaultStrategyData.h"

#include <utility>

#include "tactix/platform/Error.h"

namespace tactix {

namespace {

DefaultStrategyData::Factory& TheFactory() {
  static DefaultStrategyData::Factory factory;
  return factory;
}

}  // namespace

// The old factory is destroyed after the new one is in place, because destroying it may run host code.
void DefaultStrategyData::CreateWith(Factory factory) { std::swap(TheFactory(), factory); }

ObjectRef DefaultStrategyData::Create() {
  const Factory create = TheFactory();  // a copy: it may set another factory while it runs
  ObjectRef block = create ? create() : nullptr;
  if (!block) throw Error(Error::ObjectNotSet);
  return block;
}

}  // namespace tactix
