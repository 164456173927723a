#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/platform/PropertyTable.h"
#include "tactix/strategy/RowTexts.h"

namespace tactix {

enum class AtTheEnd { ReleaseTheCollection, KeepTheCollection };

/// In how many bits ListIndex works out the row of a number: in sixteen, 32767 overflows (6).
enum class RowWidth { SixteenBits, ThirtyTwoBits };

/// What a strategy list does differently from the others, apart from how it fills and what it reports.
struct StrategyListRules {
  std::string_view boxName = "StrategyListBox";
  std::string_view text = SelectAStrategyText;
  std::string_view toolTip = {};
  /// Empty for the platform's.
  std::string_view fontName = "Comic Sans MS";
  /// Rows past this one are shown, but never reported.
  std::int32_t highestReportedRow;
  OnFailure failedResize = OnFailure::PassOver;
  RowWidth rowWidth = RowWidth::ThirtyTwoBits;
  AtTheEnd atTheEnd = AtTheEnd::KeepTheCollection;
};

}  // namespace tactix
