#include "tactix/companion/StrategyCollection.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/StrategyList.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

using companion::StrategyCollection;

TEST(StrategyCollectionTest, IsEmptyAtFirst) {
  StrategyCollection collection;
  EXPECT_EQ(collection.Count(), 0);
  EXPECT_EQ(collection.Get("Count").Type(), VariantType::Integer);
  EXPECT_EQ(collection.Get("Count"), Variant(0));
}

TEST(StrategyCollectionTest, CountsFromOneInTheOrderOfAdding) {
  StrategyCollection collection;
  const auto object = std::make_shared<StrategyCollection>();
  collection.Add("Basic");
  collection.Add(object);
  EXPECT_EQ(collection.Count(), 2);
  EXPECT_EQ(collection.Item(1), Variant("Basic"));
  EXPECT_EQ(collection.Item(2).ToObject(), object);
}

TEST(StrategyCollectionTest, IsUsedByName) {
  StrategyCollection collection;
  Variant strategy[] = {"Basic"};
  EXPECT_TRUE(collection.Call("ADD", strategy).IsEmpty());
  EXPECT_EQ(collection.Get("count"), Variant(1));
  Variant index[] = {"1"};
  EXPECT_EQ(collection.Call("item", index), Variant("Basic"));
}

TEST(StrategyCollectionTest, RefusesIndexesThatItDoesNotHave) {
  StrategyCollection collection;
  collection.Add("Basic");
  for (const int index : {-1, 0, 2, 2147483647}) {
    EXPECT_EQ(ErrorCodeOf([&] { return collection.Item(index); }), 9) << index;
  }
  Variant argument[] = {std::int16_t{0}};
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Call("Item", argument); }), 9);
}

TEST(StrategyCollectionTest, TakesTextsAndObjectsOnly) {
  StrategyCollection collection;
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Add(7), 0; }), 13);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Add({}), 0; }), 13);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Add(Variant(ObjectRef())), 0; }), 91);
  EXPECT_EQ(collection.Count(), 0);
}

TEST(StrategyCollectionTest, RefusesWrongArgumentsAndNames) {
  StrategyCollection collection;
  collection.Add("Basic");
  Variant two[] = {std::int16_t{1}, std::int16_t{1}};
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Call("Item", {}); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Call("Add", two); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Call("Remove", {}); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Get("Item"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Put("Count", 3), 0; }), 438);
}

TEST(StrategyCollectionTest, CountsNoFurtherThanAnInteger) {
  StrategyCollection collection;
  for (int i = 0; i < 32767; ++i) collection.Add("x");
  EXPECT_EQ(collection.Count(), 32767);
  collection.Add("x");
  EXPECT_EQ(ErrorCodeOf([&] { return collection.Count(); }), 6);
}

TEST(StrategyCollectionTest, IsWhatListsTake) {
  HeadlessSite site;
  StrategyList list(site);
  const auto collection = std::make_shared<StrategyCollection>();
  collection->Add("Basic");
  collection->Add("Never Bust");
  list.UseThisStrategyList(collection);
  EXPECT_EQ(list.StrategyCount(), 2);
}

}  // namespace
}  // namespace tactix::tests
