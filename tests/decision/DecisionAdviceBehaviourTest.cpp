// Asking for advice, flashing, and choosing the strategy behind the advice.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionAtWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class DecisionAdviceBehaviourTest : public DecisionAtWindow {
 protected:
  std::string Focused() const {
    const Widget* const focus = robot_->Focus();
    return focus ? std::string(focus->Name()) : "nothing";
  }
};

struct AdviceRow {
  const char* name;
  std::int16_t advice;
  const char* flashes;  // the play whose button it is, or none
};

class DecisionAdviceTest : public DecisionAdviceBehaviourTest, public testing::WithParamInterface<AdviceRow> {};

TEST_P(DecisionAdviceTest, FlashesTheAdvisedButtonAndThenReports) {
  const auto& [name, advice, flashes] = GetParam();
  box_->GiveAdvice(advice);
  box_->Events.AdviceRequested.Connect([this] {
    recorder_.Note("top " + FromTheTop(box_->Extender())[0] + ", focus " + Focused() + ", default " +
                   DefaultPlay(*box_) + ", shown " + std::to_string(ShownPlays(*box_).size()));
  });
  std::string hidden;
  for (const DecisionPlay& play : DecisionPlays) {
    WhenHidden(ButtonOf(play), [&] {
      hidden += play.name;
      // Both steps come before the flash.
      EXPECT_EQ(FromTheTop(box_->Extender())[0], "AdviceButton");
      EXPECT_EQ(Focused(), "ManualPlayButtons");
    });
  }
  robot_->Click(TheAdviceButton());
  EXPECT_EQ(recorder_.Take(), (Texts{"AdviceRequested#1", std::string("top AdviceButton, focus ManualPlayButtons, ") +
                                                              "default " + flashes + ", shown 5"}));
  robot_->Wait(FlashDuration);
  EXPECT_EQ(hidden, flashes);
  EXPECT_NE(Children().lblUserControlCaption.Caption(), "") << "asking decides nothing";
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionAdviceTest,
                         testing::Values(AdviceRow{"Nothing", 0, ""}, AdviceRow{"Hit", 1, "Hit"},
                                         AdviceRow{"Stand", 2, "Stand"}, AdviceRow{"Split", 3, "Split"},
                                         AdviceRow{"Double", 4, "Double"}, AdviceRow{"Surrender", 5, "Surrender"},
                                         AdviceRow{"Six", 6, ""}, AdviceRow{"Negative", -1, ""},
                                         AdviceRow{"Highest", 32767, ""}),
                         RowName());

TEST_F(DecisionAdviceBehaviourTest, TheAdviceComesFromTheLastSetupOrTheLastWord) {
  DecisionBlock block;
  block.StrategyAdvice(4);
  box_->GiveAdvice(1);
  box_->SetupTheDecisionBox(block);
  robot_->Click(TheAdviceButton());
  EXPECT_EQ(DefaultPlay(*box_), "Double");
  robot_->Click(Children().HitButton);  // a decision does not clear it
  Children().HitButton.DEFAULT(true);
  robot_->Click(TheAdviceButton());
  EXPECT_EQ(DefaultPlay(*box_), "Double");
}

TEST_F(DecisionAdviceBehaviourTest, AHiddenAdvisedButtonEndsShown) {
  DecisionBlock block;
  block.ManualPlayerRestrictions(true);
  block.StrategyAdvice(5);
  box_->SetupTheDecisionBox(block);
  ASSERT_FALSE(robot_->SeesShown(Children().SurrenderButton));
  robot_->Click(TheAdviceButton());
  EXPECT_TRUE(robot_->SeesShown(Children().SurrenderButton));
  EXPECT_EQ(DefaultPlay(*box_), "Surrender");
  robot_->PressKey(ReturnKey);
  EXPECT_EQ(recorder_.Take(), (Texts{"AdviceRequested#1", "PlayerSurrenders#12"}));
}

TEST_F(DecisionAdviceBehaviourTest, EnterAsksForAdviceUntilAPlayIsAdvised) {
  box_->GiveAdvice(0);
  box_->Extender().SetFocus();
  robot_->PressKey(ReturnKey);
  EXPECT_EQ(recorder_.Take(), Texts{"AdviceRequested#1"});
  box_->GiveAdvice(2);
  robot_->PressKey(ReturnKey);
  robot_->PressKey(ReturnKey);
  EXPECT_EQ(recorder_.Take(), (Texts{"AdviceRequested#1", "PlayerStands#11"}));
  box_->SetupTheDecisionBox(FullBlock());
  EXPECT_EQ(DefaultPlay(*box_), "") << "a setup makes the advice button the default one again";
}

TEST_F(DecisionAdviceBehaviourTest, TheUserAndTheHostGoOnDuringAFlash) {
  box_->GiveAdvice(1);
  WhenHidden(Children().HitButton, [this] {
    robot_->Click(Children().StandButton);
    WhenShown(Children().HitButton, [this] {
      box_->SetupTheDecisionBox(DecisionBlock());
      box_->GiveAdvice(4);
      recorder_.Note("set up");
    });
  });
  robot_->Click(TheAdviceButton());
  EXPECT_EQ(recorder_.Take(), (Texts{"PlayerStands#11", "set up", "AdviceRequested#1"}));
  EXPECT_EQ(DefaultPlay(*box_), "Hit") << "the flash that was under way";
}

TEST_F(DecisionAdviceBehaviourTest, ASecondRequestRunsInsideTheFirst) {
  box_->GiveAdvice(1);
  WhenHidden(Children().HitButton, [this] {
    EXPECT_EQ(box_->FlashesUnderWay(), 1);
    WhenHidden(Children().StandButton, [this] { EXPECT_EQ(box_->FlashesUnderWay(), 2); });
    box_->GiveAdvice(2);
    robot_->Click(TheAdviceButton());
    recorder_.Note("second over, default " + DefaultPlay(*box_));
  });
  robot_->Click(TheAdviceButton());
  EXPECT_EQ(recorder_.Take(), (Texts{"AdviceRequested#1", "second over, default Stand", "AdviceRequested#1"}));
  EXPECT_EQ(box_->FlashesUnderWay(), 0);
  EXPECT_EQ(DefaultPlay(*box_), "Hit");
  EXPECT_EQ(ShownPlays(*box_).size(), 5U);
}

// The blinking of the advice button itself.

TEST_F(DecisionAdviceBehaviourTest, AdviceConsiderationsBlinkInOneModeOnly) {
  const struct {
    std::size_t mode;
    bool blinks;
  } rows[] = {{0, false}, {4, false}, {2, true}};
  for (const auto& row : rows) {
    box_->Extender().SetFocus();
    robot_->OnNextMenu(
        [&](Menu& menu) { robot_->Choose(menu, Children().AdviceButton.Children.mnuButtonBlink[row.mode]); });
    robot_->MouseDown(TheAdviceButton(), RightButton, 0);
    box_->Extender().SetFocus();
    Children().HitButton.DEFAULT(true);
    box_->HandleAdviceConsiderations();
    EXPECT_EQ(Children().AdviceButton.DEFAULT(), row.blinks) << row.mode;
    EXPECT_TRUE(robot_->SeesShown(TheAdviceButton()));
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
}

// The strategy behind the advice.

TEST_F(DecisionAdviceBehaviourTest, OpeningTheStrategyListBringsTheButtonToTheFront) {
  Texts order = FromTheTop(box_->Extender());
  ASSERT_NE(order[0], "AdviceButton");
  std::erase(order, "AdviceButton");
  order.insert(order.begin(), "AdviceButton");
  OpenTheStrategyList();
  EXPECT_EQ(FromTheTop(box_->Extender()), order) << "and moves nothing else";
  EXPECT_TRUE(robot_->SeesShown(TheList()));
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(DecisionAdviceBehaviourTest, APickedStrategyGoesOnUnchangedAndTheButtonBehind) {
  box_->Events.EvaluationStrategySelected.Connect([this](const Variant& strategy) {
    recorder_.Note(strategy.Type() == VariantType::Long ? "a number" : "something else");
    recorder_.Note(robot_->SeesShown(TheList()) ? "list shown" : "list hidden");
    for (const std::string& name : FromTheTop(box_->Extender())) recorder_.Note(name);
  });
  OpenTheStrategyList();
  robot_->PickRow(TheList(), 3);
  EXPECT_EQ(recorder_.Take(),
            (Texts{"EvaluationStrategySelected#3(2)", "a number", "list hidden", "ManualPlayButtons",
                   "lblUserControlCaption", "AdviceButton", "cmdHoleCard", "cmdTensRatio", "cmdOptions"}));
}

TEST_F(DecisionAdviceBehaviourTest, TheSameVariantIsPassedOn) {
  const Variant* reported = nullptr;
  const Variant* passedOn = nullptr;
  box_->Children.AdviceButton.Events.AdviceStrategySelected.Connect(
      [&](const Variant& strategy) { reported = &strategy; });
  box_->Events.EvaluationStrategySelected.Connect([&](const Variant& strategy) { passedOn = &strategy; });
  OpenTheStrategyList();
  robot_->PickRow(TheList(), 1);
  ASSERT_NE(passedOn, nullptr);
  EXPECT_EQ(passedOn, reported);
}

TEST_F(DecisionAdviceBehaviourTest, ARefusedStrategyLeavesTheListOpen) {
  OpenTheStrategyList();
  robot_->PickRow(TheList(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->Beeps(), 1);
  EXPECT_TRUE(robot_->SeesShown(TheList()));
  EXPECT_EQ(FromTheTop(box_->Extender())[0], "AdviceButton");
}

TEST_F(DecisionAdviceBehaviourTest, TheListKeepsItsLetterKeys) {
  OpenTheStrategyList();
  TheList().SetFocus();
  robot_->PressKey('S');
  robot_->PressKey('H');
  EXPECT_EQ(recorder_.Take(), Texts{});
}

}  // namespace
}  // namespace tactix::tests
