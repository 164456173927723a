#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tactix {

/// The row text of a playing strategy's description, padded as the description buffer pads it:
/// "note,caption,shifted present". Nothing where it has no comma at all: such a description gets no row. Fails with 13
/// where a flag is none, and with 5 where the last field is not closed by a blank.
std::optional<std::string> PlayingRowText(std::string_view description, int strategy);

}  // namespace tactix
