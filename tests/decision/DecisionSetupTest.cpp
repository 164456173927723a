#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/decision/DecisionStates.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/ForeignBlock.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class DecisionSetupTest : public testing::Test {
 protected:
  DecisionSetupTest() {
    box_->InitProperties();
    recorder_.Watch(box_->Events.All());
  }
  const std::string& Prompt() const { return box_->Children.lblUserControlCaption.Caption(); }

  HeadlessSite site_;
  std::unique_ptr<Decision> box_ = std::make_unique<Decision>(site_);
  EventRecorder recorder_;
};

// The prompt.

struct PromptRow {
  const char* name;
  std::string player;
  std::int16_t hardTotal;
  std::int16_t softTotal;
  std::string prompt;
};

class DecisionPromptTest : public DecisionSetupTest, public testing::WithParamInterface<PromptRow> {};

TEST_P(DecisionPromptTest, SaysWhatThePlayerHas) {
  DecisionBlock block;
  block.PlayerName(GetParam().player);
  block.HardTotal(GetParam().hardTotal);
  block.SoftTotal(GetParam().softTotal);
  box_->SetupTheDecisionBox(block);
  EXPECT_EQ(Prompt(), GetParam().prompt);
  box_->DecisionMade();
  box_->SetupTheDecisionBox(std::make_shared<DecisionBlock>(block));
  EXPECT_EQ(Prompt(), GetParam().prompt);
  box_->DecisionMade();
  box_->SetupDecisionBox(block, nullptr);
  EXPECT_EQ(Prompt(), GetParam().prompt);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionPromptTest,
    testing::Values(PromptRow{"Hard", "Ann", 12, 0, "Ann - You have  12  - Make your Selection"},
                    PromptRow{"Nothing", "", 0, 0, " - You have  0  - Make your Selection"},
                    PromptRow{"Soft", "Ann", 7, 7, "Ann - You have  7 OR  17  - Make your Selection"},
                    PromptRow{"LastSoft", "Ann", 10, 10, "Ann - You have  10 OR  20  - Make your Selection"},
                    PromptRow{"ElevenReadsTwentyOne", "Ann", 11, 11, "Ann - You have  11  - Make your Selection"},
                    PromptRow{"SoftAboveEleven", "Ann", 5, 12, "Ann - You have  5  - Make your Selection"},
                    PromptRow{"NegativeSoft", "Ann", 5, -1, "Ann - You have  5 OR  15  - Make your Selection"},
                    PromptRow{"NegativeHard", "Ann", -12, 3, "Ann - You have -12 OR -2  - Make your Selection"},
                    PromptRow{"HighestHard", "Ann", 32767, 1, "Ann - You have  32767 OR  32777  - Make your Selection"},
                    PromptRow{"LowestHard", "Ann", -32768, 0, "Ann - You have -32768  - Make your Selection"},
                    PromptRow{"NotAscii", "Zoë ♠", 7, 0, "Zoë ♠ - You have  7  - Make your Selection"}),
    RowName());

TEST_F(DecisionSetupTest, AForeignElevenIsNoTwentyOne) {
  const auto block = std::make_shared<ForeignBlock>();
  block->Set(BlockField::HardTotal, 11);
  block->Set(BlockField::SoftTotal, 11);
  box_->SetupTheDecisionBox(block);
  EXPECT_EQ(Prompt(), " - You have  11  - Make your Selection");
  EXPECT_EQ(box_->DecodedDCB().SoftTotal(), 21) << "the copy is a block of the library's, which reads 11 as 21";
}

// The play buttons.

struct PlaysRow {
  const char* name;
  bool restrictions, hit, split, hardDouble, softDouble, surrender;
  Texts shown;
};

class DecisionPlaysTest : public DecisionSetupTest, public testing::WithParamInterface<PlaysRow> {};

TEST_P(DecisionPlaysTest, ShowsWhatTheBlockAllows) {
  const PlaysRow& row = GetParam();
  DecisionBlock block;
  block.ManualPlayerRestrictions(row.restrictions);
  block.HitIsValid(row.hit);
  block.SplitIsValid(row.split);
  block.HardDoubleIsValid(row.hardDouble);
  block.SoftDoubleIsValid(row.softDouble);
  block.SurrenderIsValid(row.surrender);
  // From all hidden and from all shown.
  for (const bool before : {false, true}) {
    const auto show = [&] {
      for (PushButton* button :
           {&box_->Children.SplitButton, &box_->Children.DoubleButton, &box_->Children.SurrenderButton}) {
        button->Visible(before);
      }
    };
    show();
    box_->SetupPlayButtons(block);
    EXPECT_EQ(ShownPlays(*box_), row.shown);
    show();
    box_->SetupPlayButtons(std::make_shared<DecisionBlock>(block));
    EXPECT_EQ(ShownPlays(*box_), row.shown);
    show();
    box_->SetupTheDecisionBox(block);
    EXPECT_EQ(ShownPlays(*box_), row.shown);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionPlaysTest,
    testing::Values(
        PlaysRow{"Fresh", false, false, false, false, false, false, {"Hit", "Stand", "Split", "Double", "Surrender"}},
        PlaysRow{"NothingLegal", true, false, false, false, false, false, {"Hit", "Stand"}},
        PlaysRow{"HitLegal", true, true, false, false, false, false, {"Hit", "Stand"}},
        PlaysRow{"Split", true, false, true, false, false, false, {"Hit", "Stand", "Split"}},
        PlaysRow{"HardDouble", true, false, false, true, false, false, {"Hit", "Stand", "Double"}},
        PlaysRow{"SoftDouble", true, false, false, false, true, false, {"Hit", "Stand", "Double"}},
        PlaysRow{"BothDoubles", true, false, false, true, true, false, {"Hit", "Stand", "Double"}},
        PlaysRow{"Surrender", true, false, false, false, false, true, {"Hit", "Stand", "Surrender"}},
        PlaysRow{"AllLegal", true, true, true, true, true, true, {"Hit", "Stand", "Split", "Double", "Surrender"}}),
    RowName());

TEST_F(DecisionSetupTest, HitAndStandAreLeftAlone) {
  box_->Children.HitButton.Visible(false);
  box_->Children.StandButton.Visible(false);
  box_->SetupTheDecisionBox(DecisionBlock());
  EXPECT_EQ(ShownPlays(*box_), (Texts{"Split", "Double", "Surrender"}));
}

// The rest of the setup.

TEST_F(DecisionSetupTest, SetsUpMenusAndButtons) {
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
  EXPECT_FALSE(box_->Children.AdviceButton.Enabled());
  EXPECT_FALSE(box_->Children.cmdOptions.Enabled());
  DecisionBlock block = FullBlock();
  box_->SetupTheDecisionBox(block);
  EXPECT_EQ(box_->Children.mnuHolecardIsNeutral.Caption(), "Is &7, 8 or 9");
  EXPECT_TRUE(box_->Children.AdviceButton.Enabled());
  EXPECT_TRUE(box_->Children.AdviceButton.DEFAULT());
  EXPECT_TRUE(box_->Children.cmdOptions.Enabled());
  EXPECT_TRUE(box_->Children.mnuPlugClipBoard.Enabled());
  block.PlayingLogEnabled(false);
  block.MidCardsAre("");
  box_->SetupTheDecisionBox(block);
  EXPECT_EQ(box_->Children.mnuHolecardIsNeutral.Caption(), "Is &");
  EXPECT_FALSE(box_->Children.mnuPlugClipBoard.Enabled());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(DecisionSetupTest, OnlyTheWholeSetupChecksThePrompt) {
  box_->TheKelvoEditionIs(std::make_shared<PropertyObject>("thisKelvoEdition", 3));
  ASSERT_TRUE(PromptOnIsChecked(*box_));
  box_->SetupDecisionBox(FullBlock(), nullptr);
  box_->HereIsTheDCB(FullBlock());
  box_->SetupPlayButtons(FullBlock());
  EXPECT_TRUE(PromptOnIsChecked(*box_));
  box_->SetupTheDecisionBox(FullBlock());
  EXPECT_TRUE(PromptOffIsChecked(*box_)) << "the state itself has never been on, whatever the block says";
  box_->DiddleThePromptShit();
  box_->SetupTheDecisionBox(DecisionBlock());
  EXPECT_TRUE(PromptOnIsChecked(*box_));
}

TEST_F(DecisionSetupTest, CopiesTheBlock) {
  const auto expectFull = [this] {
    const DecisionBlock full = FullBlock();
    for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
      const auto field = static_cast<BlockField>(i);
      EXPECT_EQ(box_->DecodedDCB().Field(field), full.Field(field)) << BlockFieldNames[i];
    }
    box_->DecodeThisDCB(DecisionBlock());
    EXPECT_EQ(box_->DecodedDCB().PlayerName(), "");
  };
  const auto foreign = std::make_shared<ForeignBlock>(FullBlock());
  box_->HereIsTheDCB(FullBlock());
  expectFull();
  box_->HereIsTheDCB(foreign);
  expectFull();
  box_->DecodeThisDCB(FullBlock());
  expectFull();
  box_->DecodeThisDCB(foreign);
  expectFull();
  box_->SetupTheDecisionBox(FullBlock());
  expectFull();
  box_->SetupTheDecisionBox(foreign);
  expectFull();
}

TEST_F(DecisionSetupTest, CopyingSetsNothingUp) {
  box_->HereIsTheDCB(FullBlock());
  EXPECT_EQ(Prompt(), "  Make Your Selection");
  EXPECT_EQ(box_->Children.mnuHolecardIsNeutral.Caption(), "is &Mid");
  EXPECT_FALSE(box_->Children.AdviceButton.DEFAULT());
}

TEST_F(DecisionSetupTest, SettingUpFromABlockCopiesNothing) {
  box_->SetupDecisionBox(FullBlock(), nullptr);
  EXPECT_EQ(Prompt(), "Ann - You have  7 OR  17  - Make your Selection");
  EXPECT_EQ(box_->DecodedDCB().PlayerName(), "");
  EXPECT_FALSE(box_->PlayButtonPromptStatus());
}

const Texts CopyReads(BlockFieldNames.begin(), BlockFieldNames.end());

TEST_F(DecisionSetupTest, ReadsInOrder) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  box_->HereIsTheDCB(block);
  EXPECT_EQ(block->Reads, CopyReads);
  block->Reads.clear();
  box_->SetupPlayButtons(block);
  EXPECT_EQ(block->Reads, (Texts{"ManualPlayerRestrictions", "SplitIsValid", "SurrenderIsValid", "HardDoubleIsValid",
                                 "SoftDoubleIsValid"}));
  block->Set(BlockField::ManualPlayerRestrictions, false);
  block->Reads.clear();
  box_->SetupTheDecisionBox(block);
  Texts expected = CopyReads;
  for (const char* name : {"MidCardsAre", "ManualPlayerRestrictions", "PlayingLogEnabled", "StrategyAdvice",
                           "HardTotal", "SoftTotal", "PlayerName"}) {
    expected.emplace_back(name);
  }
  EXPECT_EQ(block->Reads, expected);
}

TEST_F(DecisionSetupTest, ReadsTheBlockThatItWasHandedNotTheCopy) {
  const auto block = std::make_shared<ForeignBlock>();
  block->OnRead = [&](std::string_view name) {
    // The copy is complete with the thirteenth read; from then on the block is another.
    if (block->Reads.size() != BlockFieldNames.size() + 1) return;
    EXPECT_EQ(name, "MidCardsAre");
    DecisionBlock second = FullBlock();
    second.SplitIsValid(false);
    for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
      block->Set(static_cast<BlockField>(i), second.Field(static_cast<BlockField>(i)));
    }
  };
  box_->SetupTheDecisionBox(block);
  EXPECT_EQ(box_->DecodedDCB().PlayerName(), "");
  EXPECT_EQ(box_->DecodedDCB().MidCardsAre(), "");
  EXPECT_FALSE(box_->DecodedDCB().PlayingLogEnabled());
  EXPECT_EQ(Prompt(), "Ann - You have  7 OR  17  - Make your Selection");
  EXPECT_EQ(box_->Children.mnuHolecardIsNeutral.Caption(), "Is &7, 8 or 9");
  EXPECT_EQ(ShownPlays(*box_), (Texts{"Hit", "Stand", "Double", "Surrender"}));
  EXPECT_TRUE(box_->Children.mnuPlugClipBoard.Enabled());
}

TEST_F(DecisionSetupTest, MaySetUpFromItsOwnCopy) {
  DecisionBlock block = FullBlock();
  block.SoftTotal(11);
  box_->SetupTheDecisionBox(block);
  const std::string prompt = Prompt();
  box_->DecisionMade();
  box_->SetupTheDecisionBox(box_->DecodedDCB());
  EXPECT_EQ(Prompt(), prompt);
  EXPECT_EQ(box_->DecodedDCB().PlayerName(), "Ann");
}

TEST_F(DecisionSetupTest, NothingOfAnEarlierHandIsKept) {
  box_->SetupTheDecisionBox(FullBlock());
  box_->SetupTheDecisionBox(DecisionBlock());
  EXPECT_EQ(Prompt(), " - You have  0  - Make your Selection");
  EXPECT_EQ(box_->DecodedDCB().MidCardsAre(), "");
  EXPECT_FALSE(box_->DecodedDCB().HitIsValid());
}

}  // namespace
}  // namespace tactix::tests
