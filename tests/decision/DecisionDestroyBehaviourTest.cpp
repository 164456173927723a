// A host that destroys the box, or its whole window, while the box is at work.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tests/decision/DecisionAtWindow.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class DecisionDestroyBehaviourTest : public DecisionAtWindow {
 public:
  void ClickOn(PushButton Decision::ChildWidgets::*button) { robot_->Click(Children().*button); }
  void PressOn(std::int16_t shift) { robot_->MouseDown(Children().HitButton, LeftButton, shift); }
  void Choose(PushButton Decision::ChildWidgets::*button, MenuEntry Decision::ChildWidgets::*entry) {
    ChooseFrom(Children().*button, Children().*entry);
  }
  void PressKey(Widget& focused, char letter) {
    focused.SetFocus();
    robot_->PressKey(letter);
  }
  void AskForAdvice() { robot_->Click(TheAdviceButton()); }
  void Pick(Robot::PickBy by) { robot_->PickRow(TheList(), 0, by); }

  using DecisionAtWindow::box_;
  using DecisionAtWindow::Children;
  using DecisionAtWindow::OpenTheStrategyList;
  using DecisionAtWindow::robot_;

 protected:
  void ExpectGone(const Texts& events) {
    EXPECT_EQ(box_, nullptr);
    robot_->Wait(50);
    EXPECT_EQ(recorder_.Take(), events);
    EXPECT_TRUE(robot_->Errors().empty());
  }
};

using Test = DecisionDestroyBehaviourTest;
using Widgets = Decision::ChildWidgets;

struct RaiserRow {
  const char* name;
  const char* event;
  void (*raise)(Test&);
};

class DecisionRaiserTest : public Test, public testing::WithParamInterface<std::tuple<RaiserRow, bool>> {};

TEST_P(DecisionRaiserTest, AHandlerMayDestroyIt) {
  const auto& [row, withWindow] = GetParam();
  box_->GiveAdvice(0);
  OpenTheStrategyList();
  const auto destroy = [this, window = withWindow](auto&&...) { Destroy(window); };
  std::apply([&](auto&... each) { (each.Connect(destroy), ...); }, box_->Events.All());
  row.raise(*this);
  ExpectGone({row.event});
}

const RaiserRow Raisers[] = {
    {"Advice", "AdviceRequested#1", [](Test& test) { test.AskForAdvice(); }},
    {"Burn", "BurnACardRequested#2", [](Test& test) { test.Choose(&Widgets::cmdOptions, &Widgets::mnuBurnACard); }},
    {"StrategyByMouse", "EvaluationStrategySelected#3(-1)", [](Test& test) { test.Pick(Robot::PickBy::Mouse); }},
    {"StrategyByReturn", "EvaluationStrategySelected#3(-1)", [](Test& test) { test.Pick(Robot::PickBy::ReturnKey); }},
    {"StrategyByArrow", "EvaluationStrategySelected#3(-1)", [](Test& test) { test.Pick(Robot::PickBy::ArrowKey); }},
    {"HitCardHi", "HitCardHiPrediction#4", [](Test& test) { test.PressOn(ShiftKey); }},
    {"HitCardLo", "HitCardLoPrediction#5", [](Test& test) { test.PressOn(CtrlKey); }},
    {"HitCardNeutral", "HitCardNeutralPrediction#6", [](Test& test) { test.PressOn(AltKey); }},
    {"HitCardUnknown", "HitCardUnknownPrediction#7", [](Test& test) { test.PressOn(CtrlKey + ShiftKey); }},
    {"Double", "PlayerDoublesDown#8", [](Test& test) { test.ClickOn(&Widgets::DoubleButton); }},
    {"Hit", "PlayerHits#9", [](Test& test) { test.ClickOn(&Widgets::HitButton); }},
    {"Split", "PlayerSplits#10", [](Test& test) { test.ClickOn(&Widgets::SplitButton); }},
    {"Stand", "PlayerStands#11", [](Test& test) { test.ClickOn(&Widgets::StandButton); }},
    {"Surrender", "PlayerSurrenders#12", [](Test& test) { test.ClickOn(&Widgets::SurrenderButton); }},
    {"StandByBoxKey", "PlayerStands#11", [](Test& test) { test.PressKey(test.box_->Extender(), 'S'); }},
    {"StandByPanelKey", "PlayerStands#11", [](Test& test) { test.PressKey(test.Children().ManualPlayButtons, 'S'); }},
    {"StandByButtonKey", "PlayerStands#11", [](Test& test) { test.PressKey(test.Children().HitButton, 'S'); }},
    {"Plug", "PlugHandCardsInClipboard#13",
     [](Test& test) { test.Choose(&Widgets::cmdOptions, &Widgets::mnuPlugClipBoard); }},
    {"PlugPrompt", "PlugPromptPlayHands#14", [](Test& test) { test.box_->Events.PlugPromptPlayHands.Raise(); }},
    {"TensRatioHi", "TensRatioHiPrediction#15",
     [](Test& test) { test.Choose(&Widgets::cmdTensRatio, &Widgets::mnuTensRatioIsHigh); }},
    {"TensRatioLo", "TensRatioLoPrediction#16",
     [](Test& test) { test.Choose(&Widgets::cmdTensRatio, &Widgets::MnuTensRatioIsLow); }},
    {"HoleCardHi", "WholeCardHiPrediction#17",
     [](Test& test) { test.Choose(&Widgets::cmdHoleCard, &Widgets::mnuHolecardIsHigh); }},
    {"HoleCardLo", "WholeCardLoPrediction#18",
     [](Test& test) { test.Choose(&Widgets::cmdHoleCard, &Widgets::mnuHolecardIsLow); }},
    {"HoleCardNeutral", "WholeCardNeutralPrediction#19",
     [](Test& test) { test.Choose(&Widgets::cmdHoleCard, &Widgets::mnuHolecardIsNeutral); }},
    {"HoleCardUnknown", "WholeCardUnknownPrediction#20",
     [](Test& test) { test.Choose(&Widgets::cmdHoleCard, &Widgets::mnuHolecardIsUnknown); }},
    {"Show", "Show#21", [](Test& test) { test.box_->Events.Show.Raise(); }},
};

INSTANTIATE_TEST_SUITE_P(Rows, DecisionRaiserTest, testing::Combine(testing::ValuesIn(Raisers), testing::Bool()),
                         [](const testing::TestParamInfo<std::tuple<RaiserRow, bool>>& row) {
                           return std::string(std::get<0>(row.param).name) +
                                  (std::get<1>(row.param) ? "AndWindow" : "");
                         });

struct WindowRow {
  const char* name;
  bool withWindow;
};

class DecisionMomentTest : public Test, public testing::WithParamInterface<WindowRow> {
 protected:
  void DestroyIt() { Destroy(GetParam().withWindow); }
};

TEST_P(DecisionMomentTest, InTheMiddleOfTheAdvisedFlash) {
  box_->GiveAdvice(1);
  WhenHidden(Children().HitButton, [this] { DestroyIt(); });
  robot_->Click(TheAdviceButton());
  ExpectGone({});
}

TEST_P(DecisionMomentTest, InTheMiddleOfAFlashInsideAFlash) {
  box_->GiveAdvice(1);
  WhenHidden(Children().HitButton, [this] {
    box_->GiveAdvice(2);
    WhenHidden(Children().StandButton, [this] { DestroyIt(); });
    robot_->Click(TheAdviceButton());
  });
  robot_->Click(TheAdviceButton());
  ExpectGone({});
}

TEST_P(DecisionMomentTest, InTheMiddleOfAWaitOfTheHosts) {
  robot_->After(100, [this] { DestroyIt(); });
  box_->BlinkTime(10);
  ExpectGone({});
}

TEST_P(DecisionMomentTest, WhileTheAdviceButtonBlinks) {
  robot_->OnNextMenu([this](Menu& menu) { robot_->Choose(menu, Children().AdviceButton.Children.mnuButtonBlink[2]); });
  robot_->MouseDown(TheAdviceButton(), RightButton, 0);
  WhenHidden(TheAdviceButton(), [this] { DestroyIt(); });
  box_->HandleAdviceConsiderations();
  ExpectGone({});
}

TEST_P(DecisionMomentTest, WithAMenuOpen) {
  WithMenu(Children().cmdHoleCard, [this](Menu&) { DestroyIt(); });
  ExpectGone({});
}

TEST_P(DecisionMomentTest, WithTheSecondMenuOpen) {
  WithMenu(Children().cmdHoleCard, [this](Menu&) {
    robot_->OnNextMenu([this](Menu&) { DestroyIt(); });
    robot_->MouseMove(Children().cmdOptions, 0);
  });
  ExpectGone({});
}

TEST_P(DecisionMomentTest, WithTheAdviceButtonsMenuOpen) {
  robot_->OnNextMenu([this](Menu&) { DestroyIt(); });
  robot_->MouseDown(TheAdviceButton(), RightButton, 0);
  ExpectGone({});
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionMomentTest,
                         testing::Values(WindowRow{"BoxGoes", false}, WindowRow{"WindowGoes", true}), RowName());

}  // namespace
}  // namespace tactix::tests
