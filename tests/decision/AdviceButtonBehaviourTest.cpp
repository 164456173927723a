#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Flash.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/Robot.h"
#include "tests/support/RowName.h"
#include "tests/support/When.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// An advice button at a user's window; its list has a present, an absent and another present strategy.
class AdviceButtonBehaviourTest : public testing::Test {
 protected:
  AdviceButtonBehaviourTest() {
    button_->InitProperties();
    for (const char* row : {"Empty Seat", "Zero", "Not Present", "Two"}) Children().StrategyListBox.AddItem(row);
    recorder_.Watch(button_->Events.All());
    robot_->Show(*button_);
  }

  AdviceButton::ChildWidgets& Children() const { return button_->Children; }
  PushButton& TheButton() const { return Children().cmdAdviceButton; }
  ListBox& TheList() const { return Children().StrategyListBox.Children.StrategyListBox; }

  void RightClick(std::function<void(Menu&)> script) {
    robot_->OnNextMenu(std::move(script));
    robot_->MouseDown(TheButton(), RightButton, 0);
  }
  void ChooseBlink(std::size_t mode) {
    RightClick([this, mode](Menu& menu) { robot_->Choose(menu, Children().mnuButtonBlink[mode]); });
  }
  void OpenTheList() {
    RightClick([this](Menu& menu) { robot_->Choose(menu, Children().mnuSelectStrategy); });
  }
  /// Does something as soon as the user sees the button hidden: in the middle of its flash.
  void WhenHidden(std::function<void()> action) {
    When(
        *robot_, [this] { return !robot_->SeesShown(TheButton()); }, std::move(action));
  }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { button_.reset(); });
    } else {
      button_.reset();
    }
  }
  void ExpectGone(const Texts& events) {
    EXPECT_EQ(button_, nullptr);
    robot_->Wait(50);
    EXPECT_EQ(recorder_.Take(), events);
    EXPECT_TRUE(robot_->Errors().empty());
  }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<AdviceButton> button_ = std::make_unique<AdviceButton>(robot_->NewSite());
  EventRecorder recorder_;
};

TEST_F(AdviceButtonBehaviourTest, ShowsTheButtonAlone) {
  EXPECT_TRUE(robot_->SeesShown(TheButton()));
  EXPECT_EQ(robot_->SeesText(TheButton()), "Ask Kelvo for Advice");
  EXPECT_FALSE(robot_->SeesShown(TheList()));
}

TEST_F(AdviceButtonBehaviourTest, AClickIsReported) {
  robot_->Click(TheButton());
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
  robot_->PressKey('A', AltKey);
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
  robot_->PressKey(' ');
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
}

TEST_F(AdviceButtonBehaviourTest, EnabledMakesItDefaultAndDisablesNothing) {
  button_->Enabled(true);
  robot_->PressKey(ReturnKey);
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
  button_->Enabled(false);
  EXPECT_TRUE(robot_->SeesEnabled(TheButton()));
  robot_->PressKey(ReturnKey);
  EXPECT_EQ(recorder_.Take(), Texts{});
  robot_->Click(TheButton());
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
}

TEST_F(AdviceButtonBehaviourTest, OnlyTheRightMouseButtonOpensTheMenu) {
  int opened = 0;
  robot_->OnNextMenu([&](Menu& menu) {
    ++opened;
    EXPECT_EQ(&menu, &Children().mnuAdviceOptions);
  });
  robot_->MouseDown(TheButton(), LeftButton, 0);
  robot_->MouseDown(TheButton(), MiddleButton, 0);
  EXPECT_EQ(opened, 0);
  robot_->MouseDown(TheButton(), RightButton, 0);
  EXPECT_EQ(opened, 1);
}

TEST_F(AdviceButtonBehaviourTest, ExactlyOneBlinkModeIsSeenChecked) {
  const auto seen = [this] {
    std::string checked;
    RightClick([&](Menu& menu) {
      for (const MenuEntry& entry : Children().mnuButtonBlink) {
        if (!entry.IsSeparator()) checked += robot_->SeesChecked(menu, entry) ? 'x' : '-';
      }
    });
    return checked;
  };
  EXPECT_EQ(seen(), "x--");
  ChooseBlink(2);
  EXPECT_EQ(seen(), "-x-");
  ChooseBlink(2);
  EXPECT_EQ(seen(), "-x-");
  ChooseBlink(4);
  EXPECT_EQ(seen(), "--x");
  ChooseBlink(0);
  EXPECT_EQ(seen(), "x--");
  EXPECT_EQ(recorder_.Take(), Texts{});
}

struct BlinkRow {
  const char* name;
  std::size_t mode;
  bool blinks;
};

class AdviceButtonBlinkTest : public AdviceButtonBehaviourTest, public testing::WithParamInterface<BlinkRow> {};

TEST_P(AdviceButtonBlinkTest, TheArrivingFocusMayMakeItBlink) {
  AdviceButton other(robot_->NewSite());
  robot_->Show(other);
  other.Children.cmdAdviceButton.SetFocus();
  if (GetParam().mode != 0) ChooseBlink(GetParam().mode);
  other.Children.cmdAdviceButton.SetFocus();
  bool wasHidden = false;
  WhenHidden([&wasHidden] { wasHidden = true; });
  TheButton().SetFocus();
  robot_->Wait(FlashDuration);
  EXPECT_EQ(wasHidden, GetParam().blinks);
  EXPECT_EQ(button_->DEFAULT(), GetParam().blinks);
  EXPECT_TRUE(robot_->SeesShown(TheButton()));
  EXPECT_EQ(recorder_.Take(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, AdviceButtonBlinkTest,
                         testing::Values(BlinkRow{"Never", 0, false}, BlinkRow{"EveryTime", 2, true},
                                         BlinkRow{"FirstTimeThisHand", 4, false}),
                         RowName());

TEST_F(AdviceButtonBehaviourTest, SelectingAStrategyShowsTheListAndReportsThePick) {
  button_->Events.StrategyListBoxVisibilityChanged.Connect(
      [this](bool) { recorder_.Note(Children().StrategyListBox.Extender().Visible() ? "list shown" : "list hidden"); });
  button_->Events.AdviceStrategySelected.Connect([this](const Variant&) {
    recorder_.Note(Children().StrategyListBox.Extender().Visible() ? "list shown" : "list hidden");
  });
  OpenTheList();
  EXPECT_EQ(recorder_.Take(), (Texts{"StrategyListBoxVisibilityChanged#4(true)", "list shown"}));
  EXPECT_TRUE(robot_->SeesShown(TheList()));
  EXPECT_TRUE(robot_->SeesShown(TheButton()));
  robot_->PickRow(TheList(), 3);
  EXPECT_EQ(recorder_.Take(), (Texts{"AdviceStrategySelected#3(2)", "list hidden"}));
  EXPECT_FALSE(robot_->SeesShown(TheList()));
  EXPECT_TRUE(robot_->SeesShown(TheButton()));
}

TEST_F(AdviceButtonBehaviourTest, ARefusedPickLeavesTheListOpen) {
  OpenTheList();
  recorder_.Forget();
  robot_->PickRow(TheList(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(robot_->Beeps(), 1);
  EXPECT_TRUE(robot_->SeesShown(TheList()));
  robot_->PickRow(TheList(), 0);
  EXPECT_EQ(recorder_.Take(), Texts{"AdviceStrategySelected#3(-1)"});
}

struct DestroyRow {
  const char* name;
  bool withWindow;
};

class AdviceButtonDestroyTest : public AdviceButtonBehaviourTest, public testing::WithParamInterface<DestroyRow> {
 protected:
  void DestroyIt() { Destroy(GetParam().withWindow); }
};

TEST_P(AdviceButtonDestroyTest, WhenItIsClicked) {
  button_->Events.Click.Connect([this] { DestroyIt(); });
  robot_->Click(TheButton());
  ExpectGone({"Click#1"});
}

TEST_P(AdviceButtonDestroyTest, WhenTheListOpens) {
  button_->Events.StrategyListBoxVisibilityChanged.Connect([this](bool) { DestroyIt(); });
  OpenTheList();
  ExpectGone({"StrategyListBoxVisibilityChanged#4(true)"});
}

TEST_P(AdviceButtonDestroyTest, WhileTheMenuIsOpen) {
  RightClick([this](Menu&) { DestroyIt(); });
  ExpectGone({});
}

TEST_P(AdviceButtonDestroyTest, InTheMiddleOfAFlash) {
  WhenHidden([this] { DestroyIt(); });
  button_->FlashObject(TheButton().Handle());
  ExpectGone({});
}

INSTANTIATE_TEST_SUITE_P(Rows, AdviceButtonDestroyTest,
                         testing::Values(DestroyRow{"ControlGoes", false}, DestroyRow{"WindowGoes", true}), RowName());

struct DestroyAtPickRow {
  const char* name;
  Robot::PickBy by;
  bool withWindow;
};

class AdviceButtonDestroyAtPickTest : public AdviceButtonBehaviourTest,
                                      public testing::WithParamInterface<DestroyAtPickRow> {};

TEST_P(AdviceButtonDestroyAtPickTest, AHandlerMayDestroyTheButton) {
  const auto& [name, by, withWindow] = GetParam();
  OpenTheList();
  recorder_.Forget();
  button_->Events.AdviceStrategySelected.Connect([this, window = withWindow](const Variant&) { Destroy(window); });
  robot_->PickRow(TheList(), 0, by);
  ExpectGone({"AdviceStrategySelected#3(-1)"});
}

INSTANTIATE_TEST_SUITE_P(Rows, AdviceButtonDestroyAtPickTest,
                         testing::Values(DestroyAtPickRow{"ControlByMouse", Robot::PickBy::Mouse, false},
                                         DestroyAtPickRow{"ControlByReturn", Robot::PickBy::ReturnKey, false},
                                         DestroyAtPickRow{"ControlByArrow", Robot::PickBy::ArrowKey, false},
                                         DestroyAtPickRow{"WindowByMouse", Robot::PickBy::Mouse, true},
                                         DestroyAtPickRow{"WindowByReturn", Robot::PickBy::ReturnKey, true},
                                         DestroyAtPickRow{"WindowByArrow", Robot::PickBy::ArrowKey, true}),
                         RowName());

}  // namespace
}  // namespace tactix::tests
