#include "tactix/companion/StrategyDataBlock.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {
namespace {

using companion::StrategyDataBlock;

struct FieldRow {
  const char* name;
  VariantType type;
};
constexpr FieldRow FieldRows[] = {
    {"RunningCount", VariantType::Integer},     {"TrueCount", VariantType::Integer},
    {"AcesDealt", VariantType::Integer},        {"FivesDealt", VariantType::Integer},
    {"TensDealt", VariantType::Integer},        {"BiasRating", VariantType::Long},
    {"ClumpType", VariantType::Long},           {"CoreCardsDealt", VariantType::Integer},
    {"TargetRating", VariantType::Long},        {"DealerBreakPercent", VariantType::Single},
    {"AdjustedCount", VariantType::Integer},    {"DealerStiffHands", VariantType::Single},
    {"DealerStrongHands", VariantType::Single}, {"DealerEndingTotal", VariantType::Single},
};

TEST(StrategyDataBlockTest, IsEmptyWhenItIsNew) {
  StrategyDataBlock block;
  for (const FieldRow& row : FieldRows) {
    const Variant value = block.Get(row.name);
    EXPECT_EQ(value.Type(), row.type) << row.name;
    EXPECT_EQ(value, Variant(0)) << row.name;
  }
}

TEST(StrategyDataBlockTest, FieldsAreReadAndWrittenByName) {
  StrategyDataBlock block;
  std::int32_t number = 0;
  for (const FieldRow& row : FieldRows) {
    std::string upper = row.name;
    for (char& c : upper) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    block.Put(upper, std::to_string(++number));
  }
  number = 0;
  for (const FieldRow& row : FieldRows) EXPECT_EQ(block.Get(row.name), Variant(++number)) << row.name;
  EXPECT_EQ(block.RunningCount, 1);
  EXPECT_EQ(block.ClumpType, 7);
  EXPECT_EQ(block.DealerEndingTotal, 14.0F);
}

TEST(StrategyDataBlockTest, KeepsTheOldValueWhenTheNewOneDoesNotConvert) {
  StrategyDataBlock block;
  block.TrueCount = 5;
  block.DealerStiffHands = 1.5F;
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("TrueCount", 40000), 0; }), Error::Overflow);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("TrueCount", "five"), 0; }), Error::TypeMismatch);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("TrueCount", Variant::Null()), 0; }), Error::InvalidUseOfNull);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("DealerStiffHands", 1e300), 0; }), Error::Overflow);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("ShoeCount", 1), 0; }), Error::NoSuchMember);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Get("ShoeCount"); }), Error::NoSuchMember);
  EXPECT_EQ(block.TrueCount, 5);
  EXPECT_EQ(block.DealerStiffHands, 1.5F);
}

TEST(StrategyDataBlockTest, ItsDefaultPropertyTakesEveryFieldOfAnyObject) {
  const auto source = std::make_shared<PropertyObject>();
  std::int32_t number = 10;
  for (const FieldRow& row : FieldRows) source->Set(row.name, std::to_string(++number));
  StrategyDataBlock block;
  block.Put("", source);
  number = 10;
  for (const FieldRow& row : FieldRows) {
    EXPECT_EQ(block.Get(row.name), Variant(++number)) << row.name;
    EXPECT_EQ(block.Get(row.name).Type(), row.type) << row.name;
  }
}

TEST(StrategyDataBlockTest, ABlockTakesItself) {
  const auto block = std::make_shared<StrategyDataBlock>();
  block->BiasRating = 70000;
  block->Put(DefaultPropertyName, block);
  EXPECT_EQ(block->BiasRating, 70000);
}

TEST(StrategyDataBlockTest, ItsDefaultPropertyTakesAllFieldsOrNone) {
  StrategyDataBlock block;
  block.RunningCount = 3;
  const auto partly = std::make_shared<PropertyObject>("RunningCount", 8);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("", partly), 0; }), Error::NoSuchMember);
  const auto full = std::make_shared<PropertyObject>();
  for (const FieldRow& row : FieldRows) full->Set(row.name, 8);
  full->Set("DealerEndingTotal", "high");
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("", full), 0; }), Error::TypeMismatch);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("", ObjectRef()), 0; }), Error::ObjectNotSet);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Put("", 5), 0; }), Error::ObjectRequired);
  EXPECT_EQ(ErrorCodeOf([&] { return block.Get(""); }), Error::NoSuchMember);
  EXPECT_EQ(block.RunningCount, 3);
}

}  // namespace
}  // namespace tactix::tests
