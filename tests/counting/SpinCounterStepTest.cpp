// Steps, what is asked of the value object, and handlers that go on or end the counter.

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/counting/SpinCounterFixture.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class SpinCounterStepTest : public SpinCounterFixture {
 protected:
  /// Counters create logging values from here on.
  void LogTheValue() {
    CounterValueObject::CreateWith([this] {
      ++made_;
      const auto value = std::make_shared<LoggingCounterValue>([this](const std::string& use) { UseOfValue(use); });
      lastMade_ = value;
      return value;
    });
  }
  void UseOfValue(const std::string& use) {
    recorder_.Note(use);
    if (const auto onUse = onUse_) onUse(use);
  }

  int made_ = 0;
  std::weak_ptr<CounterValueObject> lastMade_;
  std::function<void(const std::string&)> onUse_;
};

struct OperationRow {
  const char* name;
  bool wraps;
  bool negatives;
  const char* down;
};

class SpinCounterOperationTest : public SpinCounterStepTest, public testing::WithParamInterface<OperationRow> {};

TEST_P(SpinCounterOperationTest, AsksForTheStep) {
  LogTheValue();
  counter_->MaximumLimit(52);
  counter_->NumberWrap(GetParam().wraps);
  counter_->AllowNegNumbers(GetParam().negatives);
  recorder_.Forget();
  Spin().SpinDown();
  EXPECT_EQ(recorder_.Take()[0], GetParam().down);
  Spin().SpinUp();
  EXPECT_EQ(recorder_.Take()[0], "StepUpToLimit(52)");
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterOperationTest,
                         testing::Values(OperationRow{"Plain", false, false, "StepDownToZero()"},
                                         OperationRow{"Wrapping", true, false, "StepDownWrapping(52)"},
                                         OperationRow{"Negative", false, true, "StepDownSigned()"},
                                         OperationRow{"WrappingBeforeNegative", true, true, "StepDownWrapping(52)"}),
                         RowName());

struct EndRow {
  const char* name;
  bool wraps;
  bool negatives;
  std::int16_t from;
  void (SpinButton::*spin)();
  int to;
};

class SpinCounterEndTest : public SpinCounterStepTest, public testing::WithParamInterface<EndRow> {};

TEST_P(SpinCounterEndTest, StepsTellTheNumberTheyEndAt) {
  const EndRow& row = GetParam();
  counter_->MaximumLimit(99);
  counter_->AllowNegNumbers(true);
  counter_->CounterValue(row.from);
  counter_->AllowNegNumbers(row.negatives);
  counter_->NumberWrap(row.wraps);
  recorder_.Forget();
  (Spin().*row.spin)();
  EXPECT_EQ(recorder_.Take(), Change(row.to));
  EXPECT_EQ(counter_->CounterValue(), row.to);
}

constexpr auto Up = &SpinButton::SpinUp;
constexpr auto Down = &SpinButton::SpinDown;
INSTANTIATE_TEST_SUITE_P(
    Rows, SpinCounterEndTest,
    testing::Values(EndRow{"Up", false, false, 7, Up, 8}, EndRow{"ToTheLimit", false, false, 98, Up, 99},
                    EndRow{"AtTheLimit", false, false, 99, Up, 99}, EndRow{"NeverWrapsUp", true, true, 99, Up, 99},
                    EndRow{"UpFromBelowZero", false, false, -5, Up, -4}, EndRow{"Down", false, false, 7, Down, 6},
                    EndRow{"AtZero", false, false, 0, Down, 0}, EndRow{"WrapsDown", true, false, 0, Down, 99},
                    EndRow{"WrapsDownThoughNegative", true, true, 0, Down, 99},
                    EndRow{"BelowZero", false, true, 0, Down, -1},
                    EndRow{"AtTheLowerEnd", false, true, -999, Down, -999}),
    RowName());

TEST_F(SpinCounterStepTest, ChangesAreShownAnnouncedAndRaisedInThisOrder) {
  LogTheValue();
  counter_->CounterValue(5);
  EXPECT_EQ(recorder_.Take(),
            (Texts{"Value=5", "Value", "notice CounterValue", "Value", "CounterValueHasChanged#1(5)"}));
  Spin().SpinUp();
  EXPECT_EQ(recorder_.Take(),
            (Texts{"StepUpToLimit(999)", "Value", "notice CounterValue", "Value", "CounterValueHasChanged#1(6)"}));
}

TEST_F(SpinCounterStepTest, TheValueIsCreatedOnFirstUseAndOnce) {
  LogTheValue();
  counter_->CounterValue(1000);
  counter_->CounterValue(-1);
  counter_->Displayed();
  EXPECT_EQ(made_, 0) << "what is ignored asks nothing";
  EXPECT_EQ(counter_->CounterValue(), 0);
  Spin().SpinUp();
  counter_->CounterValue(7);
  EXPECT_EQ(made_, 1);
  SpinCounter other(*site_);
  EXPECT_EQ(other.CounterValue(), 0) << "each counter has one of its own";
  EXPECT_EQ(made_, 2);
}

TEST_F(SpinCounterStepTest, TheValueIsReleasedWhenTheCounterEnds) {
  LogTheValue();
  counter_->CounterValue(7);
  counter_->Terminated();
  EXPECT_TRUE(lastMade_.expired());
  EXPECT_EQ(counter_->CounterValue(), 0) << "a new one";
  counter_.reset();
  EXPECT_TRUE(lastMade_.expired());
}

TEST_F(SpinCounterStepTest, WithoutAValueAllThatNeedsItFails) {
  CounterValueObject::CreateWith(nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { return counter_->CounterValue(); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { return counter_->CounterValue(7), 0; }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { return counter_->CounterValue(1000), 0; }), 0) << "ignored";
  Spin().SpinUp();
  Spin().SpinDown();
  ASSERT_EQ(site_->Errors().size(), 2U);
  EXPECT_EQ(site_->Errors()[0].Code(), 91);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(TheLabel().Caption(), "(###)");
}

TEST_F(SpinCounterStepTest, AStepThatFailsChangesNothingElse) {
  LogTheValue();
  onUse_ = [](const std::string& use) {
    if (use.starts_with("Step")) throw Error(4711);
  };
  Spin().SpinUp();
  EXPECT_EQ(recorder_.Take(), Texts{"StepUpToLimit(999)"});
  ASSERT_EQ(site_->Errors().size(), 1U);
  EXPECT_EQ(site_->Errors()[0].Code(), 4711);
}

TEST_F(SpinCounterStepTest, WhatAHandlerWritesIsIgnored) {
  std::int16_t second = 0;
  counter_->Events.CounterValueHasChanged.Connect([](std::int16_t& value) { value = 500; });
  counter_->Events.CounterValueHasChanged.Connect([&second](std::int16_t& value) { second = value; });
  counter_->CounterValue(7);
  EXPECT_EQ(counter_->CounterValue(), 7);
  EXPECT_EQ(second, 500) << "the handlers share the argument";
}

TEST_F(SpinCounterStepTest, AHandlerMaySetANumberAgain) {
  counter_->Events.CounterValueHasChanged.Connect([this](const std::int16_t& value) {
    if (value == 7) counter_->CounterValue(8);
  });
  counter_->CounterValue(7);
  EXPECT_EQ(recorder_.Take(), (Texts{"notice CounterValue", "CounterValueHasChanged#1(7)", "notice CounterValue",
                                     "CounterValueHasChanged#1(8)"}));
  EXPECT_EQ(TheLabel().Caption(), "(008)");
}

TEST_F(SpinCounterStepTest, TheEventCarriesWhatTheNoticeHasMadeOfTheNumber) {
  onNotice_ = [this](std::string_view) {
    if (counter_->CounterValue() == 7) counter_->CounterValue(8);
  };
  counter_->CounterValue(7);
  EXPECT_EQ(recorder_.Take(), (Texts{"notice CounterValue", "notice CounterValue", "CounterValueHasChanged#1(8)",
                                     "CounterValueHasChanged#1(8)"}));
}

struct CallOutRow {
  const char* name;
  /// The entry of the log at which the counter goes.
  const char* at;
  void (*act)(SpinCounter&);
};

class SpinCounterDestroyTest : public SpinCounterStepTest, public testing::WithParamInterface<CallOutRow> {};

TEST_P(SpinCounterDestroyTest, MayGoInEveryCallOut) {
  for (const bool withWindow : {false, true}) {
    if (!site_) site_.emplace();
    LogTheValue();
    counter_ = std::make_unique<SpinCounter>(*site_);
    const auto destroyAt = [this, withWindow](std::string_view text) {
      if (text == GetParam().at) Destroy(withWindow);
    };
    onUse_ = destroyAt;
    site_->OnPropertyChanged([this, destroyAt](std::string_view name) {
      recorder_.Note("notice " + std::string(name));
      destroyAt("notice " + std::string(name));
    });
    counter_->Events.CounterValueHasChanged.Connect([this, destroyAt](const std::int16_t&) {
      recorder_.Note("event");
      destroyAt("event");
    });
    counter_->Events.CounterValueHasChanged.Connect([](const std::int16_t&) { FAIL(); });
    recorder_.Forget();
    GetParam().act(*counter_);
    EXPECT_EQ(counter_, nullptr);
    ASSERT_FALSE(recorder_.Entries().empty());
    EXPECT_EQ(recorder_.Entries().back(), GetParam().at);
    EXPECT_TRUE(lastMade_.expired());
    if (site_) {
      EXPECT_TRUE(site_->Errors().empty());
    }
  }
}

void SpinItUp(SpinCounter& counter) { counter.Children.SpinButton.SpinUp(); }
void SpinItDown(SpinCounter& counter) { counter.Children.SpinButton.SpinDown(); }
void SetItToFive(SpinCounter& counter) { counter.CounterValue(5); }

INSTANTIATE_TEST_SUITE_P(
    Rows, SpinCounterDestroyTest,
    testing::Values(CallOutRow{"StepUp", "StepUpToLimit(999)", SpinItUp},
                    CallOutRow{"StepDown", "StepDownToZero()", SpinItDown}, CallOutRow{"Set", "Value=5", SetItToFive},
                    CallOutRow{"Show", "Value", SetItToFive},
                    CallOutRow{"Get", "Value", [](SpinCounter& counter) { counter.CounterValue(); }},
                    CallOutRow{"Notice", "notice CounterValue", SpinItUp}, CallOutRow{"Event", "event", SpinItDown},
                    CallOutRow{"Limit", "notice MaximumLimit", [](SpinCounter& counter) { counter.MaximumLimit(5); }},
                    CallOutRow{"New", "notice MaximumLimit", [](SpinCounter& counter) { counter.InitProperties(); }},
                    CallOutRow{"Negatives", "notice AllowNegNumbers",
                               [](SpinCounter& counter) { counter.AllowNegNumbers(true); }},
                    CallOutRow{"Handedness", "notice ControlHandedness",
                               [](SpinCounter& counter) { counter.ControlHandedness(1); }},
                    CallOutRow{"Font", "notice Font", [](SpinCounter& counter) { counter.Font({}); }},
                    CallOutRow{"Restoring", "notice AllowNegNumbers",
                               [](SpinCounter& counter) {
                                 MemoryPropertyBag bag;
                                 counter.ReadProperties(bag);
                               }},
                    CallOutRow{"RestoringTheNumber", "Value=0",
                               [](SpinCounter& counter) {
                                 MemoryPropertyBag bag;
                                 counter.ReadProperties(bag);
                               }},
                    CallOutRow{"Saving", "Value",
                               [](SpinCounter& counter) {
                                 MemoryPropertyBag bag;
                                 counter.WriteProperties(bag);
                               }}),
    RowName());

TEST_F(SpinCounterStepTest, MayGoWhileItsValueIsCreated) {
  for (const int use : {0, 1, 2}) {
    counter_ = std::make_unique<SpinCounter>(*site_);
    recorder_.Watch(counter_->Events.All());
    CounterValueObject::CreateWith([this] {
      counter_.reset();
      return std::make_shared<companion::CounterValue>();
    });
    if (use == 0) {
      EXPECT_EQ(counter_->CounterValue(), 0);
    }
    if (use == 1) counter_->CounterValue(5);
    if (use == 2) Spin().SpinUp();
    EXPECT_EQ(counter_, nullptr);
    EXPECT_EQ(recorder_.Take(), Texts{});
  }
}

TEST_F(SpinCounterStepTest, TheSecondReadOfTheNumberMayEndItToo) {
  LogTheValue();
  int reads = 0;
  onUse_ = [&](const std::string& use) {
    if (use == "Value" && ++reads == 2) Destroy(true);
  };
  counter_->CounterValue(5);
  EXPECT_EQ(recorder_.Take(), (Texts{"Value=5", "Value", "notice CounterValue", "Value"}));
}

}  // namespace
}  // namespace tactix::tests
