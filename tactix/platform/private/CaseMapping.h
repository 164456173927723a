#pragma once

#include <string>
#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix {

/// A Latin, Greek or Cyrillic letter in upper case, by Unicode's simple mapping: one character for one character, in
/// every language alike. Letters without such a counterpart, as the sharp s, and all other characters stay as they are.
TACTIX_EXPORT char32_t UpperCase(char32_t code);
/// A UTF-8 text in upper case. Malformed bytes stay as they are.
TACTIX_EXPORT std::string UpperCase(std::string_view text);

}  // namespace tactix
