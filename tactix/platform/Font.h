#pragma once

#include <string>

namespace tactix {

/// A font as controls and their saved properties know it. An empty name and a size of 0 leave the choice to the
/// container.
struct Font {
  std::string Name;
  float Size = 0;  ///< in points
  bool Bold = false;
  bool Italic = false;

  bool operator==(const Font&) const = default;
};

}  // namespace tactix
