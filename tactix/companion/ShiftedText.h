#pragma once

#include <string>
#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix::companion {

/// Each character's code raised by 10: the form that UnshiftStrategyText turns back. Fails with 5, and a description
/// that says why, for a text that would not come back out of a strategy description: one that is longer than 65
/// characters or not UTF-8, or one with a character that would become a comma (the quotation mark), a blank (code 22)
/// or no character at all.
TACTIX_EXPORT std::string ShiftStrategyText(std::string_view text);

}  // namespace tactix::companion
