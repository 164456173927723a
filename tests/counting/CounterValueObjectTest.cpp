#include "tactix/counting/CounterValueObject.h"

#include <gtest/gtest.h>

#include <memory>

#include "tactix/companion/Companion.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/InstalledCounterValues.h"

namespace tactix::tests {
namespace {

TEST(CounterValueObjectTest, AnEmptyHookFails) {
  CounterValueObject::CreateWith(nullptr);
  EXPECT_EQ(ErrorCodeOf([] { return CounterValueObject::Create(); }), 91);
}

TEST(CounterValueObjectTest, AHookThatMakesNoneFails) {
  const InstalledCounterValues none([] { return nullptr; });
  EXPECT_EQ(ErrorCodeOf([] { return CounterValueObject::Create(); }), 91);
}

TEST(CounterValueObjectTest, TheHookMakesANewOneEachTime) {
  const InstalledCounterValues installed;
  const auto first = CounterValueObject::Create();
  EXPECT_EQ(first->Value(), 0);
  EXPECT_NE(CounterValueObject::Create(), first);
}

TEST(CounterValueObjectTest, TheHookMaySetAnotherOne) {
  const InstalledCounterValues installed([] {
    CounterValueObject::CreateWith(nullptr);
    return std::make_shared<companion::CounterValue>();
  });
  EXPECT_NE(CounterValueObject::Create(), nullptr);
  EXPECT_EQ(ErrorCodeOf([] { return CounterValueObject::Create(); }), 91);
}

TEST(CounterValueObjectTest, TheCompanionFillsTheHook) {
  CounterValueObject::CreateWith(nullptr);
  companion::Install();
  const auto value = CounterValueObject::Create();
  value->StepDownWrapping(52);
  EXPECT_EQ(value->Value(), 52);
  CounterValueObject::CreateWith(nullptr);
  StrategyListData::CreateCatalogueWith(nullptr);
}

}  // namespace
}  // namespace tactix::tests
