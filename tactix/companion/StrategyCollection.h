#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"

namespace tactix::companion {

/// The strategies of an application, in the order in which they were added: what a host hands to the
/// UseThisStrategyList of a strategy list. By name: property `Count`, methods `Item` and `Add`.
class TACTIX_EXPORT StrategyCollection : public Object {
 public:
  /// How many there are. Fails with 6 above 32,767.
  std::int16_t Count() const;
  /// The first is 1. An index outside 1 ... Count fails with 9.
  const Variant& Item(std::int32_t index) const;
  /// Adds a text or an object at the end. A null object fails with 91, anything else with 13.
  void Add(Variant strategy);

  Variant Get(std::string_view name) override;
  /// `Item(index)` and `Add(strategy)`; any other number of arguments fails with 5.
  Variant Call(std::string_view name, std::span<Variant> arguments) override;

 private:
  std::vector<Variant> items_;
};

}  // namespace tactix::companion
