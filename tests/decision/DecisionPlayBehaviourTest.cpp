// Deciding by click and by key.

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionAtWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class DecisionPlayBehaviourTest : public DecisionAtWindow {
 protected:
  /// Presses a key and tells what came of it.
  Texts Press(std::int32_t code, std::int16_t shift = 0) {
    robot_->PressKey(code, shift);
    return recorder_.Take();
  }
};

TEST_F(DecisionPlayBehaviourTest, ShowsTheHand) {
  EXPECT_EQ(robot_->SeesText(Children().lblUserControlCaption), "Ann - You have  7 OR  17  - Make your Selection");
  EXPECT_EQ(robot_->SeesText(Children().SplitButton), "SPLIT");
  EXPECT_EQ(robot_->SeesText(Children().cmdTensRatio), "Tens-Ratio");
  EXPECT_FALSE(robot_->SeesShown(Children().picDecision));
  for (const DecisionPlay& play : DecisionPlays) EXPECT_TRUE(robot_->SeesShown(ButtonOf(play))) << play.name;
  DecisionBlock block;
  block.ManualPlayerRestrictions(true);
  box_->SetupTheDecisionBox(block);
  EXPECT_TRUE(robot_->SeesShown(Children().HitButton));
  EXPECT_TRUE(robot_->SeesShown(Children().StandButton));
  for (int i = 2; i < 5; ++i) EXPECT_FALSE(robot_->SeesShown(ButtonOf(DecisionPlays[i])));
}

TEST_F(DecisionPlayBehaviourTest, AClickClearsThePromptAndThenReports) {
  box_->DiddleThePromptShit();
  for (const DecisionPlay& play : DecisionPlays) {
    box_->SetupTheDecisionBox(FullBlock());
    robot_->MouseMove(ButtonOf(play), 0);
    ASSERT_TRUE(Children().picDecision.Visible());
    const ScopedConnection connection = (box_->Events.*play.event).Connect([this] {
      recorder_.Note("prompt '" + Children().lblUserControlCaption.Caption() + "', description " +
                     (Children().picDecision.Visible() ? "shown" : "hidden"));
    });
    robot_->Click(ButtonOf(play));
    EXPECT_EQ(recorder_.Take(), (Texts{EventOf(play), "prompt '', description hidden"}));
    EXPECT_EQ(robot_->SeesText(Children().lblUserControlCaption), "");
    EXPECT_TRUE(robot_->SeesEnabled(ButtonOf(play)));
    EXPECT_TRUE(robot_->SeesShown(ButtonOf(play))) << "the host sets up the next decision";
  }
}

TEST_F(DecisionPlayBehaviourTest, AButtonThatCannotBeReachedDoesNotClick) {
  for (const DecisionPlay& play : DecisionPlays) {
    ButtonOf(play).Enabled(false);
    robot_->Click(ButtonOf(play));
    ButtonOf(play).Enabled(true);
    ButtonOf(play).Visible(false);
    robot_->Click(ButtonOf(play));
    ButtonOf(play).Visible(true);
  }
  Children().ManualPlayButtons.Enabled(false);
  for (const DecisionPlay& play : DecisionPlays) robot_->Click(ButtonOf(play));
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->SeesText(Children().lblUserControlCaption), "Ann - You have  7 OR  17  - Make your Selection");
}

// Keys while the box, or its panel, has the focus.

struct BoxKeyRow {
  const char* name;
  std::int16_t shift;
  bool runs;
};

class DecisionBoxKeyTest : public DecisionPlayBehaviourTest, public testing::WithParamInterface<BoxKeyRow> {};

TEST_P(DecisionBoxKeyTest, LettersPlayWhateverTheButtonsState) {
  box_->InitProperties();  // without the access keys of the lower row
  Widget* const focusable[] = {&box_->Extender(), &Children().ManualPlayButtons};
  for (Widget* focused : focusable) {
    focused->SetFocus();
    ASSERT_EQ(robot_->Focus(), focused);
    for (const DecisionPlay& play : DecisionPlays) {
      const Texts expected = GetParam().runs ? Texts{EventOf(play)} : Texts{};
      EXPECT_EQ(Press(play.letter, GetParam().shift), expected) << play.name;
      EXPECT_EQ(Press(play.letter - 'A' + 'a', GetParam().shift), expected) << play.name;
      ButtonOf(play).Enabled(false);
      EXPECT_EQ(Press(play.letter, GetParam().shift), expected) << play.name << " disabled";
      ButtonOf(play).Visible(false);
      EXPECT_EQ(Press(play.letter, GetParam().shift), expected) << play.name << " disabled and hidden";
      ButtonOf(play).Enabled(true);
      EXPECT_EQ(Press(play.letter, GetParam().shift), expected) << play.name << " hidden";
      ButtonOf(play).Visible(true);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionBoxKeyTest,
                         testing::Values(BoxKeyRow{"Plain", 0, true}, BoxKeyRow{"Shift", ShiftKey, true},
                                         BoxKeyRow{"Ctrl", CtrlKey, false},
                                         BoxKeyRow{"CtrlShift", CtrlKey + ShiftKey, false},
                                         BoxKeyRow{"Alt", AltKey, true}, BoxKeyRow{"CtrlAlt", CtrlKey + AltKey, false}),
                         RowName());

TEST_F(DecisionPlayBehaviourTest, AKeyClearsThePromptToo) {
  box_->Extender().SetFocus();
  EXPECT_EQ(Press('g'), Texts{"PlayerSurrenders#12"});
  EXPECT_EQ(Children().lblUserControlCaption.Caption(), "");
}

TEST_F(DecisionPlayBehaviourTest, OtherKeysDoNothing) {
  Children().AdviceButton.DEFAULT(false);
  Widget* const focusable[] = {&box_->Extender(), &Children().ManualPlayButtons, &Children().StandButton};
  for (Widget* focused : focusable) {
    focused->SetFocus();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      if (std::string("HSPDG").find(letter) != std::string::npos) continue;
      EXPECT_EQ(Press(letter), Texts{}) << letter;
    }
    for (const std::int32_t code :
         {static_cast<std::int32_t>('0'), static_cast<std::int32_t>('9'), static_cast<std::int32_t>(ReturnKey),
          static_cast<std::int32_t>(EscapeKey), static_cast<std::int32_t>(FunctionKey1), FunctionKey1 + 3}) {
      EXPECT_EQ(Press(code), Texts{}) << code;
    }
  }
  EXPECT_NE(Children().lblUserControlCaption.Caption(), "");
}

TEST_F(DecisionPlayBehaviourTest, CtrlOOpensNoOptions) {
  int opened = 0;
  robot_->OnNextMenu([&](Menu&) { ++opened; });
  Widget* const focusable[] = {&box_->Extender(), &Children().ManualPlayButtons, &Children().HitButton};
  for (Widget* focused : focusable) {
    focused->SetFocus();
    EXPECT_EQ(Press('O', CtrlKey), Texts{});
    EXPECT_EQ(Press('O'), Texts{});
  }
  EXPECT_EQ(opened, 0);
}

// Keys while a play button has the focus.

TEST_F(DecisionPlayBehaviourTest, AtAButtonALetterNeedsAnEnabledTarget) {
  box_->InitProperties();
  for (const DecisionPlay& focused : DecisionPlays) {
    ButtonOf(focused).SetFocus();
    ASSERT_EQ(robot_->Focus(), &ButtonOf(focused));
    for (const DecisionPlay& target : DecisionPlays) {
      EXPECT_EQ(Press(target.letter), Texts{EventOf(target)}) << focused.name << " " << target.name;
      EXPECT_EQ(Press(target.letter - 'A' + 'a'), Texts{EventOf(target)}) << focused.name << " " << target.name;
      if (&focused == &target) continue;
      ButtonOf(target).Visible(false);
      EXPECT_EQ(Press(target.letter), Texts{EventOf(target)}) << "hidden: " << focused.name << " " << target.name;
      ButtonOf(target).Enabled(false);
      // Nothing at all: the key does not go on to the box, whose map looks at nothing.
      EXPECT_EQ(Press(target.letter), Texts{}) << "disabled: " << focused.name << " " << target.name;
      ButtonOf(target).Visible(true);
      EXPECT_EQ(Press(target.letter), Texts{}) << "disabled: " << focused.name << " " << target.name;
      ButtonOf(target).Enabled(true);
    }
  }
}

TEST_F(DecisionPlayBehaviourTest, AtAButtonNoShiftStateIsTested) {
  box_->InitProperties();
  Children().HitButton.SetFocus();
  for (const DecisionPlay& target : DecisionPlays) {
    constexpr std::int16_t shifts[] = {ShiftKey, CtrlKey, AltKey, CtrlKey + ShiftKey};
    for (const std::int16_t shift : shifts) {
      EXPECT_EQ(Press(target.letter, shift), Texts{EventOf(target)}) << target.name << " " << shift;
    }
  }
}

TEST_F(DecisionPlayBehaviourTest, AtTheOtherElementsLettersGoToTheBoxsMap) {
  Widget* const others[] = {&Children().cmdOptions, &Children().cmdHoleCard, &Children().cmdTensRatio,
                            &TheAdviceButton()};
  for (Widget* focused : others) {
    focused->SetFocus();
    ASSERT_EQ(robot_->Focus(), focused);
    for (const DecisionPlay& play : DecisionPlays) {
      EXPECT_EQ(Press(play.letter - 'A' + 'a'), Texts{EventOf(play)}) << focused->Name() << " " << play.name;
      EXPECT_EQ(Press(play.letter, ShiftKey), Texts{EventOf(play)}) << focused->Name() << " " << play.name;
      EXPECT_EQ(Press(play.letter, CtrlKey), Texts{}) << focused->Name() << " " << play.name;
      ButtonOf(play).Enabled(false);
      EXPECT_EQ(Press(play.letter), Texts{EventOf(play)}) << "disabled: " << focused->Name() << " " << play.name;
      ButtonOf(play).Enabled(true);
    }
    EXPECT_EQ(Press('X'), Texts{});
  }
}

TEST_F(DecisionPlayBehaviourTest, PWithStandFocusedAndSplitDisabledDoesNothing) {
  Children().SplitButton.Enabled(false);
  Children().StandButton.SetFocus();
  EXPECT_EQ(Press('P'), Texts{});
  EXPECT_NE(Children().lblUserControlCaption.Caption(), "");
  box_->Extender().SetFocus();
  EXPECT_EQ(Press('P'), Texts{"PlayerSplits#10"});
}

TEST_F(DecisionPlayBehaviourTest, HidingTheFocusedButtonGivesTheKeysToTheBox) {
  Children().StandButton.SetFocus();
  EXPECT_EQ(Press('S', CtrlKey), Texts{"PlayerStands#11"});
  Children().StandButton.Visible(false);
  EXPECT_EQ(robot_->Focus(), &box_->Extender());
  EXPECT_EQ(Press('S', CtrlKey), Texts{});
  EXPECT_EQ(Press('S'), Texts{"PlayerStands#11"});
  Children().StandButton.Visible(true);
  EXPECT_EQ(robot_->Focus(), &box_->Extender());
}

TEST_F(DecisionPlayBehaviourTest, ThePlayButtonsTakeTheSpaceBarAndTheDefaultButtonEnter) {
  Children().DoubleButton.SetFocus();
  EXPECT_EQ(Press(' '), Texts{"PlayerDoublesDown#8"});
  Children().SplitButton.DEFAULT(true);
  box_->Extender().SetFocus();
  EXPECT_EQ(Press(ReturnKey), Texts{"PlayerSplits#10"});
  Children().SplitButton.Enabled(false);
  EXPECT_EQ(Press(ReturnKey), Texts{});
}

// Access keys.

struct AccessKeyRow {
  const char* name;
  char letter;
  Menu Decision::ChildWidgets::*menu;  // null: asks for advice
};

/// What has the focus: all of these have a letter map.
struct FocusRow {
  const char* name;
  Widget& (*widget)(Decision& box);
};

using AccessKeyCase = std::tuple<AccessKeyRow, FocusRow>;

class DecisionAccessKeyTest : public DecisionPlayBehaviourTest, public testing::WithParamInterface<AccessKeyCase> {};

TEST_P(DecisionAccessKeyTest, WinsOverTheLetterMaps) {
  const AccessKeyRow& key = std::get<0>(GetParam());
  std::get<1>(GetParam()).widget(*box_).SetFocus();
  box_->GiveAdvice(0);
  Menu* opened = nullptr;
  robot_->OnNextMenu([&](Menu& menu) { opened = &menu; });
  EXPECT_EQ(Press(key.letter, AltKey), key.menu ? Texts{} : Texts{"AdviceRequested#1"});
  EXPECT_EQ(opened, key.menu ? &(Children().*key.menu) : nullptr);
}

const AccessKeyRow AccessKeys[] = {
    {"HoleCard", 'H', &Decision::ChildWidgets::mnuHoleCard},
    {"TensRatio", 'T', &Decision::ChildWidgets::mnuTensRatio},
    {"Options", 'O', &Decision::ChildWidgets::mnuOptions},
    {"Advice", 'A', nullptr},
};

const FocusRow Focuses[] = {
    {"AtTheBox", [](Decision& box) -> Widget& { return box.Extender(); }},
    {"AtThePanel", [](Decision& box) -> Widget& { return box.Children.ManualPlayButtons; }},
    {"AtAButton", [](Decision& box) -> Widget& { return box.Children.StandButton; }},
};

INSTANTIATE_TEST_SUITE_P(Rows, DecisionAccessKeyTest,
                         testing::Combine(testing::ValuesIn(AccessKeys), testing::ValuesIn(Focuses)),
                         [](const testing::TestParamInfo<AccessKeyCase>& row) {
                           return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
                         });

TEST_F(DecisionPlayBehaviourTest, HiddenAndDisabledElementsHaveNoAccessKey) {
  box_->Extender().SetFocus();
  Children().cmdHoleCard.Enabled(false);
  EXPECT_EQ(Press('H', AltKey), Texts{"PlayerHits#9"});
  Children().cmdHoleCard.Enabled(true);
  Children().cmdHoleCard.Visible(false);
  EXPECT_EQ(Press('H', AltKey), Texts{"PlayerHits#9"});
  Children().StandButton.SetFocus();
  EXPECT_EQ(Press('H', AltKey), Texts{"PlayerHits#9"});
}

TEST_F(DecisionPlayBehaviourTest, AHandlerMaySetUpTheNextHand) {
  box_->Events.PlayerHits.Connect([this] {
    DecisionBlock next;
    next.PlayerName("Bob");
    box_->SetupTheDecisionBox(next);
  });
  robot_->Click(Children().HitButton);
  EXPECT_EQ(robot_->SeesText(Children().lblUserControlCaption), "Bob - You have  0  - Make your Selection");
}

}  // namespace
}  // namespace tactix::tests
