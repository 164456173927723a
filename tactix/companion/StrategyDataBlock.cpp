#include "tactix/companion/StrategyDataBlock.h"

#include "tactix/platform/Error.h"

namespace tactix::companion {

void StrategyDataBlock::Put(std::string_view name, const Variant& value) {
  if (name != DefaultPropertyName) return TableObject::Put(name, value);
  const ObjectRef source = value.ToObject();
  if (!source) throw Error(Error::ObjectNotSet);
  StrategyDataBlock copy;
  for (const ObjectProperties::Row& field : Properties().Rows()) field.set(copy, source->Get(field.name));
  *this = copy;
}

const ObjectProperties& StrategyDataBlock::Properties() const {
  using Self = StrategyDataBlock;
  static const ObjectProperties table = ObjectProperties()
                                            .Field("RunningCount", &Self::RunningCount)
                                            .Field("TrueCount", &Self::TrueCount)
                                            .Field("AcesDealt", &Self::AcesDealt)
                                            .Field("FivesDealt", &Self::FivesDealt)
                                            .Field("TensDealt", &Self::TensDealt)
                                            .Field("BiasRating", &Self::BiasRating)
                                            .Field("ClumpType", &Self::ClumpType)
                                            .Field("CoreCardsDealt", &Self::CoreCardsDealt)
                                            .Field("TargetRating", &Self::TargetRating)
                                            .Field("DealerBreakPercent", &Self::DealerBreakPercent)
                                            .Field("AdjustedCount", &Self::AdjustedCount)
                                            .Field("DealerStiffHands", &Self::DealerStiffHands)
                                            .Field("DealerStrongHands", &Self::DealerStrongHands)
                                            .Field("DealerEndingTotal", &Self::DealerEndingTotal);
  return table;
}

}  // namespace tactix::companion
