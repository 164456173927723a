#include "tactix/platform/TableObject.h"

namespace tactix {

Variant TableObject::Get(std::string_view name) {
  const ObjectProperties::Row* const row = Properties().Find(name);
  return row && row->get ? row->get(*this) : Object::Get(name);
}

void TableObject::Put(std::string_view name, const Variant& value) {
  const ObjectProperties::Row* const row = Properties().Find(name);
  return row && row->set ? row->set(*this, value) : Object::Put(name, value);
}

Variant TableObject::Call(std::string_view name, std::span<Variant> arguments) {
  const ObjectMethods::Row* const row = Methods().Find(name);
  return row ? row->call(*this, arguments) : Object::Call(name, arguments);
}

const ObjectProperties& TableObject::Properties() const {
  static const ObjectProperties none;
  return none;
}

const ObjectMethods& TableObject::Methods() const {
  static const ObjectMethods none;
  return none;
}

}  // namespace tactix
