#pragma once

#include <string_view>

namespace tactix {

/// The number that a text spells: sign, digits, "." and exponent, or up to 32 bits in hexadecimal after "&H". Blanks
/// around it are ignored. Fails with 13 when the text is no number, with 6 when the number is beyond a double's range
/// or has more than 32 bits.
double ParseNumber(std::string_view text);

}  // namespace tactix
