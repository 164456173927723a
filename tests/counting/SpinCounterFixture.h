#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix/companion/CounterValue.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/InstalledCounterValues.h"

namespace tactix::tests {

/// A host's own counter value: the library's, with a log of what is asked of it.
class LoggingCounterValue final : public CounterValueObject {
 public:
  using Note = std::function<void(const std::string&)>;
  explicit LoggingCounterValue(Note note) : note_(std::move(note)) {}

  std::int16_t Value() const override { return Say("Value"), value_.Value(); }
  void Value(std::int16_t value) override {
    value_.Value(value);
    Say("Value=" + std::to_string(value));
  }
  void StepDownWrapping(std::int16_t limit) override {
    value_.StepDownWrapping(limit);
    Say("StepDownWrapping(" + std::to_string(limit) + ")");
  }
  void StepDownSigned() override {
    value_.StepDownSigned();
    Say("StepDownSigned()");
  }
  void StepDownToZero() override {
    value_.StepDownToZero();
    Say("StepDownToZero()");
  }
  void StepUpToLimit(std::int16_t limit) override {
    value_.StepUpToLimit(limit);
    Say("StepUpToLimit(" + std::to_string(limit) + ")");
  }

 private:
  void Say(const std::string& text) const {
    if (const Note note = note_) note(text);
  }

  companion::CounterValue value_;
  Note note_;
};

/// A new spin counter on a headless site; its notices and events are in one list.
class SpinCounterFixture : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  SpinCounterFixture() {
    counter_->InitProperties();
    site_->ForgetRecords();
    recorder_.Watch(counter_->Events.All());
    site_->OnPropertyChanged([this](std::string_view name) {
      recorder_.Note("notice " + std::string(name));
      if (const auto onNotice = onNotice_) onNotice(name);
    });
  }

  Label& TheLabel() { return counter_->Children.labelCardsInStack; }
  SpinButton& Spin() { return counter_->Children.SpinButton; }
  /// What a change to that number is heard as.
  static Texts Change(int number) {
    return {"notice CounterValue", "CounterValueHasChanged#1(" + std::to_string(number) + ")"};
  }
  void Destroy(bool withWindow) {
    counter_.reset();
    if (withWindow) site_.reset();
  }

  InstalledCounterValues installed_;
  std::optional<HeadlessSite> site_{std::in_place};
  std::unique_ptr<SpinCounter> counter_ = std::make_unique<SpinCounter>(*site_);
  EventRecorder recorder_;
  std::function<void(std::string_view)> onNotice_;
};

}  // namespace tactix::tests
