#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix/decision/DefaultEdition.h"
#include "tactix/decision/Flash.h"
#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/Robot.h"
#include "tests/support/When.h"

namespace tactix::tests {

/// A decision toolbar of either kind at a user's window, docked to the bottom of a larger control.
template <class Bar>
class DecisionBarAtWindow : public testing::Test {
 public:
  using Texts = std::vector<std::string>;

  DecisionBarAtWindow() {
    DefaultEdition::CreateWith([] { return std::make_shared<PropertyObject>(); });
    bar_->InitProperties();
    bar_->Extender().Height(4500);
    recorder_.Watch(bar_->Events.All());
    robot_->Show(*bar_);
  }
  ~DecisionBarAtWindow() override { DefaultEdition::CreateWith({}); }

  ToolBar& Strip() { return bar_->Children.DecisionToolBar; }
  ToolButton& Button(std::string_view key) { return Strip().Button(key); }
  void Click(std::string_view key) { robot_->Click(Button(key)); }

  /// Sets up for a hand on which this is advised.
  void Advise(std::int16_t advice) {
    DecisionBlock block;
    block.StrategyAdvice(advice);
    bar_->SetupTheDecisionBAR(block);
    recorder_.Forget();
  }
  /// The keys of the buttons that look pressed.
  Texts LooksPressed() {
    Texts keys;
    for (const auto& button : Strip().Buttons()) {
      if (robot_->SeesPressed(*button)) keys.push_back(button->Key());
    }
    return keys;
  }
  /// Does something as soon as the user sees a button off, or on: in the middle of its flash.
  void WhenOff(std::string_view key, std::function<void()> action) {
    When(
        *robot_, [this, key] { return !robot_->SeesEnabled(Button(key)); }, std::move(action));
  }
  void WhenOn(std::string_view key, std::function<void()> action) {
    When(
        *robot_, [this, key] { return robot_->SeesEnabled(Button(key)); }, std::move(action));
  }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { bar_.reset(); });
    } else {
      bar_.reset();
    }
  }

  std::unique_ptr<Robot> robot_ = Robot::Make();
  std::unique_ptr<Bar> bar_ = std::make_unique<Bar>(robot_->NewSite());
  EventRecorder recorder_;
};

}  // namespace tactix::tests
