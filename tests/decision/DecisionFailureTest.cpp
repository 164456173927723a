// Blocks that lack something, hold something else, or do something while they are read.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/decision/DecisionStates.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/ForeignBlock.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class DecisionFailureTest : public testing::Test {
 protected:
  DecisionFailureTest() { box_->InitProperties(); }

  /// What setting up a full block changes, in the order of its steps. Ends with the advised play, which asking for
  /// advice makes the default one.
  Texts State() {
    const Decision::ChildWidgets& w = box_->Children;
    Texts state = {
        w.mnuHolecardIsNeutral.Caption(),
        w.SplitButton.Visible() ? "split" : "",
        w.SurrenderButton.Visible() ? "surrender" : "",
        w.DoubleButton.Visible() ? "double" : "",
        w.AdviceButton.DEFAULT() ? "advice" : "",
        w.cmdOptions.Enabled() ? "options" : "",
        w.mnuPlugClipBoard.Enabled() ? "clipboard" : "",
        "",
        w.lblUserControlCaption.Caption(),
    };
    box_->Children.AdviceButton.Extender().Visible(true);
    box_->Children.AdviceButton.Children.cmdAdviceButton.Click();
    state[7] = DefaultPlay(*box_);
    return state;
  }

  HeadlessSite site_;
  std::unique_ptr<Decision> box_ = std::make_unique<Decision>(site_);
};

// What copying leaves undone.

TEST_F(DecisionFailureTest, ACopyStopsAtThePropertyThatIsMissing) {
  for (std::size_t missing = 0; missing < BlockFieldNames.size(); ++missing) {
    for (const bool whole : {false, true}) {
      Decision box(site_);
      const auto block = std::make_shared<ForeignBlock>(FullBlock());
      block->Remove(static_cast<BlockField>(missing));
      EXPECT_EQ(ErrorCodeOf([&] { whole ? box.SetupTheDecisionBox(block) : box.DecodeThisDCB(block); }), 438);
      for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
        const auto field = static_cast<BlockField>(i);
        EXPECT_EQ(box.DecodedDCB().Field(field), (i < missing ? FullBlock() : DecisionBlock()).Field(field))
            << BlockFieldNames[i] << " without " << BlockFieldNames[missing];
      }
      EXPECT_EQ(box.Children.lblUserControlCaption.Caption(), "  Make Your Selection");
      EXPECT_EQ(box.Children.mnuHolecardIsNeutral.Caption(), "is &Mid");
    }
  }
}

struct ValueRow {
  const char* name;
  BlockField field;
  Variant value;
  int code;
};

class DecisionValueTest : public DecisionFailureTest, public testing::WithParamInterface<ValueRow> {};

TEST_P(DecisionValueTest, ACopyFailsFor) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  block->Set(GetParam().field, GetParam().value);
  EXPECT_EQ(ErrorCodeOf([&] { box_->HereIsTheDCB(block); }), GetParam().code);
  EXPECT_EQ(box_->DecodedDCB().Field(GetParam().field), DecisionBlock().Field(GetParam().field));
  EXPECT_EQ(box_->DecodedDCB().HitIsValid(), false) << "the last property is not reached";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionValueTest,
    testing::Values(ValueRow{"SoftTotalTooLarge", BlockField::SoftTotal, 32768, 6},
                    ValueRow{"SoftTotalTooSmall", BlockField::SoftTotal, -32769, 6},
                    ValueRow{"SoftTotalText", BlockField::SoftTotal, "soft", 13},
                    ValueRow{"SoftTotalNull", BlockField::SoftTotal, Variant::Null(), 94},
                    ValueRow{"HardTotalTooLarge", BlockField::HardTotal, 32767.5, 6},
                    ValueRow{"HardTotalEmptyText", BlockField::HardTotal, "", 13},
                    ValueRow{"StrategyAdviceTooLarge", BlockField::StrategyAdvice, 40000, 6},
                    ValueRow{"PlayerNameNull", BlockField::PlayerName, Variant::Null(), 94},
                    ValueRow{"PlayerNameFont", BlockField::PlayerName, Font{}, 13},
                    ValueRow{"MidCardsObject", BlockField::MidCardsAre, nullptr, 91},
                    ValueRow{"RestrictionsWord", BlockField::ManualPlayerRestrictions, "maybe", 13},
                    ValueRow{"RestrictionsNull", BlockField::ManualPlayerRestrictions, Variant::Null(), 94},
                    ValueRow{"LogNull", BlockField::PlayingLogEnabled, Variant::Null(), 94},
                    ValueRow{"PromptWord", BlockField::PromptPlayButtons, "on", 13},
                    ValueRow{"HitNull", BlockField::HitIsValid, Variant::Null(), 94}),
    RowName());

// What a setup leaves undone.

/// A setup stops at a property; the steps before it are done. `done` counts the entries of State() that are new.
struct StopRow {
  const char* name;
  BlockField field;
  std::size_t done;
};

class DecisionStopTest : public DecisionFailureTest, public testing::WithParamInterface<StopRow> {
 protected:
  void ExpectStop(const ObjectRef& block, int code) {
    const Texts before = {"is &Mid", "", "", "", "", "", "", "", "  Make Your Selection"};
    const Texts after = {"Is &7, 8 or 9", "split",  "surrender",
                         "double",        "advice", "options",
                         "clipboard",     "Stand",  "Ann - You have  7 OR  17  - Make your Selection"};
    for (PushButton* button :
         {&box_->Children.SplitButton, &box_->Children.SurrenderButton, &box_->Children.DoubleButton}) {
      button->Visible(false);
    }
    box_->Children.cmdOptions.Enabled(false);
    box_->Children.mnuPlugClipBoard.Enabled(false);
    const auto edition = std::make_shared<PropertyObject>();
    const bool isRead = GetParam().done < after.size();
    EXPECT_EQ(ErrorCodeOf([&] { box_->SetupDecisionBox(block, edition); }), isRead ? code : 0);
    EXPECT_EQ(edition.use_count(), 2) << "the edition is kept first";
    Texts expected(after.begin(), after.begin() + static_cast<std::ptrdiff_t>(GetParam().done));
    expected.insert(expected.end(), before.begin() + static_cast<std::ptrdiff_t>(GetParam().done), before.end());
    EXPECT_EQ(State(), expected);
  }
};

TEST_P(DecisionStopTest, ASetupStopsAtThePropertyThatIsMissing) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  block->Remove(GetParam().field);
  ExpectStop(block, 438);
}

TEST_P(DecisionStopTest, ASetupStopsAtThePropertyThatFails) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  block->OnRead = [](std::string_view name) {
    if (name == NameOf(GetParam().field)) throw Error(1234);
  };
  ExpectStop(block, 1234);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionStopTest,
    testing::Values(
        StopRow{"MidCards", BlockField::MidCardsAre, 0},
        StopRow{"Restrictions", BlockField::ManualPlayerRestrictions, 1}, StopRow{"Split", BlockField::SplitIsValid, 1},
        StopRow{"Surrender", BlockField::SurrenderIsValid, 2}, StopRow{"HardDouble", BlockField::HardDoubleIsValid, 3},
        StopRow{"SoftDouble", BlockField::SoftDoubleIsValid, 3}, StopRow{"Log", BlockField::PlayingLogEnabled, 6},
        StopRow{"Advice", BlockField::StrategyAdvice, 7}, StopRow{"HardTotal", BlockField::HardTotal, 8},
        StopRow{"SoftTotal", BlockField::SoftTotal, 8}, StopRow{"PlayerName", BlockField::PlayerName, 8},
        // Neither is read by a setup.
        StopRow{"Prompt", BlockField::PromptPlayButtons, 9}, StopRow{"Hit", BlockField::HitIsValid, 9}),
    RowName());

struct SetupValueRow {
  const char* name;
  BlockField field;
  Variant value;
  int code;
};

class DecisionSetupValueTest : public DecisionFailureTest, public testing::WithParamInterface<SetupValueRow> {};

TEST_P(DecisionSetupValueTest, ASetupFailsFor) {
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  block->Set(GetParam().field, GetParam().value);
  EXPECT_EQ(ErrorCodeOf([&] { box_->SetupDecisionBox(block, nullptr); }), GetParam().code);
  EXPECT_EQ(box_->Children.lblUserControlCaption.Caption(), "  Make Your Selection");
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionSetupValueTest,
                         testing::Values(SetupValueRow{"AdviceTooLarge", BlockField::StrategyAdvice, 32768, 6},
                                         SetupValueRow{"AdviceText", BlockField::StrategyAdvice, "hit", 13},
                                         SetupValueRow{"RestrictionsWord", BlockField::ManualPlayerRestrictions, "x",
                                                       13},
                                         SetupValueRow{"LogWord", BlockField::PlayingLogEnabled, "x", 13},
                                         SetupValueRow{"SplitNull", BlockField::SplitIsValid, Variant::Null(), 94},
                                         SetupValueRow{"HardTotalText", BlockField::HardTotal, "x", 13},
                                         SetupValueRow{"HardTotalNullObject", BlockField::HardTotal, nullptr, 91},
                                         SetupValueRow{"SoftTotalText", BlockField::SoftTotal, "x", 13},
                                         SetupValueRow{"NameNull", BlockField::PlayerName, Variant::Null(), 94},
                                         SetupValueRow{"MidCardsNull", BlockField::MidCardsAre, Variant::Null(), 94}),
                         RowName());

/// Values that the box tests directly: flags may be Empty, Null, texts and numbers.
struct FlagRow {
  const char* name;
  Variant value;
  bool isSet;
};

class DecisionFlagTest : public DecisionFailureTest, public testing::WithParamInterface<FlagRow> {};

TEST_P(DecisionFlagTest, IsTestedDirectly) {
  const auto& [name, value, isSet] = GetParam();
  const auto block = std::make_shared<ForeignBlock>(FullBlock());
  block->Set(BlockField::SplitIsValid, false);
  block->Set(BlockField::ManualPlayerRestrictions, value);
  block->Set(BlockField::PlayingLogEnabled, value);
  box_->SetupDecisionBox(block, nullptr);
  EXPECT_EQ(box_->Children.SplitButton.Visible(), !isSet);
  EXPECT_EQ(box_->Children.mnuPlugClipBoard.Enabled(), isSet);
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionFlagTest,
                         testing::Values(FlagRow{"Empty", {}, false}, FlagRow{"Null", Variant::Null(), false},
                                         FlagRow{"False", false, false}, FlagRow{"True", true, true},
                                         FlagRow{"Zero", 0, false}, FlagRow{"Number", 2.5, true},
                                         FlagRow{"TrueText", "tRUE", true}, FlagRow{"FalseText", "False", false},
                                         FlagRow{"NumberText", "-1", true}),
                         RowName());

TEST_F(DecisionFailureTest, AnEmptyOrNullSoftTotalIsNoSoftHand) {
  for (const Variant& softTotal : {Variant(), Variant::Null(), Variant(0)}) {
    const auto block = std::make_shared<ForeignBlock>(FullBlock());
    block->Set(BlockField::SoftTotal, softTotal);
    box_->SetupDecisionBox(block, nullptr);
    EXPECT_EQ(box_->Children.lblUserControlCaption.Caption(), "Ann - You have  7  - Make your Selection");
  }
}

TEST_F(DecisionFailureTest, NeedsAnObject) {
  void (*const operations[])(Decision&, const Variant&) = {
      [](Decision& box, const Variant& block) { box.SetupTheDecisionBox(block); },
      [](Decision& box, const Variant& block) { box.SetupDecisionBox(block, nullptr); },
      [](Decision& box, const Variant& block) { box.SetupPlayButtons(block); },
      [](Decision& box, const Variant& block) { box.HereIsTheDCB(block); },
      [](Decision& box, const Variant& block) { box.DecodeThisDCB(block); },
  };
  for (const auto operation : operations) {
    for (const Variant& value : {Variant(), Variant::Null(), Variant(5), Variant("block")}) {
      EXPECT_EQ(ErrorCodeOf([&] { operation(*box_, value); }), 424);
    }
    EXPECT_EQ(ErrorCodeOf([&] { operation(*box_, Variant(ObjectRef())); }), 91);
  }
}

TEST_F(DecisionFailureTest, ANullPointerIsTheNullObject) {
  EXPECT_EQ(ErrorCodeOf([&] { box_->SetupTheDecisionBox(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { box_->SetupDecisionBox(nullptr, nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { box_->SetupPlayButtons(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { box_->HereIsTheDCB(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { box_->DecodeThisDCB(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { box_->TheKelvoEditionIs(nullptr); }), 91);
}

TEST_F(DecisionFailureTest, TheEditionIsKeptBeforeTheBlockIsRead) {
  const auto first = std::make_shared<PropertyObject>();
  box_->SetupDecisionBox(DecisionBlock(), first);
  for (const auto& [block, code] : {std::pair<Variant, int>{5, 424}, {Variant::Null(), 424}, {nullptr, 91}}) {
    const auto edition = std::make_shared<PropertyObject>();
    edition->OnCall = [](std::string_view, std::span<Variant> arguments) { arguments[0] = 9; };
    EXPECT_EQ(ErrorCodeOf([&, &given = block] { box_->SetupDecisionBox(given, edition); }), code);
    std::int16_t flag = 1;
    box_->Show(flag);
    EXPECT_EQ(flag, 9) << "shown by the new edition";
  }
  EXPECT_EQ(first.use_count(), 1);
}

TEST_F(DecisionFailureTest, TheEditionThatGoesMayTakeTheBoxAndTheBlockWithIt) {
  auto block = std::make_shared<ForeignBlock>(FullBlock());
  Variant handedOver = block;
  const auto takeAll = [&](PropertyObject*) {
    box_.reset();
    handedOver = {};
    block.reset();
  };
  const auto self = std::make_unique<PropertyObject>();
  box_->SetupDecisionBox(DecisionBlock(), ObjectRef(self.get(), takeAll));
  box_->SetupDecisionBox(handedOver, nullptr);
  EXPECT_EQ(box_, nullptr);
}

// Blocks that act.

TEST_F(DecisionFailureTest, ABlockMayDestroyTheBoxWheneverItIsRead) {
  const std::size_t reads = 13 + 11;
  for (std::size_t at = 1; at <= reads; ++at) {
    box_ = std::make_unique<Decision>(site_);
    auto block = std::make_shared<ForeignBlock>(FullBlock());
    block->OnRead = [&, watched = block.get()](std::string_view) {
      if (watched->Reads.size() == at) box_.reset();
    };
    box_->SetupTheDecisionBox(std::move(block));
    EXPECT_EQ(box_, nullptr) << "read " << at;
  }
}

TEST_F(DecisionFailureTest, ABlockMaySetTheBoxUpForAnotherHandWheneverItIsRead) {
  DecisionBlock other;
  other.PlayerName("A much longer name than the first one, so that every text has to grow");
  other.MidCardsAre("other mid cards, in a text that is a good deal longer than the first");
  for (std::size_t at = 14; at <= 24; ++at) {
    const auto block = std::make_shared<ForeignBlock>(FullBlock());
    block->OnRead = [&](std::string_view) {
      if (block->Reads.size() == at) box_->SetupTheDecisionBox(other);
    };
    box_->SetupTheDecisionBox(block);
    EXPECT_EQ(box_->Children.lblUserControlCaption.Caption(), "Ann - You have  7 OR  17  - Make your Selection");
    EXPECT_EQ(box_->DecodedDCB().PlayerName(), other.PlayerName());
    // The outer setup's step came last only if it was still to come.
    EXPECT_EQ(box_->Children.mnuHolecardIsNeutral.Caption(), at == 14 ? "Is &7, 8 or 9" : "Is &" + other.MidCardsAre())
        << "read " << at;
  }
}

}  // namespace
}  // namespace tactix::tests
