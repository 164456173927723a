#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/platform/PropertyTable.h"
#include "tactix/strategy/private/RowTexts.h"

namespace tactix {

/// Whether a list lets go of the host's collection as soon as it is terminated, or when it is destroyed.
enum class AtTheEnd { ReleaseTheCollection, KeepTheCollection };

/// The width of the numbers with which ListIndex works out a row: in 16 bits 32767 + 1 overflows, which fails with 6.
enum class RowWidth { SixteenBits, ThirtyTwoBits };

/// What a strategy list does differently from the others, apart from how it fills and what it reports.
struct StrategyListRules {
  std::string_view boxName = "StrategyListBox";
  std::string_view text = SelectAStrategyText;
  std::string_view toolTip = {};
  /// Empty for the platform's default font.
  std::string_view fontName = "Comic Sans MS";
  /// Rows past this one are shown, but never reported.
  std::int32_t highestReportedRow;
  OnFailure failedResize = OnFailure::PassOver;
  RowWidth rowWidth = RowWidth::ThirtyTwoBits;
  AtTheEnd atTheEnd = AtTheEnd::KeepTheCollection;
};

}  // namespace tactix
