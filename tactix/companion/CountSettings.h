#pragma once

#include <string>

#include "tactix/companion/IniFile.h"
#include "tactix/platform/Export.h"

namespace tactix::companion {

/// What a host must know of a count system to keep and read its count, apart from the points of the cards. Descriptions
/// carry it as four whole numbers in this order.
struct CountSettings {
  int Level = 1;     ///< the highest points of a card without their sign, rounded up
  int DeckSum = 0;   ///< the points of a whole deck; 0 in a balanced system
  int Start = 0;     ///< the running count of a fresh shoe, for each of its decks
  int Divisor = 52;  ///< true count: running count per so many cards left; 0 if the running count is used as it is

  bool operator==(const CountSettings&) const = default;
};

/// Reads the keys `level`, `deck-sum`, `start` and `divisor`, each of which may be left out.
TACTIX_EXPORT CountSettings ReadCountSettings(const IniFile& file, const IniSection& section);

/// As a description ends: "1 0 0 52 ", with exactly one blank after the last. The count strategy list ends its fill at
/// a description that has none there, or a second one.
TACTIX_EXPORT std::string TextOf(const CountSettings& settings);

}  // namespace tactix::companion
