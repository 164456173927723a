#pragma once

#include <cstdint>

#include "tactix/platform/Variant.h"

namespace tactix::qt {

/// Qt's integers as a control's 16-bit ones; fails with 6 out of range.
inline std::int16_t ToInt16(int value) { return Variant(std::int32_t{value}).ToInteger(); }

}  // namespace tactix::qt
