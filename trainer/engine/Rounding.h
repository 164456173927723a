#pragma once

#include <cstdint>

namespace trainer::engine {

/// Division rounded down, whereas the language rounds towards zero. The divisor is positive.
[[nodiscard]] constexpr std::int64_t DividedDown(std::int64_t number, std::int64_t divisor) {
  const std::int64_t quotient = number / divisor;
  return number % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace trainer::engine
