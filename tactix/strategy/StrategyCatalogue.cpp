#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix {

StrategyCatalogue::~StrategyCatalogue() = default;

std::string StrategyCatalogue::DescribeBettingStrategy(std::int16_t&) { return {}; }

std::string StrategyCatalogue::DescribePlayingStrategy(std::int16_t) { return {}; }

std::string StrategyCatalogue::DescribeCountSystem(std::int16_t) { return {}; }

void StrategyCatalogue::AttachCountStrategyStore(const ObjectRef&) {}

}  // namespace tactix
