#include "tactix/shared/DecisionBlock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tactix/platform/Variant.h"
#include "tests/platform/ErrorCode.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;

enum class Kind { Number, Flag, Text };

struct FieldRow {
  BlockField field;
  const char* name;
  Kind kind;
};

constexpr FieldRow Rows[] = {
    {BlockField::PlayerName, "PlayerName", Kind::Text},
    {BlockField::HardTotal, "HardTotal", Kind::Number},
    {BlockField::SoftTotal, "SoftTotal", Kind::Number},
    {BlockField::MidCardsAre, "MidCardsAre", Kind::Text},
    {BlockField::HitIsValid, "HitIsValid", Kind::Flag},
    {BlockField::SplitIsValid, "SplitIsValid", Kind::Flag},
    {BlockField::HardDoubleIsValid, "HardDoubleIsValid", Kind::Flag},
    {BlockField::SoftDoubleIsValid, "SoftDoubleIsValid", Kind::Flag},
    {BlockField::SurrenderIsValid, "SurrenderIsValid", Kind::Flag},
    {BlockField::ManualPlayerRestrictions, "ManualPlayerRestrictions", Kind::Flag},
    {BlockField::StrategyAdvice, "StrategyAdvice", Kind::Number},
    {BlockField::PromptPlayButtons, "PromptPlayButtons", Kind::Flag},
    {BlockField::PlayingLogEnabled, "PlayingLogEnabled", Kind::Flag},
};

Variant DefaultOf(Kind kind) {
  switch (kind) {
    case Kind::Number:
      return std::int16_t{0};
    case Kind::Flag:
      return false;
    case Kind::Text:
      break;
  }
  return "";
}

Variant SampleOf(Kind kind) {
  switch (kind) {
    case Kind::Number:
      return std::int16_t{-32768};
    case Kind::Flag:
      return true;
    case Kind::Text:
      break;
  }
  return "J\xC3\xBCrgen, a name too long to be kept in place";
}

std::string OtherCase(std::string name) {
  std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) {
    return static_cast<char>(std::isupper(c) ? std::tolower(c) : std::toupper(c));
  });
  return name;
}

TEST(DecisionBlockTest, ANewBlockIsBlank) {
  const DecisionBlock block;
  EXPECT_EQ(block.PlayerName(), "");
  EXPECT_EQ(block.HardTotal(), 0);
  EXPECT_EQ(block.SoftTotal(), 0);
  EXPECT_EQ(block.MidCardsAre(), "");
  EXPECT_FALSE(block.HitIsValid());
  EXPECT_FALSE(block.SplitIsValid());
  EXPECT_FALSE(block.HardDoubleIsValid());
  EXPECT_FALSE(block.SoftDoubleIsValid());
  EXPECT_FALSE(block.SurrenderIsValid());
  EXPECT_FALSE(block.ManualPlayerRestrictions());
  EXPECT_EQ(block.StrategyAdvice(), 0);
  EXPECT_FALSE(block.PromptPlayButtons());
  EXPECT_FALSE(block.PlayingLogEnabled());
}

TEST(DecisionBlockTest, EveryPropertyByNameReachesItsOwnValueOnly) {
  for (const FieldRow& row : Rows) {
    SCOPED_TRACE(row.name);
    DecisionBlock block;
    block.Put(row.name, SampleOf(row.kind));
    for (const FieldRow& other : Rows) {
      SCOPED_TRACE(other.name);
      const Variant expected = other.field == row.field ? SampleOf(other.kind) : DefaultOf(other.kind);
      const Variant read = block.Get(other.name);
      EXPECT_EQ(read.Type(), expected.Type());
      EXPECT_EQ(read, expected);
      EXPECT_EQ(block.Field(other.field), expected);
      EXPECT_EQ(block.Get(OtherCase(other.name)), expected);
    }
    block.Put(OtherCase(row.name), DefaultOf(row.kind));
    EXPECT_EQ(block.Get(row.name), DefaultOf(row.kind));
    block.Field(row.field, SampleOf(row.kind));
    EXPECT_EQ(block.Get(row.name), SampleOf(row.kind));
  }
}

TEST(DecisionBlockTest, TheTypedPropertiesAreTheNamedOnes) {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(16);
  block.SoftTotal(6);
  block.MidCardsAre("7, 8 or 9");
  block.StrategyAdvice(5);
  EXPECT_EQ(block.Get("PlayerName"), "Ann");
  EXPECT_EQ(block.Get("HardTotal"), 16);
  EXPECT_EQ(block.Get("SoftTotal"), 6);
  EXPECT_EQ(block.Get("MidCardsAre"), "7, 8 or 9");
  EXPECT_EQ(block.Get("StrategyAdvice"), 5);

  struct FlagRow {
    const char* name;
    bool (DecisionBlock::*get)() const;
    void (DecisionBlock::*set)(bool);
  };
  const FlagRow flags[] = {
      {"HitIsValid", &DecisionBlock::HitIsValid, &DecisionBlock::HitIsValid},
      {"SplitIsValid", &DecisionBlock::SplitIsValid, &DecisionBlock::SplitIsValid},
      {"HardDoubleIsValid", &DecisionBlock::HardDoubleIsValid, &DecisionBlock::HardDoubleIsValid},
      {"SoftDoubleIsValid", &DecisionBlock::SoftDoubleIsValid, &DecisionBlock::SoftDoubleIsValid},
      {"SurrenderIsValid", &DecisionBlock::SurrenderIsValid, &DecisionBlock::SurrenderIsValid},
      {"ManualPlayerRestrictions", &DecisionBlock::ManualPlayerRestrictions, &DecisionBlock::ManualPlayerRestrictions},
      {"PromptPlayButtons", &DecisionBlock::PromptPlayButtons, &DecisionBlock::PromptPlayButtons},
      {"PlayingLogEnabled", &DecisionBlock::PlayingLogEnabled, &DecisionBlock::PlayingLogEnabled},
  };
  for (const FlagRow& row : flags) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(block.Get(row.name), false);
    (block.*row.set)(true);
    EXPECT_TRUE((block.*row.get)());
    EXPECT_EQ(block.Get(row.name), true);
  }
}

TEST(DecisionBlockTest, SoftTotalElevenReadsTwentyOne) {
  struct Row {
    std::int16_t stored;
    std::int16_t read;
  };
  const Row rows[] = {{11, 21}, {10, 10}, {12, 12}, {21, 21}, {0, 0}, {-11, -11}, {32767, 32767}};
  for (const Row& row : rows) {
    DecisionBlock block;
    block.SoftTotal(row.stored);
    EXPECT_EQ(block.SoftTotal(), row.read);
    EXPECT_EQ(block.Get("SoftTotal"), row.read);
    EXPECT_EQ(block.Field(BlockField::SoftTotal), row.read);
  }
  DecisionBlock hard;
  hard.HardTotal(11);
  EXPECT_EQ(hard.HardTotal(), 11);
}

TEST(DecisionBlockTest, PutConverts) {
  DecisionBlock block;
  block.Put("HardTotal", "12");
  EXPECT_EQ(block.HardTotal(), 12);
  block.Put("HardTotal", 13.5);
  EXPECT_EQ(block.HardTotal(), 14);
  block.Put("HardTotal", true);
  EXPECT_EQ(block.HardTotal(), -1);
  block.Put("HardTotal", {});
  EXPECT_EQ(block.HardTotal(), 0);
  block.Put("HitIsValid", -1);
  EXPECT_TRUE(block.HitIsValid());
  block.Put("HitIsValid", "false");
  EXPECT_FALSE(block.HitIsValid());
  block.Put("PlayerName", 7);
  EXPECT_EQ(block.PlayerName(), "7");
  block.Put("PlayerName", {});
  EXPECT_EQ(block.PlayerName(), "");
}

TEST(DecisionBlockTest, AValueThatDoesNotConvertLeavesTheOldOne) {
  struct Row {
    const char* name;
    Variant value;
    std::int32_t error;
  };
  const Row rows[] = {
      {"HardTotal", 32768, 6},
      {"HardTotal", 32767.5, 6},
      {"HardTotal", "twelve", 13},
      {"HardTotal", "", 13},
      {"HardTotal", Variant::Null(), 94},
      {"HardTotal", Font{}, 13},
      {"HitIsValid", "maybe", 13},
      {"HitIsValid", Variant::Null(), 94},
      {"PlayerName", Variant::Null(), 94},
      {"PlayerName", std::make_shared<DecisionBlock>(), 13},
      {"DealerName", "Dan", 438},
      {"", 1, 438},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    DecisionBlock block;
    block.HardTotal(7);
    block.HitIsValid(true);
    block.PlayerName("Ann");
    EXPECT_EQ(ErrorCodeOf([&] {
                block.Put(row.name, row.value);
                return 0;
              }),
              row.error);
    EXPECT_EQ(block.HardTotal(), 7);
    EXPECT_TRUE(block.HitIsValid());
    EXPECT_EQ(block.PlayerName(), "Ann");
  }
}

TEST(DecisionBlockTest, HasNoOtherMembers) {
  DecisionBlock block;
  for (const char* name : {"StandIsValid", "PlayerNam", "PlayerNames", ""}) {
    EXPECT_EQ(ErrorCodeOf([&] { return block.Get(name); }), 438);
    EXPECT_EQ(ErrorCodeOf([&] { return block.Call(name, {}); }), 438);
  }
  EXPECT_EQ(ErrorCodeOf([&] { return block.Call("PlayerName", {}); }), 438);
}

TEST(DecisionBlockTest, ACopyKeepsWhatIsStored) {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.SoftTotal(11);
  DecisionBlock copy = block;
  block.PlayerName("Bob");
  EXPECT_EQ(copy.PlayerName(), "Ann");
  EXPECT_EQ(copy.SoftTotal(), 21);
}

TEST(DecisionBlockTest, ABlockThatDoesNotChangeCanBeReadByName) {
  DecisionBlock block;
  block.HardTotal(16);
  const DecisionBlock& constant = block;
  EXPECT_EQ(constant.Get("hardtotal"), 16);
  EXPECT_EQ(ErrorCodeOf([&] { return constant.Get("Nothing"); }), 438);
}

}  // namespace
}  // namespace tactix
