#pragma once

#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix::companion {

/// Fills the hooks through which controls create, on first use, what a host has not supplied: the strategy catalogue
/// becomes an IniStrategyCatalogue over DefaultStrategies(), the decision toolbars' edition an Edition, a spin
/// counter's number a CounterValue, the data panel's own block a StrategyDataBlock. Call it once before the first
/// control is used, and before setting hooks of your own, which it would replace. Calling it again changes nothing;
/// what was created stays.
TACTIX_EXPORT void Install();

/// The strategy file that is built into the library, as a text: the default catalogue and an example to start from.
TACTIX_EXPORT std::string_view DefaultStrategies();
/// What errors call that file.
inline constexpr std::string_view DefaultStrategiesName = "Strategies.ini";

}  // namespace tactix::companion
