#include "tactix/decision/Blinker.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/decision/AdviceButton.h"
#include "tactix/decision/Decision.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// Waits and flashes alike on a decision box and on an advice button.
template <class T>
class BlinkerTest : public testing::Test {
 protected:
  Timer& TheTimer() { return control_->Children.BlinkTimer; }
  void DestroyWindow() {
    control_.reset();
    site_.reset();
  }

  std::unique_ptr<HeadlessSite> site_ = std::make_unique<HeadlessSite>();
  std::unique_ptr<T> control_ = std::make_unique<T>(*site_);
  std::shared_ptr<PropertyObject> element_ = [] {
    auto element = std::make_shared<PropertyObject>("Visible", true);
    element->Set("DEFAULT", false);
    return element;
  }();
};

using BlinkingControls = testing::Types<Decision, AdviceButton>;
TYPED_TEST_SUITE(BlinkerTest, BlinkingControls);

struct WaitRow {
  float seconds;
  std::int32_t milliseconds;
};

TYPED_TEST(BlinkerTest, WaitsInWholeMilliseconds) {
  const WaitRow rows[] = {
      {0, 0},       {0.2F, 200},  {1.6F, 1600}, {0.0004F, 0}, {0.0005F, 0},
      {0.0006F, 1}, {0.0015F, 2}, {0.0025F, 2}, {-0.0F, 0},   {60, 60'000},
  };
  for (const WaitRow& row : rows) {
    const std::int64_t before = this->site_->Now();
    this->control_->BlinkTime(row.seconds);
    EXPECT_EQ(this->TheTimer().Interval(), row.milliseconds) << row.seconds;
    EXPECT_EQ(this->site_->Now() - before, std::max(row.milliseconds, 1)) << row.seconds;
  }
}

TYPED_TEST(BlinkerTest, RefusesTimesThatNeverEnd) {
  const float infinity = std::numeric_limits<float>::infinity();
  for (const float seconds : {-1.0F, -0.001F, -0.0001F, -infinity, infinity, std::nanf("")}) {
    EXPECT_EQ(ErrorCodeOf([&] { this->control_->BlinkTime(seconds); }), 380) << seconds;
  }
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->BlinkTime(3e6F); }), 6) << "more milliseconds than a timer counts";
  EXPECT_EQ(this->site_->Now(), 0);
  EXPECT_FALSE(this->TheTimer().Enabled());
}

TYPED_TEST(BlinkerTest, TheTimerGoesOnTickingAfterAWait) {
  int ticks = 0;
  this->TheTimer().Tick.Connect([&] { ++ticks; });
  this->control_->BlinkTime(0.2F);
  EXPECT_EQ(ticks, 1);
  EXPECT_TRUE(this->TheTimer().Enabled());
  this->site_->Advance(600);
  EXPECT_EQ(ticks, 4);
  // Half way to the next tick a new wait starts over.
  this->site_->Advance(100);
  const std::int64_t before = this->site_->Now();
  this->control_->BlinkTime(0.2F);
  EXPECT_EQ(this->site_->Now() - before, 200);
}

TYPED_TEST(BlinkerTest, FlashesFourTimesAndMakesDefault) {
  Texts expected;
  std::int64_t at = 0;
  for (int round = 0; round < 4; ++round) {
    expected.push_back(std::to_string(at) + " Put Visible=False");
    expected.push_back(std::to_string(at + 200) + " Put Visible=True");
    at += 400;
  }
  expected.push_back("1600 Put DEFAULT=True");
  Texts log;
  this->element_->OnUse = [&](const std::string& use) {
    log.push_back(std::to_string(this->site_->Now()) + " " + use);
  };
  this->control_->FlashObject(this->element_);
  EXPECT_EQ(log, expected);
  EXPECT_TRUE(this->TheTimer().Enabled());
}

TYPED_TEST(BlinkerTest, FlashingNothingFails) {
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->FlashObject(nullptr); }), 91);
  EXPECT_EQ(this->site_->Now(), 0);
}

TYPED_TEST(BlinkerTest, AnElementWithoutVisibleFailsAtOnce) {
  const auto element = std::make_shared<PropertyObject>("DEFAULT", false);
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->FlashObject(element); }), 438);
  EXPECT_EQ(this->site_->Now(), 0);
}

TYPED_TEST(BlinkerTest, AnElementWithoutDefaultFlashesAndFails) {
  const auto element = std::make_shared<PropertyObject>("Visible", false);
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->FlashObject(element); }), 438);
  EXPECT_EQ(this->site_->Now(), 1600);
  EXPECT_EQ(element->Log.size(), 8U);
  EXPECT_EQ(element->Get("Visible"), Variant(true));
}

TYPED_TEST(BlinkerTest, AFailingElementEndsTheFlashWhereItFails) {
  this->element_->OnUse = [&](const std::string&) {
    if (this->element_->Log.size() == 4) throw Error(1234);
  };
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->FlashObject(this->element_); }), 1234);
  EXPECT_EQ(this->site_->Now(), 600);
  this->element_->OnUse = nullptr;
  this->control_->FlashObject(this->element_);
  EXPECT_EQ(this->site_->Now(), 2200);
}

TYPED_TEST(BlinkerTest, AFlashThatFailsInAWaitPutsItsElementOn) {
  for (const bool elementFailsToo : {false, true}) {
    this->site_->After(100, [&] {
      if (elementFailsToo) this->element_->OnUse = [](const std::string&) { throw Error(91); };
      throw 13;
    });
    this->element_->Log.clear();
    EXPECT_THROW(this->control_->FlashObject(this->element_), int);
    EXPECT_EQ(this->element_->Log, (Texts{"Put Visible=False", "Put Visible=True"}));
  }
}

TYPED_TEST(BlinkerTest, ASecondFlashRunsInsideTheFirst) {
  const auto second = std::make_shared<PropertyObject>("Visible", true);
  second->Set("DEFAULT", false);
  Texts log;
  const auto noteAs = [&](const char* who) {
    return [&log, this, who](const std::string& use) {
      log.push_back(std::to_string(this->site_->Now()) + " " + who + use.substr(3));
    };
  };
  this->element_->OnUse = noteAs("first");
  second->OnUse = noteAs("second");
  this->site_->After(500, [&] { this->control_->FlashObject(second); });
  this->control_->FlashObject(this->element_);
  EXPECT_EQ(log, (Texts{"0 first Visible=False", "200 first Visible=True", "400 first Visible=False",
                        "500 second Visible=False", "700 second Visible=True", "900 second Visible=False",
                        "1100 second Visible=True", "1300 second Visible=False", "1500 second Visible=True",
                        "1700 second Visible=False", "1900 second Visible=True", "2100 second DEFAULT=True",
                        // The outer wait ends at once: the inner one's tick has set the flag of both.
                        "2100 first Visible=True", "2300 first Visible=False", "2500 first Visible=True",
                        "2700 first Visible=False", "2900 first Visible=True", "3100 first DEFAULT=True"}));
}

TYPED_TEST(BlinkerTest, AWaitInsideAWaitEndsBoth) {
  std::vector<std::int64_t> ends;
  this->site_->After(100, [&] {
    this->control_->BlinkTime(0.5F);
    ends.push_back(this->site_->Now());
  });
  this->control_->BlinkTime(0.2F);
  ends.push_back(this->site_->Now());
  EXPECT_EQ(ends, (std::vector<std::int64_t>{600, 600}));
}

TYPED_TEST(BlinkerTest, ABadWaitInsideAWaitLeavesItAlone) {
  this->site_->After(100, [&] {
    EXPECT_EQ(ErrorCodeOf([&] { this->control_->BlinkTime(-1); }), 380);
    EXPECT_EQ(ErrorCodeOf([&] { this->control_->BlinkTime(3e6F); }), 6);
  });
  this->control_->BlinkTime(0.2F);
  EXPECT_EQ(this->site_->Now(), 200);
}

TYPED_TEST(BlinkerTest, TheControlMayGoInTheMiddleOfAWait) {
  this->site_->After(100, [&] { this->control_.reset(); });
  this->control_->BlinkTime(0.2F);
  EXPECT_EQ(this->site_->Now(), 100);
  this->site_->Advance(1000);
}

TYPED_TEST(BlinkerTest, TheWindowMayGoInTheMiddleOfAWait) {
  this->site_->After(100, [&] { this->DestroyWindow(); });
  this->control_->BlinkTime(0.2F);
  EXPECT_EQ(this->control_, nullptr);
}

TYPED_TEST(BlinkerTest, TheWindowMayGoInTheMiddleOfANestedFlash) {
  for (const std::int64_t at : {0, 100, 250, 600, 1500}) {
    this->DestroyWindow();
    this->site_ = std::make_unique<HeadlessSite>();
    this->control_ = std::make_unique<TypeParam>(*this->site_);
    this->site_->After(50, [&] { this->control_->FlashObject(this->element_); });
    this->site_->After(at, [&] { this->DestroyWindow(); });
    this->element_->Log.clear();
    this->control_->FlashObject(this->element_);
    EXPECT_EQ(this->control_, nullptr);
    EXPECT_NE(this->element_->Log.back(), "Put DEFAULT=True");
  }
}

TYPED_TEST(BlinkerTest, AnElementMayDestroyTheControlAtEveryStep) {
  for (std::size_t step = 1; step <= 9; ++step) {
    this->control_ = std::make_unique<TypeParam>(*this->site_);
    this->element_->Log.clear();
    this->element_->OnUse = [&](const std::string&) {
      if (this->element_->Log.size() == step) this->control_.reset();
    };
    this->control_->FlashObject(this->element_);
    EXPECT_EQ(this->control_, nullptr);
    EXPECT_EQ(this->element_->Log.size(), step);
  }
}

TYPED_TEST(BlinkerTest, AChildMayFlash) {
  PushButton& button = [&]() -> PushButton& {
    if constexpr (std::is_same_v<TypeParam, Decision>) {
      return this->control_->Children.SplitButton;
    } else {
      return this->control_->Children.cmdAdviceButton;
    }
  }();
  button.Visible(false);
  this->control_->FlashObject(button.Handle());
  EXPECT_TRUE(button.Visible()) << "it ends shown even if it was hidden before";
  EXPECT_TRUE(button.DEFAULT());
}

TYPED_TEST(BlinkerTest, AControlMayFlashAsAWhole) {
  AdviceButton other(*this->site_);
  other.Extender().Visible(false);
  this->control_->FlashObject(other.Handle());
  EXPECT_TRUE(other.Extender().Visible());
  EXPECT_TRUE(other.DEFAULT());
}

TYPED_TEST(BlinkerTest, AnElementThatIsGoneFails) {
  auto other = std::make_unique<AdviceButton>(*this->site_);
  const ObjectRef handle = other->Handle();
  this->site_->After(300, [&] { other.reset(); });
  EXPECT_EQ(ErrorCodeOf([&] { this->control_->FlashObject(handle); }), 91);
  EXPECT_EQ(this->site_->Now(), 400);
}

}  // namespace
}  // namespace tactix::tests
