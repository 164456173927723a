#pragma once

#include <memory>
#include <string_view>

#include "tests/support/PropertyObject.h"

namespace tactix::tests {

/// The fields that the strategy data panel reads, in its order.
inline constexpr std::string_view DataFields[] = {
    "RunningCount",  "TrueCount",        "AcesDealt",         "FivesDealt",        "TensDealt",
    "BiasRating",    "ClumpType",        "CoreCardsDealt",    "TargetRating",      "DealerBreakPercent",
    "AdjustedCount", "DealerStiffHands", "DealerStrongHands", "DealerEndingTotal",
};

/// A host's data block with all of them, as numbers that tell them apart.
inline std::shared_ptr<PropertyObject> FullDataBlock() {
  auto block = std::make_shared<PropertyObject>();
  block->Set("RunningCount", -12);
  block->Set("TrueCount", 3);
  block->Set("AcesDealt", 4);
  block->Set("FivesDealt", 5);
  block->Set("TensDealt", 16);
  block->Set("BiasRating", 70000);
  block->Set("ClumpType", 8);
  block->Set("CoreCardsDealt", 9);
  block->Set("TargetRating", -80000);
  block->Set("DealerBreakPercent", 28.26F);
  block->Set("AdjustedCount", -2);
  block->Set("DealerStiffHands", 8.0F);
  block->Set("DealerStrongHands", 3.0F);
  block->Set("DealerEndingTotal", 8.5F);
  return block;
}

}  // namespace tactix::tests
