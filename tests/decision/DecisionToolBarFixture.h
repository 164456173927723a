#pragma once

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/decision/DecisionBAR.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/PropertyObject.h"

namespace tactix::tests {

inline constexpr auto ButtonsShown = ButtonStatusPossibilities::ButtonsArevisible;
inline constexpr auto ButtonsHidden = ButtonStatusPossibilities::ButtonsAreInvisible;

using BothDecisionBars = testing::Types<DecisionBAR, DecisionBAR2>;

/// Hit card, hole card, tens ratio, dealer's hand.
using PredictionRecord = std::array<std::int32_t, 4>;

inline PredictionRecord RecordOf(const DecisionToolBarControl& bar) {
  const DecisionBARResponseObject record = bar.GiveMeYourResponseData();
  return {record.HitCardIs.Value(), record.HoleCardIs.Value(), record.TensRatioIs.Value(), record.DealerHandIs.Value()};
}

/// The keys of the buttons for which a question is answered with yes, first to last.
inline std::vector<std::string> KeysWhere(const ToolBar& strip, bool (ToolButton::*answer)() const) {
  std::vector<std::string> keys;
  for (const auto& button : strip.Buttons()) {
    if ((button.get()->*answer)()) keys.push_back(button->Key());
  }
  return keys;
}

/// A decision toolbar of either kind on a headless site, as designed.
template <class Bar>
class DecisionToolBarFixture : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  DecisionToolBarFixture() {
    DefaultEdition::CreateWith([this] {
      ++editionsMade_;
      if (onEdition_) onEdition_();
      return std::make_shared<PropertyObject>("thisKelvoEdition", std::int16_t{0});
    });
    recorder_.Watch(bar_->Events.All());
  }
  ~DecisionToolBarFixture() override { DefaultEdition::CreateWith({}); }

  ToolBar& Strip() { return bar_->Children.DecisionToolBar; }
  ToolButton& Button(std::string_view key) { return Strip().Button(key); }
  Texts Pressed() { return KeysWhere(Strip(), &ToolButton::Value); }
  Texts Seen() { return KeysWhere(Strip(), &ToolButton::Visible); }
  PredictionRecord Record() { return RecordOf(*bar_); }

  static DecisionBlock BlockFor(std::int16_t hard, std::int16_t soft) {
    DecisionBlock block;
    block.PlayerName("Ann");
    block.HardTotal(hard);
    block.SoftTotal(soft);
    return block;
  }

  HeadlessSite site_;
  std::unique_ptr<Bar> bar_ = std::make_unique<Bar>(site_);
  EventRecorder recorder_;
  int editionsMade_ = 0;
  std::function<void()> onEdition_;
};

}  // namespace tactix::tests
