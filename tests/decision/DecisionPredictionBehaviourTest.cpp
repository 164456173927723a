// Predictions by mouse and from menus, the description box, and the options menu.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionAtWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class DecisionPredictionBehaviourTest : public DecisionAtWindow {};

struct PressRow {
  const char* name;
  std::int16_t shift;
  const char* event;
  const char* description;
};

class DecisionPressTest : public DecisionPredictionBehaviourTest, public testing::WithParamInterface<PressRow> {};

TEST_P(DecisionPressTest, PressingAPlayButtonPredictsTheHitCard) {
  const auto& [name, shift, event, description] = GetParam();
  const Texts expected = *event ? Texts{event} : Texts{};
  for (const DecisionPlay& play : DecisionPlays) {
    for (const std::int16_t button : {LeftButton, RightButton, MiddleButton}) {
      robot_->MouseDown(ButtonOf(play), button, shift);
      EXPECT_EQ(recorder_.Take(), expected) << play.name << " button " << button;
    }
  }
}

TEST_P(DecisionPressTest, HoveringShowsWhatAPressWouldPredict) {
  const auto& [name, shift, event, description] = GetParam();
  box_->DiddleThePromptShit();
  for (const DecisionPlay& play : DecisionPlays) {
    robot_->MouseMove(ButtonOf(play), shift);
    EXPECT_TRUE(robot_->SeesShown(Children().picDecision)) << play.name;
    EXPECT_EQ(robot_->SeesText(Children().lblDecision), *description ? description : play.name);
    EXPECT_EQ(Children().picDecision.Left(), static_cast<float>(static_cast<int>(ButtonOf(play).Left())));
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionPressTest,
    testing::Values(PressRow{"Plain", 0, "", ""}, PressRow{"Shift", ShiftKey, "HitCardHiPrediction#4", "High Hitcard"},
                    PressRow{"Ctrl", CtrlKey, "HitCardLoPrediction#5", " Low Hitcard"},
                    PressRow{"CtrlShift", CtrlKey + ShiftKey, "HitCardUnknownPrediction#7", "Unknown Hitcard"},
                    PressRow{"Alt", AltKey, "HitCardNeutralPrediction#6", "Neutral Hitcard"},
                    PressRow{"ShiftAlt", ShiftKey + AltKey, "", ""}, PressRow{"CtrlAlt", CtrlKey + AltKey, "", ""},
                    PressRow{"All", ShiftKey + CtrlKey + AltKey, "", ""}),
    RowName());

TEST_F(DecisionPredictionBehaviourTest, OtherElementsPredictNothing) {
  Widget* const others[] = {&Children().ManualPlayButtons, &Children().cmdHoleCard, &Children().cmdTensRatio,
                            &Children().cmdOptions, &Children().lblUserControlCaption};
  for (Widget* other : others) robot_->MouseDown(*other, LeftButton, ShiftKey);
  Children().HitButton.Enabled(false);
  robot_->MouseDown(Children().HitButton, LeftButton, ShiftKey);
  Children().StandButton.Visible(false);
  robot_->MouseDown(Children().StandButton, LeftButton, ShiftKey);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

// The description box.

TEST_F(DecisionPredictionBehaviourTest, WithoutPromptingHoveringShowsNothing) {
  for (const DecisionPlay& play : DecisionPlays) {
    robot_->MouseMove(ButtonOf(play), 0);
    EXPECT_FALSE(robot_->SeesShown(Children().picDecision));
  }
  box_->PromptThePlayButtons(true);
  robot_->MouseMove(Children().HitButton, 0);
  EXPECT_FALSE(robot_->SeesShown(Children().picDecision)) << "that flag is the copied block's alone";
}

TEST_F(DecisionPredictionBehaviourTest, MovingOverThePanelHidesTheDescription) {
  for (const bool prompting : {true, false}) {
    if (box_->PromptThePlayButtons() != prompting) box_->DiddleThePromptShit();
    box_->SetDescriptionBoxState(1, 0, 60, "Hit");
    robot_->MouseMove(Children().ManualPlayButtons, 0);
    EXPECT_FALSE(robot_->SeesShown(Children().picDecision));
  }
}

TEST_F(DecisionPredictionBehaviourTest, TheDescriptionMovesFromButtonToButton) {
  box_->DiddleThePromptShit();
  robot_->MouseMove(Children().HitButton, 0);
  const float atHit = Children().picDecision.Left();
  robot_->MouseMove(Children().StandButton, 0);
  EXPECT_LT(atHit, Children().picDecision.Left());
  EXPECT_EQ(robot_->SeesText(Children().lblDecision), "Stand");
  box_->DiddleThePromptShit();
  robot_->MouseMove(Children().HitButton, 0);
  EXPECT_LT(atHit, Children().picDecision.Left()) << "it stays where it was";
}

// Menus.

struct EntryRow {
  const char* name;
  PushButton Decision::ChildWidgets::*button;
  MenuEntry Decision::ChildWidgets::*entry;
  const char* event;
};

class DecisionEntryTest : public DecisionPredictionBehaviourTest, public testing::WithParamInterface<EntryRow> {};

TEST_P(DecisionEntryTest, Reports) {
  const auto& [name, button, entry, event] = GetParam();
  ChooseFrom(Children().*button, Children().*entry);
  EXPECT_EQ(recorder_.Take(), *event ? Texts{event} : Texts{});
  EXPECT_TRUE(robot_->Errors().empty());
}

using Widgets = Decision::ChildWidgets;
INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionEntryTest,
    testing::Values(
        EntryRow{"HoleCardHigh", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsHigh, "WholeCardHiPrediction#17"},
        EntryRow{"HoleCardLow", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsLow, "WholeCardLoPrediction#18"},
        EntryRow{"HoleCardMid", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsNeutral, "WholeCardNeutralPrediction#19"},
        EntryRow{"HoleCardUnknown", &Widgets::cmdHoleCard, &Widgets::mnuHolecardIsUnknown,
                 "WholeCardUnknownPrediction#20"},
        EntryRow{"HoleCardSeparator", &Widgets::cmdHoleCard, &Widgets::mnuHolecardSeparator1, ""},
        EntryRow{"TensRatioHigh", &Widgets::cmdTensRatio, &Widgets::mnuTensRatioIsHigh, "TensRatioHiPrediction#15"},
        EntryRow{"TensRatioLow", &Widgets::cmdTensRatio, &Widgets::MnuTensRatioIsLow, "TensRatioLoPrediction#16"},
        EntryRow{"BurnACard", &Widgets::cmdOptions, &Widgets::mnuBurnACard, "BurnACardRequested#2"},
        EntryRow{"PlugHand", &Widgets::cmdOptions, &Widgets::mnuPlugClipBoard, "PlugHandCardsInClipboard#13"},
        EntryRow{"Prompts", &Widgets::cmdOptions, &Widgets::mnuPrompts, ""},
        EntryRow{"AdjustBet", &Widgets::cmdOptions, &Widgets::mnuAdjustBet, ""},
        EntryRow{"BackupASeat", &Widgets::cmdOptions, &Widgets::mnuBackupASeat, ""}),
    RowName());

TEST_F(DecisionPredictionBehaviourTest, TheClipboardNeedsAPlayingLog) {
  box_->SetupTheDecisionBox(DecisionBlock());
  ChooseFrom(Children().cmdOptions, Children().mnuPlugClipBoard);
  EXPECT_EQ(recorder_.Take(), Texts{});
  box_->SetupTheDecisionBox(FullBlock());
  ChooseFrom(Children().cmdOptions, Children().mnuPlugClipBoard);
  EXPECT_EQ(recorder_.Take(), Texts{"PlugHandCardsInClipboard#13"});
}

TEST_F(DecisionPredictionBehaviourTest, EitherPromptEntryTurnsPromptingOver) {
  const auto seen = [this] {
    std::string checked;
    WithMenu(Children().cmdOptions, [&](Menu& menu) {
      checked = robot_->SeesChecked(menu, Children().mnuPromptOn) ? "on" : "";
      checked += robot_->SeesChecked(menu, Children().mnuPromptOff) ? "off" : "";
    });
    return checked;
  };
  EXPECT_EQ(seen(), "off");
  for (MenuEntry* entry : {&Children().mnuPromptOn, &Children().mnuPromptOff}) {
    ChooseFrom(Children().cmdOptions, *entry);
    EXPECT_TRUE(box_->PromptThePlayButtons());
    EXPECT_EQ(seen(), "on");
    ChooseFrom(Children().cmdOptions, *entry);
    EXPECT_FALSE(box_->PromptThePlayButtons());
    EXPECT_EQ(seen(), "off");
  }
  ChooseFrom(Children().cmdOptions, Children().mnuPromptOff);
  robot_->MouseMove(Children().HitButton, 0);
  EXPECT_TRUE(robot_->SeesShown(Children().picDecision));
  EXPECT_EQ(recorder_.Take(), Texts{});
}

/// Counts the menus that open, each closed without a choice.
class DecisionHoverTest : public DecisionPredictionBehaviourTest {
 protected:
  void CountMenus(int scripts) {
    for (int i = 0; i < scripts; ++i) {
      robot_->OnNextMenu([this](Menu& menu) { opened_.push_back(menu.Caption()); });
    }
  }
  Texts opened_;
};

TEST_F(DecisionHoverTest, WithoutAnOpenMenuHoveringOverOptionsOpensNothing) {
  CountMenus(3);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, Texts{});
  // After each of the menus has closed without a choice it is so again.
  robot_->Click(Children().cmdHoleCard);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, Texts{"&Hole Card"});
  robot_->Click(Children().cmdTensRatio);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, (Texts{"&Hole Card", "&Tens Ratio"}));
  robot_->Click(Children().cmdOptions);
  CountMenus(1);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, (Texts{"&Hole Card", "&Tens Ratio", "&Options"}));
}

TEST_F(DecisionHoverTest, AfterAChoiceHoveringOpensNothing) {
  ChooseFrom(Children().cmdHoleCard, Children().mnuHolecardIsLow);
  CountMenus(1);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, Texts{});
}

TEST_F(DecisionHoverTest, TheUserSlidesFromAnOpenMenuToTheOptions) {
  for (PushButton* from : {&Children().cmdHoleCard, &Children().cmdTensRatio}) {
    WithMenu(*from, [this](Menu& first) {
      robot_->OnNextMenu([this, &first](Menu& second) {
        recorder_.Note(second.Caption() + (first.IsOpen() ? ", first still open" : ", first closed"));
        robot_->Choose(second, Children().mnuBurnACard);
      });
      robot_->MouseMove(Children().cmdOptions, 0);
    });
    EXPECT_EQ(recorder_.Take(), (Texts{"&Options, first closed", "BurnACardRequested#2"}));
    EXPECT_FALSE(Children().mnuHoleCard.IsOpen() || Children().mnuTensRatio.IsOpen() || Children().mnuOptions.IsOpen());
  }
  CountMenus(1);
  robot_->MouseMove(Children().cmdOptions, 0);
  EXPECT_EQ(opened_, Texts{});
}

TEST_F(DecisionHoverTest, OtherOpenMenusOpenNoOptions) {
  WithMenu(Children().cmdOptions, [this](Menu& menu) {
    CountMenus(1);
    robot_->MouseMove(Children().cmdOptions, 0);
    EXPECT_TRUE(menu.IsOpen());
  });
  EXPECT_EQ(opened_, Texts{});
  robot_->Click(Children().cmdHoleCard);  // uses the script up
  robot_->OnNextMenu([this](Menu&) {
    CountMenus(1);
    robot_->MouseMove(Children().cmdOptions, 0);
  });
  robot_->MouseDown(TheAdviceButton(), RightButton, 0);
  EXPECT_EQ(opened_, Texts{"&Hole Card"});
}

TEST_F(DecisionHoverTest, ADisabledOptionsButtonOpensNothing) {
  Children().cmdOptions.Enabled(false);
  WithMenu(Children().cmdHoleCard, [this](Menu&) {
    CountMenus(1);
    robot_->MouseMove(Children().cmdOptions, 0);
  });
  robot_->Click(Children().cmdOptions);
  EXPECT_EQ(opened_, Texts{});
}

}  // namespace
}  // namespace tactix::tests
