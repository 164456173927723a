#include "tactix/shared/BlockReader.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "tests/platform/ErrorCode.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;

constexpr const char* Order[] = {
    "SoftTotal",         "HardTotal",         "PlayerName",        "MidCardsAre",       "ManualPlayerRestrictions",
    "PlayingLogEnabled", "PromptPlayButtons", "HardDoubleIsValid", "SoftDoubleIsValid", "SurrenderIsValid",
    "StrategyAdvice",    "SplitIsValid",      "HitIsValid",
};

/// A block of a host's own making: has the values that it was given and notes what is read.
class ForeignBlock : public Object {
 public:
  Variant Get(std::string_view name) override {
    reads.emplace_back(name);
    if (onRead) onRead(name);
    const auto found = values.find(std::string(name));
    return found == values.end() ? Object::Get(name) : found->second;
  }

  std::map<std::string, Variant> values;
  std::vector<std::string> reads;
  std::function<void(std::string_view name)> onRead;
};

std::shared_ptr<ForeignBlock> FullForeignBlock() {
  auto block = std::make_shared<ForeignBlock>();
  block->values = {
      {"SoftTotal", 7},
      {"HardTotal", "16"},
      {"PlayerName", "Ann"},
      {"MidCardsAre", "7, 8 or 9"},
      {"ManualPlayerRestrictions", -1},
      {"PlayingLogEnabled", "True"},
      {"PromptPlayButtons", true},
      {"HardDoubleIsValid", 1},
      {"SoftDoubleIsValid", 2.5},
      {"SurrenderIsValid", "1"},
      {"StrategyAdvice", 4.5},
      {"SplitIsValid", true},
      {"HitIsValid", true},
  };
  return block;
}

DecisionBlock FullBlock() {
  DecisionBlock block;
  DecodeBlock(BlockReader(FullForeignBlock()), block);
  return block;
}

/// A block whose every property differs from what FullBlock() and a new block have.
DecisionBlock EarlierBlock() {
  DecisionBlock block;
  block.SoftTotal(-3);
  block.HardTotal(-4);
  block.PlayerName("Zoe");
  block.MidCardsAre("none");
  block.StrategyAdvice(-5);
  return block;
}

std::string Prompt(const BlockReader& block) {
  std::string out;
  AppendDecisionPrompt(block, out);
  return out;
}

std::shared_ptr<ForeignBlock> ForeignHand(const Variant& hardTotal, const Variant& softTotal) {
  auto block = std::make_shared<ForeignBlock>();
  block->values = {{"HardTotal", hardTotal}, {"SoftTotal", softTotal}, {"PlayerName", "Ann"}};
  return block;
}

TEST(BlockReaderTest, FieldsStandInTheOrderOfTheCopy) {
  ASSERT_EQ(BlockFieldNames.size(), std::size(Order));
  for (std::size_t i = 0; i < std::size(Order); ++i) {
    EXPECT_EQ(BlockFieldNames[i], Order[i]);
    EXPECT_EQ(NameOf(static_cast<BlockField>(i)), Order[i]);
  }
  EXPECT_EQ(NameOf(BlockField::SoftTotal), "SoftTotal");
  EXPECT_EQ(NameOf(BlockField::HitIsValid), "HitIsValid");
}

TEST(BlockReaderTest, NeedsAnObject) {
  for (const Variant& value : {Variant(), Variant::Null(), Variant(5), Variant("block"), Variant(Font{})}) {
    EXPECT_EQ(ErrorCodeOf([&] { return BlockReader(value); }), 424);
  }
}

TEST(BlockReaderTest, ANullObjectFailsWhenItIsRead) {
  const BlockReader reader{Variant(ObjectRef())};
  EXPECT_EQ(ErrorCodeOf([&] { return reader.Value(BlockField::HardTotal); }), 91);
  std::string out = "kept";
  EXPECT_EQ(ErrorCodeOf([&] {
              reader.AppendText(BlockField::PlayerName, out);
              return 0;
            }),
            91);
  EXPECT_EQ(out, "kept");
  DecisionBlock into;
  EXPECT_EQ(ErrorCodeOf([&] {
              DecodeBlock(reader, into);
              return 0;
            }),
            91);
}

TEST(BlockReaderTest, ReadsAnObjectByName) {
  const auto foreign = FullForeignBlock();
  const BlockReader reader(foreign);
  for (const char* name : Order) EXPECT_TRUE(foreign->values.count(name)) << name;
  for (std::size_t i = 0; i < std::size(Order); ++i) {
    EXPECT_EQ(reader.Value(static_cast<BlockField>(i)), foreign->values[Order[i]]) << Order[i];
  }
  EXPECT_EQ(foreign->reads, std::vector<std::string>(std::begin(Order), std::end(Order)));
}

TEST(BlockReaderTest, ReadsABlockDirectlyAsByName) {
  const DecisionBlock block = FullBlock();
  const auto shared = std::make_shared<DecisionBlock>(block);
  const BlockReader direct(block);
  const BlockReader byName{Variant(shared)};
  for (std::size_t i = 0; i < std::size(Order); ++i) {
    const auto field = static_cast<BlockField>(i);
    EXPECT_EQ(direct.Value(field), byName.Value(field)) << Order[i];
    std::string directText = "= ";
    std::string byNameText = "= ";
    direct.AppendText(field, directText);
    byName.AppendText(field, byNameText);
    EXPECT_EQ(directText, byNameText) << Order[i];
    EXPECT_EQ(directText, "= " + direct.Value(field).ToText()) << Order[i];
  }
}

TEST(BlockReaderTest, KeepsItsObject) {
  auto foreign = FullForeignBlock();
  const BlockReader reader(foreign);
  foreign.reset();
  EXPECT_EQ(reader.Value(BlockField::PlayerName), "Ann");
}

TEST(BlockReaderTest, DecodesWithConversions) {
  DecisionBlock into = EarlierBlock();
  const auto foreign = FullForeignBlock();
  DecodeBlock(BlockReader(foreign), into);
  EXPECT_EQ(foreign->reads, std::vector<std::string>(std::begin(Order), std::end(Order)));
  EXPECT_EQ(into.SoftTotal(), 7);
  EXPECT_EQ(into.HardTotal(), 16);
  EXPECT_EQ(into.PlayerName(), "Ann");
  EXPECT_EQ(into.MidCardsAre(), "7, 8 or 9");
  EXPECT_EQ(into.StrategyAdvice(), 4);
  for (const char* name : Order) {
    const Variant value = into.Get(name);
    if (value.Type() == VariantType::Boolean) {
      EXPECT_EQ(value, true) << name;
    }
  }
}

TEST(BlockReaderTest, DecodesABlockDirectly) {
  const DecisionBlock block = FullBlock();
  DecisionBlock into = EarlierBlock();
  DecodeBlock(BlockReader(block), into);
  for (const char* name : Order) EXPECT_EQ(into.Get(name), DecisionBlock(block).Get(name)) << name;
}

TEST(BlockReaderTest, DecodingABlockKeepsTheTextBuffers) {
  DecisionBlock block;
  block.PlayerName("a name that is too long to be kept in place");
  block.MidCardsAre("a wording that is too long to be kept in place");
  DecisionBlock into;
  DecodeBlock(BlockReader(block), into);
  const char* const name = into.PlayerName().data();
  const char* const wording = into.MidCardsAre().data();
  block.PlayerName("another name too long to be kept in place");
  block.MidCardsAre("another wording too long to be kept in place");
  DecodeBlock(BlockReader(block), into);
  EXPECT_EQ(into.PlayerName(), "another name too long to be kept in place");
  EXPECT_EQ(into.PlayerName().data(), name);
  EXPECT_EQ(into.MidCardsAre().data(), wording);
}

/// What a reader for a control watches.
struct Reading : Trackable {};

TEST(BlockReaderTest, AsksNothingMoreOnceItsControlIsGone) {
  auto control = std::make_unique<Reading>();
  const auto foreign = FullForeignBlock();
  auto block = std::make_unique<DecisionBlock>(FullBlock());
  const BlockReader byName(Variant(foreign), *control);
  const BlockReader direct(*block, *control);
  for (const BlockReader* reader : {&byName, &direct}) EXPECT_EQ(reader->Value(BlockField::PlayerName), "Ann");
  foreign->reads.clear();
  control.reset();
  block.reset();
  for (const BlockReader* reader : {&byName, &direct}) {
    EXPECT_TRUE(reader->Value(BlockField::PlayerName).IsEmpty());
    std::string text = "before";
    reader->AppendText(BlockField::PlayerName, text);
    reader->AppendText(BlockField::HardTotal, text);
    EXPECT_EQ(text, "before");
  }
  EXPECT_EQ(foreign->reads, std::vector<std::string>{});
}

TEST(BlockReaderTest, DecodesNothingMoreOnceItsControlIsGone) {
  for (std::size_t last = 0; last < std::size(Order); ++last) {
    auto control = std::make_unique<Reading>();
    const auto foreign = FullForeignBlock();
    foreign->onRead = [&](std::string_view name) {
      if (name == Order[last]) control.reset();
    };
    DecisionBlock into = EarlierBlock();
    DecodeBlock(BlockReader(Variant(foreign), *control), into);
    EXPECT_EQ(foreign->reads.size(), last + 1);
    EXPECT_EQ(into.Get(Order[last]), EarlierBlock().Get(Order[last]));
  }
}

TEST(BlockReaderTest, ADecodedCopyStoresNoEleven) {
  DecisionBlock block;
  block.SoftTotal(11);
  DecisionBlock direct;
  DecodeBlock(BlockReader(block), direct);
  EXPECT_EQ(direct.SoftTotal(), 21);

  DecisionBlock itself = block;
  DecodeBlock(BlockReader(itself), itself);
  EXPECT_EQ(itself.SoftTotal(), 21);

  const auto foreign = FullForeignBlock();
  foreign->values["SoftTotal"] = 11;
  DecisionBlock fromForeign;
  DecodeBlock(BlockReader(foreign), fromForeign);
  EXPECT_EQ(fromForeign.SoftTotal(), 21);
}

/// Decodes a foreign block that fails at one property and checks that exactly the properties before it have been
/// copied.
void CheckThatTheCopyStops(std::size_t at, const std::shared_ptr<ForeignBlock>& foreign, std::int32_t error) {
  SCOPED_TRACE(Order[at]);
  DecisionBlock into = EarlierBlock();
  EXPECT_EQ(ErrorCodeOf([&] {
              DecodeBlock(BlockReader(foreign), into);
              return 0;
            }),
            error);
  for (std::size_t i = 0; i < std::size(Order); ++i) {
    DecisionBlock expected = i < at ? FullBlock() : EarlierBlock();
    EXPECT_EQ(into.Get(Order[i]), expected.Get(Order[i])) << Order[i];
  }
  EXPECT_EQ(foreign->reads.size(), at + 1);
}

TEST(BlockReaderTest, AMissingPropertyStopsTheCopyThere) {
  for (std::size_t at = 0; at < std::size(Order); ++at) {
    const auto foreign = FullForeignBlock();
    foreign->values.erase(Order[at]);
    CheckThatTheCopyStops(at, foreign, 438);
  }
}

TEST(BlockReaderTest, AValueThatDoesNotConvertStopsTheCopyThere) {
  for (std::size_t at = 0; at < std::size(Order); ++at) {
    const auto null = FullForeignBlock();
    null->values[Order[at]] = Variant::Null();
    CheckThatTheCopyStops(at, null, 94);
    const auto font = FullForeignBlock();
    font->values[Order[at]] = Font{};
    CheckThatTheCopyStops(at, font, 13);
  }
  for (const std::size_t at : {0U, 1U, 10U}) {
    const auto large = FullForeignBlock();
    large->values[Order[at]] = 32768;
    CheckThatTheCopyStops(at, large, 6);
  }
}

TEST(BlockReaderTest, AppendTextKeepsTheBuffer) {
  DecisionBlock block;
  block.PlayerName("a name that is too long to be kept in place");
  block.HardTotal(-32768);
  block.HitIsValid(true);
  std::string out;
  out.reserve(200);
  const char* const buffer = out.data();
  const BlockReader reader(block);
  reader.AppendText(BlockField::PlayerName, out);
  reader.AppendText(BlockField::HardTotal, out);
  reader.AppendText(BlockField::HitIsValid, out);
  EXPECT_EQ(out, "a name that is too long to be kept in place-32768True");
  EXPECT_EQ(out.data(), buffer);
}

TEST(DecisionPromptTest, OfADecisionBlock) {
  struct Row {
    const char* player;
    std::int16_t hard;
    std::int16_t soft;
    const char* prompt;
  };
  const Row rows[] = {
      {"Ann", 12, 0, "Ann - You have  12  - Make your Selection"},
      {"Ann", 7, 0, "Ann - You have  7  - Make your Selection"},
      {"Ann", 7, 1, "Ann - You have  7 OR  17  - Make your Selection"},
      {"Ann", 7, 10, "Ann - You have  7 OR  17  - Make your Selection"},
      {"Ann", 7, 11, "Ann - You have  7  - Make your Selection"},
      {"Ann", 7, 12, "Ann - You have  7  - Make your Selection"},
      {"Ann", 7, -1, "Ann - You have  7 OR  17  - Make your Selection"},
      {"", 0, 0, " - You have  0  - Make your Selection"},
      {"J\xC3\xBCrgen", -7, 0, "J\xC3\xBCrgen - You have -7  - Make your Selection"},
      {"Ann", -7, 2, "Ann - You have -7 OR  3  - Make your Selection"},
      {"Ann", 32767, 2, "Ann - You have  32767 OR  32777  - Make your Selection"},
      {"Ann", -32768, 2, "Ann - You have -32768 OR -32758  - Make your Selection"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.prompt);
    DecisionBlock block;
    block.PlayerName(row.player);
    block.HardTotal(row.hard);
    block.SoftTotal(row.soft);
    EXPECT_EQ(Prompt(BlockReader(block)), row.prompt);
    EXPECT_EQ(Prompt(BlockReader(std::make_shared<DecisionBlock>(block))), row.prompt);
  }
}

TEST(DecisionPromptTest, OfAForeignBlock) {
  struct Row {
    const char* name;
    Variant hard;
    Variant soft;
    const char* total;
  };
  const Row rows[] = {
      {"eleven is not turned into 21, and is not below 11", 7, 11, " 7"},
      {"empty is hard", 7, {}, " 7"},
      {"null is hard", 7, Variant::Null(), " 7"},
      {"a flag", 7, true, " 7 OR  17"},
      {"text totals", "7", "1", " 7 OR  17"},
      {"a fraction below eleven", 7.5, 10.9, " 7.5 OR  17.5"},
      {"an empty total", {}, 1, " 0 OR  10"},
      {"wide totals", 2147483647, 1, " 2147483647 OR  2147483657"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const auto foreign = ForeignHand(row.hard, row.soft);
    EXPECT_EQ(Prompt(BlockReader(foreign)), std::string("Ann - You have ") + row.total + "  - Make your Selection");
    EXPECT_EQ(foreign->reads, (std::vector<std::string>{"HardTotal", "SoftTotal", "PlayerName"}));
  }
}

TEST(DecisionPromptTest, AFailureLeavesTheTextAndReadsNoFurther) {
  struct Row {
    const char* name;
    const char* property;
    Variant value;
    std::int32_t error;
    std::size_t reads;
  };
  const Row rows[] = {
      {"null total", "HardTotal", Variant::Null(), 94, 1},       {"total of words", "HardTotal", "seven", 13, 1},
      {"soft total of words", "SoftTotal", "soft", 13, 2},       {"empty soft total text", "SoftTotal", "", 13, 2},
      {"true in words is no total", "SoftTotal", "True", 13, 2}, {"null name", "PlayerName", Variant::Null(), 94, 3},
      {"name without text", "PlayerName", Font{}, 13, 3},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const auto foreign = ForeignHand(7, 1);
    foreign->values[row.property] = row.value;
    std::string out = "kept";
    EXPECT_EQ(ErrorCodeOf([&] {
                AppendDecisionPrompt(BlockReader(foreign), out);
                return 0;
              }),
              row.error);
    EXPECT_EQ(out, "kept");
    EXPECT_EQ(foreign->reads.size(), row.reads);
  }
  for (const char* property : {"HardTotal", "SoftTotal", "PlayerName"}) {
    const auto foreign = ForeignHand(7, 1);
    foreign->values.erase(property);
    std::string out = "kept";
    EXPECT_EQ(ErrorCodeOf([&] {
                AppendDecisionPrompt(BlockReader(foreign), out);
                return 0;
              }),
              438);
    EXPECT_EQ(out, "kept");
  }
}

TEST(DecisionPromptTest, AppendsBehindWhatIsThere) {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(12);
  std::string out = "> ";
  AppendDecisionPrompt(BlockReader(block), out);
  EXPECT_EQ(out, "> Ann - You have  12  - Make your Selection");
}

}  // namespace
}  // namespace tactix
