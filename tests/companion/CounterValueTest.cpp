#include "tactix/companion/CounterValue.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::CounterValue;

TEST(CounterValueTest, IsZeroAtFirstAndTakesAnyNumber) {
  CounterValue value;
  EXPECT_EQ(value.Value(), 0);
  for (const std::int16_t number : {std::int16_t{32767}, std::int16_t{-32768}, std::int16_t{7}}) {
    value.Value(number);
    EXPECT_EQ(value.Value(), number);
  }
}

struct StepRow {
  const char* name;
  void (*step)(CounterValue&);
  std::int16_t before;
  std::int16_t after;
};

class CounterStepTest : public testing::TestWithParam<StepRow> {};

TEST_P(CounterStepTest, Steps) {
  CounterValue value;
  value.Value(GetParam().before);
  GetParam().step(value);
  EXPECT_EQ(value.Value(), GetParam().after);
}

template <std::int16_t limit>
void Up(CounterValue& value) {
  value.StepUpToLimit(limit);
}
template <std::int16_t limit>
void Wrapping(CounterValue& value) {
  value.StepDownWrapping(limit);
}
void Signed(CounterValue& value) { value.StepDownSigned(); }
void ToZero(CounterValue& value) { value.StepDownToZero(); }

INSTANTIATE_TEST_SUITE_P(
    Up, CounterStepTest,
    testing::Values(StepRow{"FromZero", Up<999>, 0, 1}, StepRow{"ToTheLimit", Up<999>, 998, 999},
                    StepRow{"AtTheLimit", Up<999>, 999, 999}, StepRow{"AboveTheLimit", Up<999>, 1500, 1500},
                    StepRow{"BelowZero", Up<999>, -5, -4}, StepRow{"LowestThereIs", Up<999>, -32768, -32767},
                    StepRow{"AtTheHighestThereIs", Up<32767>, 32767, 32767},
                    StepRow{"ToTheHighestThereIs", Up<32767>, 32766, 32767}, StepRow{"NegativeLimit", Up<-3>, 0, 0},
                    StepRow{"ToANegativeLimit", Up<-3>, -4, -3}),
    RowName());
INSTANTIATE_TEST_SUITE_P(DownWrapping, CounterStepTest,
                         testing::Values(StepRow{"FromTen", Wrapping<999>, 10, 9},
                                         StepRow{"ToZero", Wrapping<999>, 1, 0},
                                         StepRow{"FromZeroToTheLimit", Wrapping<999>, 0, 999},
                                         StepRow{"OtherLimit", Wrapping<52>, 0, 52},
                                         StepRow{"FromBelowZero", Wrapping<999>, -5, 999},
                                         StepRow{"FromTheLowestThereIs", Wrapping<999>, -32768, 999},
                                         StepRow{"AboveTheLimit", Wrapping<52>, 100, 99}),
                         RowName());
INSTANTIATE_TEST_SUITE_P(DownSigned, CounterStepTest,
                         testing::Values(StepRow{"FromOne", Signed, 1, 0}, StepRow{"FromZero", Signed, 0, -1},
                                         StepRow{"ToTheEnd", Signed, -998, -999},
                                         StepRow{"AtTheEnd", Signed, -999, -999},
                                         StepRow{"BeyondTheEnd", Signed, -1500, -1500},
                                         StepRow{"LowestThereIs", Signed, -32768, -32768}),
                         RowName());
INSTANTIATE_TEST_SUITE_P(DownToZero, CounterStepTest,
                         testing::Values(StepRow{"FromTwo", ToZero, 2, 1}, StepRow{"FromOne", ToZero, 1, 0},
                                         StepRow{"AtZero", ToZero, 0, 0}, StepRow{"BelowZero", ToZero, -5, -5},
                                         StepRow{"LowestThereIs", ToZero, -32768, -32768},
                                         StepRow{"HighestThereIs", ToZero, 32767, 32766}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
