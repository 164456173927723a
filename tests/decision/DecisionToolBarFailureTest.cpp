// Blocks that lack something, hold something else, or do something while a decision toolbar reads them.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "tests/decision/DecisionStates.h"
#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/ForeignBlock.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class Bar>
class DecisionToolBarFailureTest : public DecisionToolBarFixture<Bar> {
 protected:
  /// A block on which no play is legal and Stand is advised.
  static std::shared_ptr<ForeignBlock> StrictBlock() {
    const auto block = std::make_shared<ForeignBlock>(FullBlock());
    for (const BlockField field : {BlockField::SplitIsValid, BlockField::SurrenderIsValid,
                                   BlockField::HardDoubleIsValid, BlockField::SoftDoubleIsValid}) {
      block->Set(field, false);
    }
    return block;
  }
  /// Which of its steps setting up with a strict block has done: plays disabled, advice taken, prompt raised.
  Texts Done() {
    Texts done;
    for (const char* key : {"Split", "Surrender", "Double"}) {
      if (!this->Button(key).Enabled()) done.emplace_back(key);
    }
    const std::int64_t before = this->site_.Now();
    this->Button("Advice").Click();
    if (this->site_.Now() != before) done.emplace_back("advice");
    for (const std::string& entry : this->recorder_.Take()) done.push_back(entry);
    return done;
  }
};
TYPED_TEST_SUITE(DecisionToolBarFailureTest, BothDecisionBars);

constexpr const char* StrictPrompt = "HereIsThePlayersPromptMessage#8(Ann - You have  7 OR  17  - Make your Selection)";

TYPED_TEST(DecisionToolBarFailureTest, ReadsInThisOrder) {
  Texts copied(BlockFieldNames.begin(), BlockFieldNames.end());
  const Texts setUp = {
      "ManualPlayerRestrictions", "SplitIsValid", "SurrenderIsValid", "HardDoubleIsValid", "SoftDoubleIsValid",
      "StrategyAdvice",           "HardTotal",    "SoftTotal",        "PlayerName"};
  const auto block = this->StrictBlock();
  this->bar_->DecodeThisDCB(block);
  EXPECT_EQ(block->Reads, copied);
  block->Reads.clear();
  this->bar_->SetupDecisionBAR(block, nullptr);
  EXPECT_EQ(block->Reads, setUp);
  block->Reads.clear();
  this->bar_->SetupTheDecisionBAR(block);
  copied.insert(copied.end(), setUp.begin(), setUp.end());
  EXPECT_EQ(block->Reads, copied);
  block->Reads.clear();
  block->Set(BlockField::ManualPlayerRestrictions, false);
  this->bar_->SetupPlayButtons(block);
  EXPECT_EQ(block->Reads, Texts{"ManualPlayerRestrictions"});
}

TYPED_TEST(DecisionToolBarFailureTest, ACopyStopsAtThePropertyThatIsMissing) {
  for (std::size_t missing = 0; missing < BlockFieldNames.size(); ++missing) {
    for (const bool whole : {false, true}) {
      TypeParam bar(this->site_);
      const auto block = std::make_shared<ForeignBlock>(FullBlock());
      block->Remove(static_cast<BlockField>(missing));
      EXPECT_EQ(ErrorCodeOf([&] { whole ? bar.SetupTheDecisionBAR(block) : bar.DecodeThisDCB(block); }), 438);
      for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
        const auto field = static_cast<BlockField>(i);
        EXPECT_EQ(bar.DecodedDCB().Field(field), (i < missing ? FullBlock() : DecisionBlock()).Field(field))
            << BlockFieldNames[i] << " without " << BlockFieldNames[missing];
      }
    }
  }
  EXPECT_EQ(this->editionsMade_, 0) << "a copy that fails makes no edition";
}

TYPED_TEST(DecisionToolBarFailureTest, ASetupStopsAtThePropertyThatIsMissing) {
  const struct {
    BlockField field;
    std::size_t done;
  } rows[] = {
      {BlockField::ManualPlayerRestrictions, 0},
      {BlockField::SplitIsValid, 0},
      {BlockField::SurrenderIsValid, 1},
      {BlockField::HardDoubleIsValid, 2},
      {BlockField::SoftDoubleIsValid, 2},
      {BlockField::StrategyAdvice, 3},
      {BlockField::HardTotal, 4},
      {BlockField::SoftTotal, 4},
      {BlockField::PlayerName, 4},
      // None of these is read by a setup.
      {BlockField::HitIsValid, 5},
      {BlockField::PromptPlayButtons, 5},
      {BlockField::PlayingLogEnabled, 5},
      {BlockField::MidCardsAre, 5},
  };
  const Texts all = {"Split", "Surrender", "Double", "advice", StrictPrompt};
  for (const auto& row : rows) {
    for (const bool throws : {false, true}) {
      this->bar_ = std::make_unique<TypeParam>(this->site_);
      this->recorder_.Watch(this->bar_->Events.All());
      const auto block = this->StrictBlock();
      const auto edition = std::make_shared<PropertyObject>();
      if (throws) {
        block->OnRead = [&row](std::string_view name) {
          if (name == NameOf(row.field)) throw Error(1234);
        };
      } else {
        block->Remove(row.field);
      }
      const int code = throws ? 1234 : 438;
      EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupDecisionBAR(block, edition); }), row.done == 5 ? 0 : code);
      EXPECT_EQ(this->Done(), Texts(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(row.done)))
          << NameOf(row.field);
      EXPECT_EQ(this->bar_->KelvoEdition(), edition) << "the edition is kept first";
    }
  }
}

TYPED_TEST(DecisionToolBarFailureTest, BothDoublesAreReadEvenWhereTheFirstAllowsThePlay) {
  const auto block = this->StrictBlock();
  block->Set(BlockField::HardDoubleIsValid, true);
  block->Remove(BlockField::SoftDoubleIsValid);
  this->Button("Double").Enabled(false);
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupPlayButtons(block); }), 438);
  EXPECT_FALSE(this->Button("Double").Enabled());
}

TYPED_TEST(DecisionToolBarFailureTest, ValuesOfOtherTypesAreConvertedOrFail) {
  const struct {
    BlockField field;
    Variant value;
    int code;
    const char* prompt;  // what stands for the totals, where it does not fail
  } rows[] = {
      {BlockField::SoftTotal, {}, 0, " 7"},
      {BlockField::SoftTotal, Variant::Null(), 0, " 7"},
      {BlockField::SoftTotal, 0.0, 0, " 7"},
      {BlockField::SoftTotal, 10.9, 0, " 7 OR  17"},
      {BlockField::SoftTotal, 11, 0, " 7"},
      {BlockField::SoftTotal, "10", 0, " 7 OR  17"},
      {BlockField::SoftTotal, "soft", 13, ""},
      {BlockField::HardTotal, 40000, 0, " 40000 OR  40010"},
      {BlockField::HardTotal, std::int16_t{32767}, 0, " 32767 OR  32777"},
      {BlockField::HardTotal, Variant::Null(), 0, "Null OR Null"},
      {BlockField::HardTotal, nullptr, 91, ""},
      {BlockField::HardTotal, std::make_shared<PropertyObject>("", 7), 0, " 7 OR  17"},
      {BlockField::HardTotal, 0.5, 0, " .5 OR  10.5"},
      {BlockField::HardTotal, true, 0, "True OR  9"},
      {BlockField::StrategyAdvice, 32768, 6, ""},
      {BlockField::StrategyAdvice, "two", 13, ""},
      {BlockField::ManualPlayerRestrictions, Variant::Null(), 0, " 7 OR  17"},
      {BlockField::ManualPlayerRestrictions, "maybe", 13, ""},
      {BlockField::SplitIsValid, "maybe", 13, ""},
      {BlockField::SurrenderIsValid, Variant::Null(), 94, ""},
      {BlockField::PlayerName, Font{}, 13, ""},
  };
  for (const auto& row : rows) {
    const auto block = this->StrictBlock();
    block->Set(row.field, row.value);
    EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupDecisionBAR(block, nullptr); }), row.code) << NameOf(row.field);
    EXPECT_EQ(this->recorder_.Take(), row.code != 0 ? Texts{}
                                                    : Texts{"HereIsThePlayersPromptMessage#8(Ann - You have " +
                                                            std::string(row.prompt) + "  - Make your Selection)"})
        << NameOf(row.field);
  }
}

TYPED_TEST(DecisionToolBarFailureTest, NeedsAnObject) {
  void (*const operations[])(TypeParam&, const Variant&) = {
      [](TypeParam& bar, const Variant& block) { bar.SetupTheDecisionBAR(block); },
      [](TypeParam& bar, const Variant& block) { bar.SetupDecisionBAR(block, nullptr); },
      [](TypeParam& bar, const Variant& block) { bar.SetupPlayButtons(block); },
      [](TypeParam& bar, const Variant& block) { bar.HereIsTheDCB(block); },
      [](TypeParam& bar, const Variant& block) { bar.DecodeThisDCB(block); },
  };
  for (const auto operation : operations) {
    for (const Variant& value : {Variant(), Variant::Null(), Variant(5), Variant("block")}) {
      EXPECT_EQ(ErrorCodeOf([&] { operation(*this->bar_, value); }), 424);
    }
    EXPECT_EQ(ErrorCodeOf([&] { operation(*this->bar_, Variant(ObjectRef())); }), 91);
  }
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->HereIsTheDCB(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupDecisionBAR(nullptr, nullptr); }), 91);
  EXPECT_EQ(this->recorder_.Take(), Texts{});
  const auto edition = std::make_shared<PropertyObject>();
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupDecisionBAR(Variant(5), edition); }), 424);
  EXPECT_EQ(this->bar_->KelvoEdition(), edition) << "the edition is kept first";
}

// Blocks that act.

TYPED_TEST(DecisionToolBarFailureTest, ABlockMayDestroyItWheneverItIsRead) {
  const std::size_t reads = 13 + 9;
  for (std::size_t at = 1; at <= reads; ++at) {
    this->bar_ = std::make_unique<TypeParam>(this->site_);
    auto block = this->StrictBlock();
    block->OnRead = [&, watched = block.get()](std::string_view) {
      if (watched->Reads.size() == at) this->bar_.reset();
    };
    this->bar_->SetupTheDecisionBAR(std::move(block));
    EXPECT_EQ(this->bar_, nullptr) << "read " << at;
  }
}

TYPED_TEST(DecisionToolBarFailureTest, ABlockMaySetItUpForAnotherHandWheneverItIsRead) {
  DecisionBlock other;
  other.PlayerName("A much longer name than the first one, so that the text has to grow");
  for (std::size_t at = 14; at <= 22; ++at) {
    const auto block = this->StrictBlock();
    block->OnRead = [&](std::string_view) {
      if (block->Reads.size() == at) this->bar_->SetupTheDecisionBAR(other);
    };
    this->recorder_.Forget();
    this->bar_->SetupTheDecisionBAR(block);
    EXPECT_EQ(this->recorder_.Take(),
              (Texts{"HereIsThePlayersPromptMessage#8(" + other.PlayerName() + " - You have  0  - Make your Selection)",
                     StrictPrompt}));
    EXPECT_EQ(this->bar_->DecodedDCB().PlayerName(), other.PlayerName());
    // The outer setup's steps came last only if they were still to come.
    EXPECT_EQ(this->Button("Split").Enabled(), at > 15) << "read " << at;
    EXPECT_EQ(this->Button("Surrender").Enabled(), at > 16) << "read " << at;
    EXPECT_EQ(this->Button("Double").Enabled(), at > 18) << "read " << at;
  }
}

TYPED_TEST(DecisionToolBarFailureTest, ItsOwnCopyCanBeHandedBack) {
  DecisionBlock block = FullBlock();
  this->bar_->SetupTheDecisionBAR(block);
  this->recorder_.Forget();
  this->bar_->SetupTheDecisionBAR(this->bar_->DecodedDCB());
  EXPECT_EQ(this->recorder_.Take(), Texts{StrictPrompt});
  EXPECT_EQ(this->bar_->DecodedDCB().PlayerName(), "Ann");
}

}  // namespace
}  // namespace tactix::tests
