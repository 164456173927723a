// What both decision toolbars do, without a user at a window.

#include "tactix/decision/DecisionToolBar.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class Bar>
class DecisionToolBarTest : public DecisionToolBarFixture<Bar> {};
TYPED_TEST_SUITE(DecisionToolBarTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarTest, ClicksRaiseTheirEventsAndPredictionsNone) {
  struct Row {
    const char* key;
    const char* event;
  };
  constexpr Row Rows[] = {
      {"Hit", "HitButtonWasPressed#1"},
      {"Stand", "StandButtonWasPressed#2"},
      {"Split", "SplitButtonWasPressed#3"},
      {"Double", "DoubleButtonWasPressed#4"},
      {"Surrender", "SurrenderButtonWasPressed#7"},
      {"ClumpStatistics", "StatsButtonWasPressed#5"},
  };
  for (const Row& row : Rows) {
    this->Button(row.key).Click();
    EXPECT_EQ(this->recorder_.Take(), Texts{row.event});
  }
  for (const auto& button : this->bar_->Children.DecisionToolBar.Buttons()) {
    if (button->Style() == ToolButtonStyle::Push) continue;
    button->Click();
    EXPECT_EQ(this->recorder_.Take(), Texts{}) << button->Key();
  }
}

TYPED_TEST(DecisionToolBarTest, APredictionIsRecordedAndStaysPressedAloneInItsGroup) {
  struct Row {
    const char* key;
    PredictionRecord record;
  };
  constexpr Row Rows[] = {
      {"HitcardLow", {1, 0, 0, 0}},     {"HitcardMid", {2, 0, 0, 0}},          {"HitcardHigh", {3, 0, 0, 0}},
      {"HitcardUnknown", {4, 0, 0, 0}}, {"HolecardLow", {0, 1, 0, 0}},         {"HolecardMid", {0, 2, 0, 0}},
      {"HolecardHigh", {0, 3, 0, 0}},   {"HolecardUnknown", {0, 4, 0, 0}},     {"TensRatioLow", {0, 0, 1, 0}},
      {"TensRatioHigh", {0, 0, 3, 0}},  {"DealerStrengthWeak", {0, 0, 0, -1}}, {"DealerStrengthStrong", {0, 0, 0, 1}},
  };
  for (const Row& row : Rows) {
    TypeParam bar(this->site_);
    ToolButton& button = bar.Children.DecisionToolBar.Button(row.key);
    for (int click = 0; click < 2; ++click) {
      button.Click();
      EXPECT_EQ(RecordOf(bar), row.record) << row.key;
      EXPECT_TRUE(button.Value()) << row.key;
    }
  }
  for (const char* key : {"HitcardLow", "HolecardMid", "TensRatioHigh", "DealerStrengthWeak", "HitcardHigh"}) {
    this->Button(key).Click();
  }
  EXPECT_EQ(this->Pressed(), (Texts{"HitcardHigh", "HolecardMid", "TensRatioHigh", "DealerStrengthWeak"}));
  EXPECT_EQ(this->Record(), (PredictionRecord{3, 2, 3, -1}));
}

TYPED_TEST(DecisionToolBarTest, ResettingLeavesThePressedUnknownButtons) {
  this->Button("HitcardMid").Click();
  this->Button("HitcardUnknown").Click();
  EXPECT_EQ(this->Record()[0], 4);
  this->Button("HolecardUnknown").Click();
  this->Button("TensRatioLow").Click();
  this->bar_->ResetYourResponseData();
  EXPECT_EQ(this->Record(), (PredictionRecord{}));
  EXPECT_EQ(this->Pressed(), (Texts{"HitcardUnknown", "HolecardUnknown"}));
  for (const char* key : {"HitcardHigh", "HolecardLow", "TensRatioHigh", "DealerStrengthStrong"}) {
    this->Button(key).Click();
  }
  EXPECT_EQ(this->Pressed(), (Texts{"HitcardHigh", "HolecardLow", "TensRatioHigh", "DealerStrengthStrong"}));
  this->bar_->ResetYourResponseData();
  EXPECT_EQ(this->Pressed(), Texts{});
}

TYPED_TEST(DecisionToolBarTest, GettingReadyClearsOnlyWhenAskedTo) {
  this->Button("TensRatioLow").Click();
  this->bar_->GetReadyForADecision();
  EXPECT_EQ(this->Record()[2], 1);
  EXPECT_EQ(this->Pressed(), Texts{"TensRatioLow"});
  this->bar_->ResetPredictionButtons(true);
  this->bar_->GetReadyForADecision();
  EXPECT_EQ(this->Record()[2], 0);
  EXPECT_EQ(this->Pressed(), Texts{});
}

TYPED_TEST(DecisionToolBarTest, EnablesThePlaysThatTheBlockAllows) {
  struct Row {
    const char* name;
    bool restricted, split, hardDouble, softDouble, surrender;
    const char* enabled;
  };
  constexpr Row Rows[] = {
      {"unrestricted", false, false, false, false, false, "Split Double Surrender"},
      {"nothing legal", true, false, false, false, false, ""},
      {"split", true, true, false, false, false, "Split"},
      {"hard double", true, false, true, false, false, "Double"},
      {"soft double", true, false, false, true, false, "Double"},
      {"surrender", true, false, false, false, true, "Surrender"},
      {"all", true, true, true, true, true, "Split Double Surrender"},
  };
  for (const Row& row : Rows) {
    SCOPED_TRACE(row.name);
    DecisionBlock block;
    block.ManualPlayerRestrictions(row.restricted);
    block.SplitIsValid(row.split);
    block.HardDoubleIsValid(row.hardDouble);
    block.SoftDoubleIsValid(row.softDouble);
    block.SurrenderIsValid(row.surrender);
    this->bar_->SetupTheDecisionBAR(block);
    std::string enabled;
    for (const char* key : {"Split", "Double", "Surrender"}) {
      if (this->Button(key).Enabled()) enabled += (enabled.empty() ? "" : " ") + std::string(key);
    }
    EXPECT_EQ(enabled, row.enabled);
    for (const char* key : {"Hit", "Stand", "Advice", "HitcardLow"}) EXPECT_TRUE(this->Button(key).Enabled());
  }
}

TYPED_TEST(DecisionToolBarTest, RaisesThePromptAtTheEndOfSettingUp) {
  struct Row {
    std::int16_t hard, soft;
    const char* prompt;
  };
  constexpr Row Rows[] = {
      {7, 1, "Ann - You have  7 OR  17  - Make your Selection"},
      {7, 0, "Ann - You have  7  - Make your Selection"},
      {11, 11, "Ann - You have  11  - Make your Selection"},
      {7, 12, "Ann - You have  7  - Make your Selection"},
      {7, -3, "Ann - You have  7 OR  17  - Make your Selection"},
      {-2, 0, "Ann - You have -2  - Make your Selection"},
      {-12, 1, "Ann - You have -12 OR -2  - Make your Selection"},
      {0, 0, "Ann - You have  0  - Make your Selection"},
      {9, 10, "Ann - You have  9 OR  19  - Make your Selection"},
      {32767, 10, "Ann - You have  32767 OR  32777  - Make your Selection"},
  };
  for (const Row& row : Rows) {
    this->bar_->SetupTheDecisionBAR(this->BlockFor(row.hard, row.soft));
    EXPECT_EQ(this->recorder_.Take(), Texts{std::string("HereIsThePlayersPromptMessage#8(") + row.prompt + ")"});
  }
}

TYPED_TEST(DecisionToolBarTest, TakesABlockHoweverItComes) {
  const DecisionBlock block = this->BlockFor(12, 0);
  const Variant object(std::make_shared<DecisionBlock>(block));
  const auto edition = std::make_shared<PropertyObject>();
  const struct {
    const char* name;
    void (*act)(TypeParam&, const Variant&, const DecisionBlock&, const ObjectRef&);
    bool copies, prompts;
  } rows[] = {
      {"whole, object",
       [](TypeParam& bar, const Variant& v, const DecisionBlock&, const ObjectRef&) { bar.SetupTheDecisionBAR(v); },
       true, true},
      {"whole, block",
       [](TypeParam& bar, const Variant&, const DecisionBlock& b, const ObjectRef&) { bar.SetupTheDecisionBAR(b); },
       true, true},
      {"object",
       [](TypeParam& bar, const Variant& v, const DecisionBlock&, const ObjectRef& e) { bar.SetupDecisionBAR(v, e); },
       false, true},
      {"block",
       [](TypeParam& bar, const Variant&, const DecisionBlock& b, const ObjectRef& e) { bar.SetupDecisionBAR(b, e); },
       false, true},
      {"here, object",
       [](TypeParam& bar, const Variant& v, const DecisionBlock&, const ObjectRef&) { bar.HereIsTheDCB(v); }, true,
       false},
      {"here, block",
       [](TypeParam& bar, const Variant&, const DecisionBlock& b, const ObjectRef&) { bar.HereIsTheDCB(b); }, true,
       false},
      {"decode, object",
       [](TypeParam& bar, const Variant& v, const DecisionBlock&, const ObjectRef&) { bar.DecodeThisDCB(v); }, true,
       false},
      {"decode, block",
       [](TypeParam& bar, const Variant&, const DecisionBlock& b, const ObjectRef&) { bar.DecodeThisDCB(b); }, true,
       false},
      {"plays, object",
       [](TypeParam& bar, const Variant& v, const DecisionBlock&, const ObjectRef&) { bar.SetupPlayButtons(v); }, false,
       false},
      {"plays, block",
       [](TypeParam& bar, const Variant&, const DecisionBlock& b, const ObjectRef&) { bar.SetupPlayButtons(b); }, false,
       false},
  };
  for (const auto& row : rows) {
    TypeParam bar(this->site_);
    EventRecorder recorder;
    recorder.Watch(bar.Events.All());
    row.act(bar, object, block, edition);
    EXPECT_EQ(bar.DecodedDCB().HardTotal(), row.copies ? 12 : 0) << row.name;
    EXPECT_EQ(recorder.Take(), row.prompts ? Texts{"HereIsThePlayersPromptMessage#8(Ann - You have  12  - Make your "
                                                   "Selection)"}
                                           : Texts{})
        << row.name;
  }
}

TYPED_TEST(DecisionToolBarTest, SettingUpForAHandNeedsAnEditionAndKeepsTheOneItHas) {
  this->bar_->SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->editionsMade_, 1);
  this->bar_->SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->editionsMade_, 1);
  const auto own = std::make_shared<PropertyObject>();
  this->bar_->SetupDecisionBAR(this->BlockFor(9, 0), own);
  EXPECT_EQ(this->bar_->KelvoEdition(), own);
  EXPECT_EQ(own->Log, Texts{}) << "it is kept and not asked";
  this->bar_->SetupDecisionBAR(this->BlockFor(9, 0), nullptr);
  EXPECT_EQ(this->editionsMade_, 1);
  this->bar_->KelvoEdition();
  EXPECT_EQ(this->editionsMade_, 2) << "none was handed over";
}

TYPED_TEST(DecisionToolBarTest, AHandlerMayChangeThePromptAndSetUpTheNextHand) {
  Texts prompts;
  this->bar_->Events.HereIsThePlayersPromptMessage.Connect([&](std::string& prompt) {
    prompt = "changed";
    if (prompts.empty()) {
      prompts.push_back("first");
      this->bar_->SetupTheDecisionBAR(this->BlockFor(3, 0));
    }
  });
  this->bar_->Events.HereIsThePlayersPromptMessage.Connect([&](std::string& prompt) { prompts.push_back(prompt); });
  this->recorder_.Forget();
  this->bar_->SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->recorder_.Take(),
            (Texts{"HereIsThePlayersPromptMessage#8(Ann - You have  9  - Make your Selection)",
                   "HereIsThePlayersPromptMessage#8(Ann - You have  3  - Make your Selection)"}));
  EXPECT_EQ(prompts, (Texts{"first", "changed", "changed"}));
}

}  // namespace
}  // namespace tactix::tests
