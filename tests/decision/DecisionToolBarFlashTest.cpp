// How both decision toolbars flash a button and wait, without a user at a window.

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class Bar>
class DecisionToolBarFlashTest : public DecisionToolBarFixture<Bar> {
 protected:
  static constexpr const char* Plays[] = {"Hit", "Stand", "Split", "Double", "Surrender"};

  /// Sets up for a hand on which only hitting and standing are legal.
  void Advise(std::int16_t advice) {
    DecisionBlock block = this->BlockFor(9, 0);
    block.ManualPlayerRestrictions(true);
    block.StrategyAdvice(advice);
    this->bar_->SetupTheDecisionBAR(block);
    this->recorder_.Forget();
  }
  Texts Disabled() {
    Texts keys;
    for (const auto& button : this->Strip().Buttons()) {
      if (!button->Enabled()) keys.push_back(button->Key());
    }
    return keys;
  }
};
TYPED_TEST_SUITE(DecisionToolBarFlashTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarFlashTest, AdviceFlashesTheAdvisedButtonAloneAndEndsEnabled) {
  for (std::int16_t advice = 1; advice <= 5; ++advice) {
    const std::string play = this->Plays[advice - 1];
    SCOPED_TRACE(play);
    this->Advise(advice);
    Texts on = this->Disabled();
    ASSERT_EQ(on, (Texts{"Split", "Double", "Surrender"}));
    std::erase(on, play);
    std::vector<Texts> states;
    const std::int64_t start = this->site_.Now();
    for (int at = 100; at < 1600; at += 200) {
      this->site_.After(at, [&] { states.push_back(this->Disabled()); });
    }
    this->Button("Advice").Click();
    ASSERT_EQ(states.size(), 8U);
    for (std::size_t i = 0; i < states.size(); ++i) {
      const bool isOff = i % 2 == 0;
      EXPECT_EQ(std::count(states[i].begin(), states[i].end(), play), isOff ? 1 : 0) << i;
      std::erase(states[i], play);
      EXPECT_EQ(states[i], on) << "no other button changes";
    }
    EXPECT_EQ(this->site_.Now() - start, 1600);
    EXPECT_EQ(this->Disabled(), on);
    EXPECT_EQ(this->recorder_.Take(), Texts{}) << "advice is no event";
    EXPECT_TRUE(this->bar_->Children.BlinkTimer.Enabled()) << "the tick leaves the timer running";
    EXPECT_EQ(this->bar_->Children.BlinkTimer.Interval(), 200);
  }
}

TYPED_TEST(DecisionToolBarFlashTest, AdviceOutsideTheCodesDoesNothing) {
  this->Button("Advice").Click();
  for (const std::int16_t advice : std::initializer_list<std::int16_t>{0, 6, -1, 32767}) {
    this->Advise(advice);
    this->Button("Advice").Click();
  }
  EXPECT_EQ(this->site_.Now(), 0);
  EXPECT_EQ(this->recorder_.Take(), Texts{});
}

TYPED_TEST(DecisionToolBarFlashTest, OnlyAWholeSetUpTakesTheAdvice) {
  DecisionBlock block = this->BlockFor(9, 0);
  block.StrategyAdvice(2);
  this->bar_->HereIsTheDCB(block);
  this->bar_->SetupPlayButtons(block);
  this->Button("Advice").Click();
  EXPECT_EQ(this->site_.Now(), 0);
  this->bar_->SetupDecisionBAR(block, nullptr);
  this->Button("Advice").Click();
  EXPECT_EQ(this->site_.Now(), 1600);
}

TYPED_TEST(DecisionToolBarFlashTest, AFlashInsideAFlashRunsFirstAndTheOuterGoesOnAtOnce) {
  this->Advise(1);
  std::vector<std::int64_t> changes;
  this->site_.After(300, [this] { this->Button("Advice").Click(); });
  // The outer flash is in its first "on" then. The inner one ends at 1900; the outer has six half rounds left.
  for (const int at : {1850, 1950, 2150}) {
    this->site_.After(at, [&, at] { changes.push_back(this->Button("Hit").Enabled() ? at : -at); });
  }
  this->Button("Advice").Click();
  EXPECT_EQ(this->site_.Now(), 1900 + 6 * 200);
  EXPECT_EQ(changes, (std::vector<std::int64_t>{1850, -1950, 2150}));
  EXPECT_TRUE(this->Button("Hit").Enabled());
}

TYPED_TEST(DecisionToolBarFlashTest, WhileItFlashesTheButtonClicksOnlyWhenItIsOn) {
  this->Advise(1);
  this->site_.After(100, [this] { this->Button("Hit").Click(); });
  this->site_.After(150, [this] { this->Button("Stand").Click(); });
  this->site_.After(300, [this] { this->Button("Hit").Click(); });
  this->Button("Advice").Click();
  EXPECT_EQ(this->recorder_.Take(), (Texts{"StandButtonWasPressed#2", "HitButtonWasPressed#1"}));
}

TYPED_TEST(DecisionToolBarFlashTest, SettingUpInTheMiddleOfAFlashLastsUntilItsNextStep) {
  this->Advise(4);
  this->site_.After(300, [this] { this->Advise(3); });
  this->site_.After(350, [this] { EXPECT_FALSE(this->Button("Double").Enabled()); });
  this->Button("Advice").Click();
  EXPECT_TRUE(this->Button("Double").Enabled()) << "it ends enabled although the play is not legal";
  EXPECT_FALSE(this->Button("Split").Enabled()) << "the new advice is for the next click";
}

TYPED_TEST(DecisionToolBarFlashTest, FlashesAnyObjectThatCanBeEnabled) {
  const auto object = std::make_shared<PropertyObject>("Enabled", false);
  this->bar_->FlashObject(object);
  Texts steps;
  for (int round = 0; round < 4; ++round) {
    steps.emplace_back("Put Enabled=False");
    steps.emplace_back("Put Enabled=True");
  }
  EXPECT_EQ(object->Log, steps);
  EXPECT_EQ(this->site_.Now(), 1600);
  this->bar_->FlashObject(this->bar_->Handle());
  EXPECT_TRUE(this->bar_->Extender().Enabled());
  this->Button("Stand").Enabled(false);
  this->bar_->FlashObject(this->Button("Stand").Handle());
  EXPECT_TRUE(this->Button("Stand").Enabled());
}

TYPED_TEST(DecisionToolBarFlashTest, WhatCannotBeEnabledFails) {
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->FlashObject(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->FlashObject(std::make_shared<PropertyObject>()); }), 438);
  HeadlessSite other;
  ObjectRef gone;
  {
    const TypeParam bar(other);
    gone = bar.Children.DecisionToolBar.Button("Hit").Handle();
  }
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->FlashObject(gone); }), 91);
  EXPECT_EQ(this->site_.Now(), 0);
}

TYPED_TEST(DecisionToolBarFlashTest, WaitsThatManySeconds) {
  const struct {
    float seconds;
    std::int64_t milliseconds;
  } rows[] = {{0.25F, 250}, {1.2344F, 1234}, {0.0006F, 1}, {2, 2000}};
  for (const auto& row : rows) {
    const std::int64_t before = this->site_.Now();
    this->bar_->BlinkTime(row.seconds);
    EXPECT_EQ(this->site_.Now() - before, row.milliseconds);
    EXPECT_TRUE(this->bar_->Children.BlinkTimer.Enabled());
  }
  for (const float seconds : {-0.1F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
    EXPECT_EQ(ErrorCodeOf([&] { this->bar_->BlinkTime(seconds); }), 380);
  }
}

TYPED_TEST(DecisionToolBarFlashTest, AnObjectThatFlashesMayDestroyIt) {
  for (std::size_t at = 1; at <= 8; ++at) {
    this->bar_ = std::make_unique<TypeParam>(this->site_);
    const auto object = std::make_shared<PropertyObject>("Enabled", true);
    object->OnUse = [&](const std::string&) {
      if (object->Log.size() == at) this->bar_.reset();
    };
    this->bar_->FlashObject(object);
    EXPECT_EQ(object->Log.size(), at);
    object->OnUse = nullptr;
  }
}

TYPED_TEST(DecisionToolBarFlashTest, ItMayBeDestroyedInAFlashInsideAFlash) {
  for (const int at : {100, 300, 350, 500, 1850, 2000}) {
    this->bar_ = std::make_unique<TypeParam>(this->site_);
    this->Advise(2);
    this->site_.After(300, [this] {
      if (this->bar_) this->Button("Advice").Click();
    });
    this->site_.After(at, [this] { this->bar_.reset(); });
    this->Button("Advice").Click();
    EXPECT_EQ(this->bar_, nullptr) << at;
    this->site_.Advance(3000);
  }
  EXPECT_TRUE(this->site_.Errors().empty());
}

}  // namespace
}  // namespace tactix::tests
