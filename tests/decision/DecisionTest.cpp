#include "tactix/decision/Decision.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "tests/decision/DecisionFixture.h"
#include "tests/decision/DecisionStates.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class DecisionTest : public DecisionFixture {};

TEST_F(DecisionTest, NumbersAndNamesItsEvents) {
  Texts events;
  const auto note = [&](auto&... each) {
    (events.push_back(std::to_string(each.Number()) + " " + std::string(each.Name())), ...);
  };
  std::apply(note, box_->Events.All());
  EXPECT_EQ(events, (Texts{"1 AdviceRequested",
                           "2 BurnACardRequested",
                           "3 EvaluationStrategySelected",
                           "4 HitCardHiPrediction",
                           "5 HitCardLoPrediction",
                           "6 HitCardNeutralPrediction",
                           "7 HitCardUnknownPrediction",
                           "8 PlayerDoublesDown",
                           "9 PlayerHits",
                           "10 PlayerSplits",
                           "11 PlayerStands",
                           "12 PlayerSurrenders",
                           "13 PlugHandCardsInClipboard",
                           "14 PlugPromptPlayHands",
                           "15 TensRatioHiPrediction",
                           "16 TensRatioLoPrediction",
                           "17 WholeCardHiPrediction",
                           "18 WholeCardLoPrediction",
                           "19 WholeCardNeutralPrediction",
                           "20 WholeCardUnknownPrediction",
                           "21 Show"}));
}

TEST_F(DecisionTest, HasItsDesign) {
  const struct {
    const Captioned& widget;
    const char* name;
    const char* caption;
    const char* toolTip;
  } rows[] = {
      {children_.HitButton, "HitButton", "HIT", ""},
      {children_.StandButton, "StandButton", "Stand", ""},
      {children_.SplitButton, "SplitButton", "SPLIT", ""},
      {children_.DoubleButton, "DoubleButton", "DOUBLE", ""},
      {children_.SurrenderButton, "SurrenderButton", "Surrender", ""},
      {children_.cmdHoleCard, "cmdHoleCard", "&HoleCard", ""},
      {children_.cmdTensRatio, "cmdTensRatio", "&Tens-Ratio", ""},
      {children_.cmdOptions, "cmdOptions", "&Options", ""},
      {children_.lblUserControlCaption, "lblUserControlCaption", "  Make Your Selection",
       "for Predictions: [Shift]=High, [Ctrl]=Low, [Alt]=Mid, [Ctrl+Shift]=Unknown"},
      {children_.lblDecision, "lblDecision", "", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.widget.Name(), row.name);
    EXPECT_EQ(row.widget.Caption(), row.caption);
    EXPECT_EQ(row.widget.ToolTipText(), row.toolTip) << row.name;
  }
  EXPECT_EQ(children_.ManualPlayButtons.ToolTipText(), "H=Hit, S=Stand, P=Split, D=Double, G=Surrender");
  EXPECT_EQ(children_.ManualPlayButtons.Name(), "ManualPlayButtons");
  EXPECT_EQ(children_.AdviceButton.Extender().Name(), "AdviceButton");
  EXPECT_EQ(children_.picDecision.Name(), "picDecision");
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(children_.lblDecision.Parent(), &children_.picDecision);
  for (const DecisionPlay& play : DecisionPlays) {
    EXPECT_EQ((children_.*play.button).Parent(), &children_.ManualPlayButtons);
  }
  EXPECT_FALSE(children_.BlinkTimer.Enabled());
}

TEST_F(DecisionTest, HasItsMenus) {
  const struct {
    const Menu& menu;
    const char* caption;
    Texts entries;
  } rows[] = {
      {children_.mnuHoleCard, "&Hole Card", {"is &High", "-", "is &Low", "-", "is &Mid", "-", "is &Unknown"}},
      {children_.mnuTensRatio, "&Tens Ratio", {"is &High", "-", "is &Low"}},
      {children_.mnuOptions,
       "&Options",
       {"&Prompts", "Prompt &On", "Prompt O&ff", "-", "&Adjust Bet", "&Backup a Seat", "Burn A &Card",
        "&Plug Hand in Clipboard"}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.menu.Caption(), row.caption);
    Texts entries;
    for (const MenuEntry* entry : row.menu.Entries()) entries.push_back(entry->Caption());
    EXPECT_EQ(entries, row.entries);
  }
  EXPECT_TRUE(PromptOffIsChecked(*box_));
}

TEST_F(DecisionTest, AMenuPopsUpBelowItsButtonsTop) {
  const struct {
    PushButton& button;
    const char* caption;
  } rows[] = {{children_.cmdHoleCard, "&Hole Card"},
              {children_.cmdTensRatio, "&Tens Ratio"},
              {children_.cmdOptions, "&Options"}};
  for (const auto& row : rows) {
    site_.ForgetRecords();
    row.button.Click();
    ASSERT_EQ(site_.PopUps().size(), 1U);
    EXPECT_EQ(site_.PopUps()[0].caption, row.caption);
    EXPECT_EQ(site_.PopUps()[0].x, row.button.Left());
    EXPECT_EQ(site_.PopUps()[0].y, row.button.Top() + 21);
  }
  EXPECT_NE(children_.cmdHoleCard.Left(), children_.cmdTensRatio.Left());
  EXPECT_NE(children_.cmdTensRatio.Left(), children_.cmdOptions.Left());
}

TEST_F(DecisionTest, HasItsDefaults) {
  EXPECT_EQ(box_->AllowAdvice(), 0);
  EXPECT_EQ(box_->DecisionBoxType(), TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(box_->thisKelvoEdition(), 0);
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_FALSE(box_->PlayButtonPromptStatus());
  EXPECT_EQ(box_->ToolTip(), "");
  EXPECT_EQ(box_->Qualifier(), "07-08-2001 - 21:00");
}

// Small operations.

TEST_F(DecisionTest, TheQualifierIsFixed) {
  box_->Qualifier("now");
  EXPECT_EQ(box_->Qualifier(), "07-08-2001 - 21:00");
}

TEST_F(DecisionTest, TheToolTipIsTheBoxes) {
  box_->ToolTip("tip");
  EXPECT_EQ(box_->ToolTip(), "tip");
  EXPECT_EQ(box_->Extender().ToolTipText(), "tip");
  EXPECT_EQ(children_.AdviceButton.Extender().ToolTipText(), "");
}

TEST_F(DecisionTest, TheToolTipMessageNamesTheStrategyInUpperCase) {
  box_->ToolTipMessage("Basic play, no. 3z");
  EXPECT_EQ(children_.AdviceButton.Extender().ToolTipText(),
            "Click this to see Kelvo' recommendation based on: BASIC PLAY, NO. 3Z");
  box_->ToolTipMessage("Jürgens große Wette, ход дилера, στοίχημα ♠");
  EXPECT_EQ(children_.AdviceButton.Extender().ToolTipText(),
            "Click this to see Kelvo' recommendation based on: JÜRGENS GROßE WETTE, ХОД ДИЛЕРА, ΣΤΟΊΧΗΜΑ ♠");
  EXPECT_EQ(box_->ToolTip(), "");
}

TEST_F(DecisionTest, PromptingReadsTheStateAndWritesTheCopy) {
  box_->PromptThePlayButtons(true);
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_TRUE(box_->PlayButtonPromptStatus());
  EXPECT_TRUE(box_->DecodedDCB().PromptPlayButtons());
  EXPECT_TRUE(PromptOffIsChecked(*box_));
  box_->DiddleThePromptShit();
  EXPECT_TRUE(box_->PromptThePlayButtons());
  EXPECT_TRUE(PromptOnIsChecked(*box_));
  box_->PromptThePlayButtons(false);
  EXPECT_TRUE(box_->PromptThePlayButtons());
  EXPECT_FALSE(box_->PlayButtonPromptStatus());
  box_->DiddleThePromptShit();
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_TRUE(PromptOffIsChecked(*box_));
}

TEST_F(DecisionTest, ADecisionClearsPromptAndDescription) {
  box_->SetupTheDecisionBox(FullBlock());
  box_->SetDescriptionBoxState(1, 0, 10, "Hit");
  box_->DecisionMade();
  EXPECT_EQ(children_.lblUserControlCaption.Caption(), "");
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

struct KeysRow {
  const char* name;
  std::int16_t keys;
  Texts events;
  std::string text;
};

class DecisionPredictionTest : public DecisionTest, public testing::WithParamInterface<KeysRow> {};

TEST_P(DecisionPredictionTest, PredictsAndDescribes) {
  const auto& [name, keys, events, text] = GetParam();
  children_.lblDecision.Caption("before");
  box_->PredictTheHitCard(keys);
  EXPECT_EQ(recorder_.Take(), events);
  EXPECT_EQ(children_.lblDecision.Caption(), "before");
  box_->DisplayHitcardSetting(keys);
  EXPECT_EQ(children_.lblDecision.Caption(), text.empty() ? "before" : text);
  EXPECT_FALSE(children_.picDecision.Visible());
  box_->SetDescriptionBoxState(99, keys, -20, "Button");
  EXPECT_EQ(children_.lblDecision.Caption(), text.empty() ? "Button" : text);
  EXPECT_EQ(children_.picDecision.Left(), -20);
  EXPECT_TRUE(children_.picDecision.Visible());
  box_->ClearButtonDescriptionBox();
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionPredictionTest,
                         testing::Values(KeysRow{"None", 0, {}, ""},
                                         KeysRow{"Shift", 1, {"HitCardHiPrediction#4"}, "High Hitcard"},
                                         KeysRow{"Ctrl", 2, {"HitCardLoPrediction#5"}, " Low Hitcard"},
                                         KeysRow{"CtrlShift", 3, {"HitCardUnknownPrediction#7"}, "Unknown Hitcard"},
                                         KeysRow{"Alt", 4, {"HitCardNeutralPrediction#6"}, "Neutral Hitcard"},
                                         KeysRow{"ShiftAlt", 5, {}, ""}, KeysRow{"CtrlAlt", 6, {}, ""},
                                         KeysRow{"All", 7, {}, ""}, KeysRow{"Eight", 8, {}, ""},
                                         KeysRow{"Negative", -1, {}, ""}),
                         RowName());

TEST_F(DecisionTest, TheDescriptionComesToTheFrontOfItsBox) {
  Label other;
  children_.picDecision.Add(other, "other");
  box_->SetDescriptionBoxState(1, 0, 0, "Hit");
  EXPECT_EQ(FromTheTop(children_.picDecision), (Texts{"lblDecision", "other"}));
}

TEST_F(DecisionTest, ItsHandleKnowsItsPropertiesAndItsPlace) {
  const ObjectRef handle = box_->Handle();
  handle->Put("giveadvice", 3);
  handle->Put("DecisionBoxType", 1);
  EXPECT_EQ(handle->Get("DECISIONBOXTYPE"), Variant(1));
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("GiveAdvice"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("thisKelvoEdition", 1); }), 438);
  EXPECT_EQ(handle->Get("Width"), Variant(box_->Extender().Width()));
  box_.reset();
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("AllowAdvice"); }), 91);
}

}  // namespace
}  // namespace tactix::tests
