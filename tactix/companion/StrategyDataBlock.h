#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/platform/TableObject.h"

namespace tactix::companion {

/// The statistics of a shoe, which the strategy data panel asks for by name. The host fills it. Plain values without
/// validation; in a new block all are 0.
///
/// Its default property (DefaultPropertyName) stands for the whole block: assigning an object to it copies every field,
/// or none where one is missing or does not convert.
class TACTIX_EXPORT StrategyDataBlock final : public TableObject {
 public:
  std::int16_t RunningCount = 0;
  std::int16_t TrueCount = 0;
  std::int16_t AcesDealt = 0;
  std::int16_t FivesDealt = 0;
  std::int16_t TensDealt = 0;
  std::int32_t BiasRating = 0;
  std::int32_t ClumpType = 0;
  std::int16_t CoreCardsDealt = 0;
  std::int32_t TargetRating = 0;
  /// In percent: 28.3 is 28.3 %.
  float DealerBreakPercent = 0;
  std::int16_t AdjustedCount = 0;
  /// Their quotient, strong by stiff, is the dealer's strength.
  float DealerStiffHands = 0;
  float DealerStrongHands = 0;
  float DealerEndingTotal = 0;

  /// A value that does not convert fails with its own code and leaves the old one.
  void Put(std::string_view name, const Variant& value) override;

 protected:
  const ObjectProperties& Properties() const override;
};

}  // namespace tactix::companion
