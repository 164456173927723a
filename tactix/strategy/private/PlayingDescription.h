#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tactix {

// A playing strategy's description, padded as the description buffer pads it: "note,caption,shifted present". Both fail
// with 13 where a flag is not one, and with 5 where the last field is not closed by a blank or a shifted code is below
// 10.

/// The row text in a playing list. Nothing where the description has no comma at all: the strategy then gets no row.
std::optional<std::string> PlayingRowText(std::string_view description, int strategy);

/// The row text in a compact list, which calls an unusable seat an empty one. Fails with 5 where there is no comma.
std::string CompactRowText(std::string_view description, int strategy);

}  // namespace tactix
