#include "trainer/engine/Random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <stdexcept>

namespace trainer::engine {
namespace {

TEST(RandomTest, GivesThePublishedReferenceNumbers) {
  Random random(1234567);
  const std::array<std::uint64_t, 5> reference = {6457827717110365317U, 3203168211198807973U, 9817491932198370423U,
                                                  4593380528125082431U, 16408922859458223821U};
  for (const std::uint64_t number : reference) EXPECT_EQ(random.Next(), number);
}

TEST(RandomTest, BelowReachesEveryValueAboutEquallyOften) {
  Random random(1);
  std::array<int, 7> counts = {};
  for (int draw = 0; draw < 70'000; ++draw) ++counts.at(static_cast<std::size_t>(random.Below(7)));
  // Four standard deviations of a fair count are 370.
  for (const int count : counts) EXPECT_NEAR(count, 10'000, 370);
}

TEST(RandomTest, BelowIsFairForABoundThatTheGeneratorsRangeHoldsOnlyOnce) {
  // Two thirds of 2^64: plain remainders would put two draws of three into the lower half.
  const std::uint64_t bound = 0xAAAAAAAAAAAAAAAAU;
  Random random(2);
  int low = 0;
  for (int draw = 0; draw < 10'000; ++draw) {
    const std::uint64_t value = random.Below(bound);
    ASSERT_LT(value, bound);
    if (value < bound / 2) ++low;
  }
  EXPECT_NEAR(low, 5'000, 200);
}

TEST(RandomTest, BelowZeroIsRefused) {
  Random random(1);
  EXPECT_THROW((void)random.Below(0), std::invalid_argument);
}

}  // namespace
}  // namespace trainer::engine
