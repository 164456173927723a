#include <gtest/gtest.h>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "trainer/engine/CountSystems.h"

namespace trainer::engine {
namespace {

using tactix::companion::CountSettings;
using tactix::companion::IniStrategyCatalogue;

/// A system that lists offer can be counted, and the other way round.
TEST(CatalogueCountsTest, AgreeWithTheEngine) {
  const IniStrategyCatalogue catalogue(tactix::companion::DefaultStrategies(),
                                       tactix::companion::DefaultStrategiesName);
  for (std::int16_t number = IniStrategyCatalogue::LowestCountNumber;
       number <= IniStrategyCatalogue::HighestCountNumber; ++number) {
    const CountSystem* const system = FindCountSystem(number);
    const CountSettings* const settings = catalogue.CountSettingsOf(number);
    ASSERT_EQ(system != nullptr, settings != nullptr) << number;
    if (!system) continue;
    EXPECT_EQ(catalogue.CountCaptionOf(number), system->name);
    EXPECT_EQ(settings->Level, system->Level()) << system->name;
    EXPECT_EQ(settings->DeckSum, system->DeckSum()) << system->name;
    EXPECT_EQ(settings->Start, system->start) << system->name;
    EXPECT_EQ(settings->Divisor, static_cast<int>(system->per)) << system->name;
  }
  for (const CountSystem& system : CountSystems()) {
    EXPECT_GE(system.number, IniStrategyCatalogue::LowestCountNumber);
    EXPECT_LE(system.number, IniStrategyCatalogue::HighestCountNumber);
  }
}

}  // namespace
}  // namespace trainer::engine
