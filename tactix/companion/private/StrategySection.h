#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "tactix/companion/IniFile.h"

namespace tactix::companion {

/// What the sections of all kinds of strategies have: the keys `caption`, `note`, `present` and `shifted`.
struct StrategySection {
  std::string caption;  ///< never shifted
  std::string texts;    ///< "note,caption,", how every description begins: shifted if the section says so
  bool present = true;
  bool shifted = false;
  int captionLine = 0;
};

/// Refuses keys other than those four and `ownKeys`, the keys of its kind of strategy.
StrategySection ReadStrategySection(const IniFile& file, const IniSection& section,
                                    std::initializer_list<std::string_view> ownKeys);

/// The whole description: the section's texts, then `ending`, which depends on the kind of strategy. Refuses a
/// description that is too long for a list.
std::string DescriptionOf(const IniFile& file, const StrategySection& section, std::string_view ending);

}  // namespace tactix::companion
