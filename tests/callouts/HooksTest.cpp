// Replacing what a host has supplied: the end of the old one is the host's code, and may supply a third.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tactix/companion/CounterValue.h"
#include "tactix/companion/Edition.h"
#include "tactix/counting/CounterValueObject.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// Runs an action when it ends.
using AtTheEnd = std::shared_ptr<void>;

AtTheEnd WhenItEnds(std::function<void()> action) {
  return {nullptr, [action = std::move(action)](void*) { action(); }};
}

/// One of the hooks that hosts fill.
struct Hook {
  const char* name;
  /// Sets a factory that holds something and answers with an object that says which one it is.
  std::function<void(int which, AtTheEnd held)> set;
  /// Which factory answers.
  std::function<int()> answering;
};

int answered = 0;

template <class Hooked, class Made>
Hook HookOf(const char* name, void (*setFactory)(std::function<Made()>), Made (*make)(), Hooked (*ask)()) {
  return {name,
          [=](int which, AtTheEnd held) {
            setFactory([which, held = std::move(held), make] {
              answered = which;
              return make();
            });
          },
          [ask] {
            ask();
            return answered;
          }};
}

std::shared_ptr<StrategyCatalogue> AskAnew() {
  StrategyListData::UseCatalogue(nullptr);
  return StrategyListData::Catalogue();
}

const Hook Hooks[] = {
    HookOf<std::shared_ptr<StrategyCatalogue>, std::shared_ptr<StrategyCatalogue>>(
        "Catalogue", &StrategyListData::CreateCatalogueWith,
        +[]() -> std::shared_ptr<StrategyCatalogue> { return std::make_shared<FakeCatalogue>(); }, &AskAnew),
    HookOf<ObjectRef, ObjectRef>(
        "Edition", &DefaultEdition::CreateWith, +[]() -> ObjectRef { return std::make_shared<companion::Edition>(); },
        &DefaultEdition::Create),
    HookOf<ObjectRef, ObjectRef>(
        "StrategyData", &DefaultStrategyData::CreateWith,
        +[]() -> ObjectRef { return std::make_shared<companion::Edition>(); }, &DefaultStrategyData::Create),
    HookOf<std::shared_ptr<CounterValueObject>, std::shared_ptr<CounterValueObject>>(
        "CounterValue", &CounterValueObject::CreateWith,
        +[]() -> std::shared_ptr<CounterValueObject> { return std::make_shared<companion::CounterValue>(); },
        &CounterValueObject::Create),
};

class HookTest : public testing::TestWithParam<Hook> {
 protected:
  ~HookTest() override {
    GetParam().set(0, nullptr);
    StrategyListData::CreateCatalogueWith(nullptr);
    StrategyListData::UseCatalogue(nullptr);
    DefaultEdition::CreateWith(nullptr);
    DefaultStrategyData::CreateWith(nullptr);
    CounterValueObject::CreateWith(nullptr);
  }
};

TEST_P(HookTest, TheEndOfAFactoryMaySetAnotherOne) {
  GetParam().set(1, WhenItEnds([] { GetParam().set(3, nullptr); }));
  EXPECT_EQ(GetParam().answering(), 1);
  GetParam().set(2, nullptr);
  EXPECT_EQ(GetParam().answering(), 3);
}

INSTANTIATE_TEST_SUITE_P(Hooks, HookTest, testing::ValuesIn(Hooks), RowName());

std::shared_ptr<FakeCatalogue> CatalogueUpTo(std::int16_t highest, AtTheEnd held = nullptr) {
  auto catalogue = std::make_shared<FakeCatalogue>();
  catalogue->Range.HighestPlayingStrategy = highest;
  catalogue->OnCall = [held = std::move(held)](const std::string&) {};
  return catalogue;
}

std::int16_t HighestOf(const std::shared_ptr<StrategyCatalogue>& catalogue) {
  return catalogue->GetStrategyRange().HighestPlayingStrategy;
}

class CatalogueInUseTest : public testing::Test {
 protected:
  ~CatalogueInUseTest() override {
    StrategyListData::CreateCatalogueWith(nullptr);
    StrategyListData::UseCatalogue(nullptr);
  }
};

TEST_F(CatalogueInUseTest, ItsEndMaySetAnotherOne) {
  StrategyListData::UseCatalogue(
      CatalogueUpTo(1, WhenItEnds([] { StrategyListData::UseCatalogue(CatalogueUpTo(3)); })));
  StrategyListData::UseCatalogue(CatalogueUpTo(2));
  EXPECT_EQ(HighestOf(StrategyListData::Catalogue()), 3);
}

TEST_F(CatalogueInUseTest, AFactoryMaySetOneWhoseEndTakesTheNewOneAway) {
  StrategyListData::CreateCatalogueWith([] {
    StrategyListData::UseCatalogue(CatalogueUpTo(1, WhenItEnds([] { StrategyListData::UseCatalogue(nullptr); })));
    return CatalogueUpTo(2);
  });
  EXPECT_EQ(HighestOf(StrategyListData::Catalogue()), 2);
}

}  // namespace
}  // namespace tactix::tests
