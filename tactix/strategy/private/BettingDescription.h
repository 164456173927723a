#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tactix {

/// The row text of a betting strategy's description: "note,caption,1", or "note,caption,0" for one that is not present;
/// a "\" anywhere after the second comma marks shifted texts. Nothing where the description has no comma at all: the
/// strategy then gets no row. Fails with 13 where the character after the second comma is no flag, with 5 where a
/// shifted code is below 10.
std::optional<std::string> BettingRowText(std::string_view description, int strategy);

}  // namespace tactix
