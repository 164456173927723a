#pragma once

#include <string_view>

#include "tactix/platform/Variant.h"

namespace tactix {

/// A description's field as a flag; fails with 13 where it is not one.
inline bool FlagOf(std::string_view field) {
  // Fast path: nearly every description spells its flags so.
  if (field == "True") return true;
  if (field == "False") return false;
  if (field.size() == 1 && field.front() >= '0' && field.front() <= '9') return field.front() != '0';
  return Variant(field).ToBoolean();
}

}  // namespace tactix
