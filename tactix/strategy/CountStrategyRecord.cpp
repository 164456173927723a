#include "tactix/strategy/CountStrategyRecord.h"

#include "tactix/platform/Error.h"

namespace tactix {

std::size_t CountStrategyRecord::PlaceOf(std::int32_t first, std::int32_t second) {
  if (first < 1 || first > LastFirst || second < 0 || second > LastSecond) throw Error(Error::SubscriptOutOfRange);
  return static_cast<std::size_t>((first - 1) * (LastSecond + 1) + second);
}

std::int16_t CountStrategyRecord::PointValues(std::int32_t first, std::int32_t second) const {
  return pointValues_[PlaceOf(first, second)];
}

void CountStrategyRecord::PointValues(std::int32_t first, std::int32_t second, std::int16_t value) {
  pointValues_[PlaceOf(first, second)] = value;
}

}  // namespace tactix
