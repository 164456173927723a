#include "tactix/decision/DefaultEdition.h"

#include <utility>

#include "tactix/platform/Error.h"

namespace tactix {

namespace {

DefaultEdition::Factory& TheFactory() {
  static DefaultEdition::Factory factory;
  return factory;
}

}  // namespace

// The old factory is destroyed after the new one is in place, because destroying it may run host code.
void DefaultEdition::CreateWith(Factory factory) { std::swap(TheFactory(), factory); }

ObjectRef DefaultEdition::Create() {
  const Factory create = TheFactory();  // a copy: it may set another factory while it runs
  ObjectRef edition = create ? create() : nullptr;
  if (!edition) throw Error(Error::ObjectNotSet);
  return edition;
}

}  // namespace tactix
