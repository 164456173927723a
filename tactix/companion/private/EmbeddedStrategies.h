#pragma once

#include <string_view>

namespace tactix::companion {

/// The text of Strategies.ini, built into the library.
std::string_view EmbeddedStrategies();

}  // namespace tactix::companion
