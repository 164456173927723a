#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "tactix/platform/Export.h"

namespace tactix {

/// What a count strategy list knows of one count system.
struct TACTIX_EXPORT CountStrategyRecord {
  std::string Name;
  std::string Description;
  /// The two texts were shifted in the catalogue (see UnshiftStrategyText).
  bool Enciphered = false;
  /// The record's three spare numbers, neither filled nor read.
  std::array<std::int16_t, 3> Spare{};
  std::int16_t CountSetting1 = 0;
  std::int16_t CountSetting2 = 0;
  bool Listed = false;
  std::int16_t CountSetting3 = 0;
  std::int16_t CountSetting4 = 0;

  /// A card point value, 0 by default; fails with 9 unless the first subscript is 1 to 4 and the second 0 to 13.
  std::int16_t PointValues(std::int32_t first, std::int32_t second) const;
  void PointValues(std::int32_t first, std::int32_t second, std::int16_t value);

 private:
  static constexpr std::int32_t LastFirst = 4;
  static constexpr std::int32_t LastSecond = 13;
  static std::size_t PlaceOf(std::int32_t first, std::int32_t second);

  std::array<std::int16_t, LastFirst*(LastSecond + 1)> pointValues_{};
};

}  // namespace tactix
