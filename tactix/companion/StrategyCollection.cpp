#include "tactix/companion/StrategyCollection.h"

#include <limits>
#include <utility>

#include "tactix/platform/Error.h"

namespace tactix::companion {

std::int16_t StrategyCollection::Count() const {
  if (items_.size() > std::numeric_limits<std::int16_t>::max()) throw Error(Error::Overflow);
  return static_cast<std::int16_t>(items_.size());
}

const Variant& StrategyCollection::Item(std::int32_t index) const {
  if (index < 1 || static_cast<std::size_t>(index) > items_.size()) throw Error(Error::SubscriptOutOfRange);
  return items_[static_cast<std::size_t>(index) - 1];
}

void StrategyCollection::Add(Variant strategy) {
  if (strategy.Type() != VariantType::Text) {
    if (strategy.Type() != VariantType::Object) throw Error(Error::TypeMismatch);
    if (!strategy.ToObject()) throw Error(Error::ObjectNotSet);
  }
  items_.push_back(std::move(strategy));
}

Variant StrategyCollection::Get(std::string_view name) {
  if (SameName(name, "Count")) return Count();
  return Object::Get(name);
}

Variant StrategyCollection::Call(std::string_view name, std::span<Variant> arguments) {
  const bool item = SameName(name, "Item");
  if (!item && !SameName(name, "Add")) return Object::Call(name, arguments);
  if (arguments.size() != 1) throw Error(Error::InvalidProcedureCall);
  if (item) return Item(arguments[0].ToLong());
  Add(arguments[0]);
  return {};
}

}  // namespace tactix::companion
