#include "tactix/platform/SavedProperties.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/NotingBag.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

class SavedPropertiesTest : public testing::Test {
 protected:
  /// Reads "A" and "B", the second with a default that a function gives.
  void ReadTwo(OnFailure onFailure) {
    SavedProperties saved(*control_, bag_, onFailure);
    stillThere_.push_back(saved.Read("A", 1, [this](const Variant& value) { Take(value); }));
    stillThere_.push_back(saved.Read(
        "B", [this] { return Get(2); }, [this](const Variant& value) { Take(value); }));
  }
  /// Writes "A" with a default and "B" without one.
  void WriteTwo(OnFailure onFailure) {
    SavedProperties saved(*control_, bag_, onFailure);
    stillThere_.push_back(saved.Write(
        "A", [this] { return Get(3); }, [this] { return Get(1); }));
    stillThere_.push_back(saved.Write("B", [this] { return Get(4); }));
  }
  std::int32_t Get(std::int32_t value) {
    bag_.Log.push_back("get " + std::to_string(value));
    if (const auto onUse = onUse_) onUse();
    return value;
  }
  void Take(const Variant& value) {
    bag_.Log.push_back("take " + value.ToText());
    if (const auto onUse = onUse_) onUse();
  }

  HeadlessSite site_;
  std::unique_ptr<Control> control_ = std::make_unique<Control>(site_);
  NotingBag bag_;
  std::vector<bool> stillThere_;
  std::function<void()> onUse_;
};

TEST_F(SavedPropertiesTest, ReadsOneAfterTheOther) {
  bag_.Stored.Write("B", 20);
  ReadTwo(OnFailure::Report);
  EXPECT_EQ(bag_.Log, (Log{"read A=1", "take 1", "get 2", "read B=2", "take 20"}));
  EXPECT_EQ(stillThere_, (std::vector<bool>{true, true}));
}

TEST_F(SavedPropertiesTest, WritesOneAfterTheOther) {
  WriteTwo(OnFailure::Report);
  EXPECT_EQ(bag_.Log, (Log{"get 3", "get 1", "write A=1", "get 4", "write B="}));
  EXPECT_EQ(bag_.Stored.Read("A"), 3);
  EXPECT_EQ(bag_.Stored.Read("B"), 4);
  EXPECT_EQ(stillThere_, (std::vector<bool>{true, true}));
}

TEST_F(SavedPropertiesTest, APropertyThatFailsIsPassedOverOrReported) {
  bag_.Failing = "A";
  ReadTwo(OnFailure::PassOver);
  EXPECT_EQ(bag_.Log, (Log{"read A=1", "get 2", "read B=2", "take 2"}));
  bag_.Log.clear();
  WriteTwo(OnFailure::PassOver);
  EXPECT_EQ(bag_.Log, (Log{"get 3", "get 1", "write A=1", "get 4", "write B="}));
  bag_.Log.clear();
  EXPECT_EQ(ErrorCodeOf([&] { ReadTwo(OnFailure::Report); }), 1234);
  EXPECT_EQ(ErrorCodeOf([&] { WriteTwo(OnFailure::Report); }), 1234);
  EXPECT_EQ(bag_.Log, (Log{"read A=1", "get 3", "get 1", "write A=1"}));
}

TEST_F(SavedPropertiesTest, WhatTakesOrGivesAValueMayFailToo) {
  onUse_ = [] { throw Error(5); };
  ReadTwo(OnFailure::PassOver);
  WriteTwo(OnFailure::PassOver);
  EXPECT_EQ(bag_.Log, (Log{"read A=1", "take 1", "get 2", "get 3", "get 4"}));
  onUse_ = [] { throw 13; };
  EXPECT_THROW(ReadTwo(OnFailure::PassOver), int);
}

TEST_F(SavedPropertiesTest, NothingRunsOnceTheControlIsGone) {
  onUse_ = [this] { control_.reset(); };
  ReadTwo(OnFailure::Report);
  EXPECT_EQ(bag_.Log, (Log{"read A=1", "take 1"}));
  EXPECT_EQ(stillThere_, (std::vector<bool>{false, false}));
  bag_.Log.clear();
  control_ = std::make_unique<Control>(site_);
  WriteTwo(OnFailure::Report);
  EXPECT_EQ(bag_.Log, Log{"get 3"});
  EXPECT_EQ(stillThere_, (std::vector<bool>{false, false, false, false}));
}

TEST_F(SavedPropertiesTest, AValueIsNotTakenByAControlThatItsReadHasDestroyed) {
  class DestroyingBag final : public PropertyBag {
   public:
    explicit DestroyingBag(std::unique_ptr<Control>& control) : control_(control) {}
    Variant Read(std::string_view, const Variant& defaultValue) override {
      control_.reset();
      return defaultValue;
    }
    void Write(std::string_view, const Variant&) override {}
    void Write(std::string_view, const Variant&, const Variant&) override {}

   private:
    std::unique_ptr<Control>& control_;
  } bag(control_);
  SavedProperties saved(*control_, bag);
  EXPECT_FALSE(saved.Read("A", 1, [](const Variant&) { FAIL() << "there is nobody to take it"; }));
}

}  // namespace
}  // namespace tactix::tests
