#pragma once

#include <cstdint>

namespace tactix {

/// How the controls flash an element: in each round it is off for one step (hidden, or on a toolbar disabled) and on
/// for another. In milliseconds.
inline constexpr std::int32_t FlashRounds = 4;
inline constexpr std::int32_t FlashStep = 200;
inline constexpr std::int32_t FlashDuration = FlashRounds * 2 * FlashStep;

}  // namespace tactix
