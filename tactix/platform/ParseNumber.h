#pragma once

#include <string_view>

namespace tactix {

/// The number that a text spells: sign, digits, "." and exponent, or a 32-bit pattern behind "&H". Blanks around it do
/// not count. Fails with 13 where it spells none, with 6 where it is beyond a double's range or over 32 bits.
double ParseNumber(std::string_view text);

}  // namespace tactix
