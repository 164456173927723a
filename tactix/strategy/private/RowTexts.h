#pragma once

#include <string_view>

namespace tactix {

/// What lists show for a strategy that cannot be used; a pick of such a row is refused.
inline constexpr std::string_view NotPresentText = "Not Present";
/// What lists show for the seat that nobody plays.
inline constexpr std::string_view EmptySeatText = "Empty Seat";
/// What a list shows while no row is selected.
inline constexpr std::string_view SelectAStrategyText = "Select a Strategy";
/// What a count strategy list shows until it is first filled.
inline constexpr std::string_view SelectACountStrategyText = "Select a Count Strategy";

/// The number of the seat that nobody plays.
inline constexpr int EmptySeat = -1;

/// What a list shows for a number without a strategy that can be used.
constexpr std::string_view UnusableRowText(int strategy) {
  return strategy == EmptySeat ? EmptySeatText : NotPresentText;
}

}  // namespace tactix
