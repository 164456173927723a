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

void DefaultEdition::CreateWith(Factory factory) { TheFactory() = std::move(factory); }

ObjectRef DefaultEdition::Create() {
  const Factory create = TheFactory();  // a copy: it may set another factory while it runs
  ObjectRef edition = create ? create() : nullptr;
  if (!edition) throw Error(Error::ObjectNotSet);
  return edition;
}

}  // namespace tactix
