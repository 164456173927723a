#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/decision/Flash.h"
#include "tests/decision/DecisionStates.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/Robot.h"
#include "tests/support/When.h"

namespace tactix::tests {

/// A decision box for a blackjack table, at a user's window and set up for a hand: everything is shown and enabled.
class DecisionAtWindow : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  DecisionAtWindow() {
    box_->InitProperties();
    box_->DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
    for (const char* row : {"Empty Seat", "Zero", "Not Present", "Two"}) {
      box_->Children.AdviceButton.Children.StrategyListBox.AddItem(row);
    }
    recorder_.Watch(box_->Events.All());
    robot_->Show(*box_);
    box_->SetupTheDecisionBox(FullBlock());
  }

  Decision::ChildWidgets& Children() const { return box_->Children; }
  PushButton& ButtonOf(const DecisionPlay& play) const { return box_->Children.*play.button; }
  PushButton& TheAdviceButton() const { return box_->Children.AdviceButton.Children.cmdAdviceButton; }
  ListBox& TheList() const { return box_->Children.AdviceButton.Children.StrategyListBox.Children.StrategyListBox; }

  static std::string EventOf(const DecisionPlay& play) {
    constexpr const char* Names[] = {"PlayerHits#9", "PlayerStands#11", "PlayerSplits#10", "PlayerDoublesDown#8",
                                     "PlayerSurrenders#12"};
    return Names[static_cast<int>(play.code) - 1];
  }

  /// Opens the menu of one of the three buttons and does something there.
  void WithMenu(PushButton& button, std::function<void(Menu&)> script) {
    robot_->OnNextMenu(std::move(script));
    robot_->Click(button);
  }
  void ChooseFrom(PushButton& button, MenuEntry& entry) {
    WithMenu(button, [this, &entry](Menu& menu) { robot_->Choose(menu, entry); });
  }
  void OpenTheStrategyList() {
    robot_->OnNextMenu(
        [this](Menu& menu) { robot_->Choose(menu, Children().AdviceButton.Children.mnuSelectStrategy); });
    robot_->MouseDown(TheAdviceButton(), RightButton, 0);
  }
  /// Does something as soon as the user sees a button hidden, or shown: in the middle of its flash.
  void WhenHidden(const PushButton& button, std::function<void()> action) {
    When(
        *robot_, [this, &button] { return !robot_->SeesShown(button); }, std::move(action));
  }
  void WhenShown(const PushButton& button, std::function<void()> action) {
    When(
        *robot_, [this, &button] { return robot_->SeesShown(button); }, std::move(action));
  }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { box_.reset(); });
    } else {
      box_.reset();
    }
  }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<Decision> box_ = std::make_unique<Decision>(robot_->NewSite());
  EventRecorder recorder_;
};

}  // namespace tactix::tests
