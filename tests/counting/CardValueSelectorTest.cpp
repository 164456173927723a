// Both selectors of a card's value.

#include "tactix/counting/CardValueSelector.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/counting/ValueLists.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/NotingBag.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

template <class C>
class CardValueSelectorTest : public testing::Test {
 protected:
  using S = Selector<C>;

  CardValueSelectorTest() {
    Make();
    site_->OnPropertyChanged([this](std::string_view name) {
      recorder_.Note("notice " + std::string(name));
      if (const auto onNotice = onNotice_) onNotice();
    });
  }
  void Make() {
    control_ = std::make_unique<C>(*site_);
    control_->InitProperties();
    recorder_.Watch(control_->Events.All());
  }

  ListBox& List() { return S::TheList(*control_); }
  const std::string& CardCaption() { return control_->Children.lblCardValue.Caption(); }
  std::int32_t Value() { return S::Value(*control_).Value(); }
  void Value(std::int32_t value) { S::Value(*control_, value); }
  void Select(std::int32_t row) {
    List().ListIndex(row);
    recorder_.Forget();
  }
  static std::string Raised(int value) { return S::EventName + ("(" + std::to_string(value) + ")"); }
  /// How a pick is heard.
  static Texts Pick(int value) { return {Raised(value), Notice()}; }
  static std::string Notice() { return std::string("notice ") + S::ValueName; }

  std::optional<HeadlessSite> site_{std::in_place};
  std::unique_ptr<C> control_;
  EventRecorder recorder_;
  std::function<void()> onNotice_;
};

using Controls = testing::Types<CountValueSelector, ClumpCardList>;
TYPED_TEST_SUITE(CardValueSelectorTest, Controls, ListName);

TYPED_TEST(CardValueSelectorTest, HasItsDesign) {
  Panel& panel = TestFixture::S::ThePanel(*this->control_);
  Frame& frame = TestFixture::S::TheFrame(*this->control_);
  EXPECT_EQ(panel.Name(), TestFixture::S::PanelName);
  EXPECT_EQ(panel.Caption(), "Point Value") << "of both controls";
  EXPECT_EQ(frame.Name(), TestFixture::S::FrameName);
  EXPECT_EQ(frame.Caption(), TestFixture::S::FrameCaption);
  EXPECT_EQ(frame.Parent(), &panel);
  EXPECT_EQ(this->List().Name(), TestFixture::S::ListName);
  EXPECT_EQ(this->List().Font().Name, "Comic Sans MS");
  EXPECT_EQ(this->List().Parent(), &frame);
  EXPECT_EQ(this->control_->Children.lblCardValue.Name(), "lblCardValue");
  EXPECT_EQ(this->control_->Children.lblCardValue.Font().Name, "MS Sans Serif");
  EXPECT_EQ(this->CardCaption(), "A");
  EXPECT_EQ(this->control_->CardValue(), 1);
  EXPECT_EQ(this->Value(), 0);
  EXPECT_EQ(this->List().ListIndex(), -1);
  EXPECT_EQ(this->recorder_.Take(), Texts{});
}

TYPED_TEST(CardValueSelectorTest, HasARowForEachValue) {
  const Texts rows = {"-10", "-9", "-8", "-7", "-6", "-5", "-4", "-3", "-2", "-1", "0",
                      "+1",  "+2", "+3", "+4", "+5", "+6", "+7", "+8", "+9", "+10"};
  ASSERT_EQ(this->List().ListCount(), 21);
  for (std::int32_t row = 0; row <= 20; ++row) {
    EXPECT_EQ(this->List().List(row), rows[static_cast<std::size_t>(row)]);
    this->List().PickRow(row);
    EXPECT_EQ(this->Value(), row - 10);
    EXPECT_EQ(this->recorder_.Take(), this->Pick(row - 10));
  }
}

TYPED_TEST(CardValueSelectorTest, EveryPickIsReportedWhoeverMakesIt) {
  for (int time = 0; time < 2; ++time) {
    this->List().PickRow(3);
    EXPECT_EQ(this->recorder_.Take(), this->Pick(-7));
    this->List().ListIndex(3);
    EXPECT_EQ(this->recorder_.Take(), this->Pick(-7));
  }
  this->List().ListIndex(-1);
  EXPECT_EQ(this->recorder_.Take(), Texts{});
  EXPECT_EQ(this->Value(), -7) << "deselecting is silent";
  this->List().Text("none of the rows");
  EXPECT_EQ(this->recorder_.Take(), this->Pick(-11));
  EXPECT_EQ(this->Value(), -11);
}

TYPED_TEST(CardValueSelectorTest, TheValueStandsWhenItIsReported) {
  Selector<TypeParam>::TheEvent(*this->control_).Connect([this](const std::int32_t&) {
    this->recorder_.Note(std::to_string(this->Value()) + " " + this->List().Text());
  });
  this->List().PickRow(20);
  EXPECT_EQ(this->recorder_.Take(), (Texts{this->Raised(10), "10 +10", this->Notice()}));
}

TYPED_TEST(CardValueSelectorTest, TheCardIsOneOfTen) {
  const struct {
    std::int32_t card;
    const char* caption;  // null: ignored
  } rows[] = {{2, "2"},
              {9, "9"},
              {1, "A"},
              {10, "T"},
              {0, nullptr},
              {11, nullptr},
              {5, "5"},
              {5, "5"},
              {-1, nullptr},
              {7, "7"},
              {2147483647, nullptr},
              {3, "3"},
              {4, "4"},
              {6, "6"},
              {8, "8"},
              {-2147483647 - 1, nullptr}};
  for (const auto& [card, caption] : rows) {
    const auto before = this->control_->CardValue();
    const std::string captionBefore = this->CardCaption();
    this->control_->CardValue(card);
    EXPECT_EQ(this->control_->CardValue(), caption ? card : before.Value());
    EXPECT_EQ(this->CardCaption(), caption ? caption : captionBefore);
    EXPECT_EQ(this->recorder_.Take(), caption ? Texts{"notice CardValue"} : Texts{}) << card;
  }
  EXPECT_EQ(this->site_->Beeps(), 0);
}

TYPED_TEST(CardValueSelectorTest, AValueOfTheHostsReportsWhatTheListShows) {
  this->Value(3);
  EXPECT_EQ(this->recorder_.Take(), this->Pick(-11)) << "once, where no row is selected";
  EXPECT_EQ(this->Value(), -11);
  EXPECT_EQ(this->List().ListIndex(), -1);
  for (const std::int32_t row : {0, 10, 13, 20}) {
    for (const std::int32_t value : {1, 3, 10}) {
      this->Select(row);
      this->Value(value);
      Texts twice = this->Pick(row - 10);
      for (const std::string& text : this->Pick(row - 10)) twice.push_back(text);
      EXPECT_EQ(this->recorder_.Take(), twice);
      EXPECT_EQ(this->Value(), row - 10);
      EXPECT_EQ(this->List().ListIndex(), row);
    }
  }
}

TYPED_TEST(CardValueSelectorTest, OnlyPositiveValuesOfTheHostsAreTaken) {
  this->Select(13);
  for (const std::int32_t value : {0, -1, -3, -10, -11, 11, 2147483647, -2147483647 - 1}) {
    this->Value(value);
    EXPECT_EQ(this->recorder_.Take(), Texts{}) << value;
    EXPECT_EQ(this->Value(), 3);
  }
}

TYPED_TEST(CardValueSelectorTest, AHandlerMayPickAnotherRow) {
  Selector<TypeParam>::TheEvent(*this->control_).Connect([this](const std::int32_t& value) {
    if (value == 3) this->List().ListIndex(5);
  });
  this->List().PickRow(13);
  EXPECT_EQ(this->recorder_.Take(), (Texts{this->Raised(3), this->Raised(-5), this->Notice(), this->Notice()}));
  EXPECT_EQ(this->Value(), -5);
}

TYPED_TEST(CardValueSelectorTest, TheListIsPutWhereTheValueIsThen) {
  this->Select(13);
  int raises = 0;
  Selector<TypeParam>::TheEvent(*this->control_).Connect([&](const std::int32_t&) {
    if (++raises == 1) this->List().ListIndex(5);
  });
  this->Value(7);
  EXPECT_EQ(this->List().ListIndex(), 5);
  EXPECT_EQ(this->Value(), -5);
  EXPECT_EQ(raises, 3);
}

TYPED_TEST(CardValueSelectorTest, WhatAHandlerWritesIsIgnored) {
  Selector<TypeParam>::TheEvent(*this->control_).Connect([](std::int32_t& value) { value = 9; });
  this->List().PickRow(13);
  EXPECT_EQ(this->Value(), 3);
  EXPECT_EQ(this->List().ListIndex(), 13);
}

TYPED_TEST(CardValueSelectorTest, ReadsAndWritesInOrder) {
  NotingBag bag;
  const std::string value = Selector<TypeParam>::ValueName;
  this->control_->ReadProperties(bag);
  EXPECT_EQ(bag.Log, (Texts{"read " + value + "=0", "read CardValue=1"}));
  bag.Log.clear();
  this->control_->WriteProperties(bag);
  EXPECT_EQ(bag.Log, (Texts{"write " + value + "=0", "write CardValue=1"}));
}

TYPED_TEST(CardValueSelectorTest, ComesBackWithItsRowAndTheCardInDigits) {
  const struct { std::int32_t row, card; } rows[] = {{0, 1}, {10, 9}, {20, 10}};
  for (const auto& [row, card] : rows) {
    this->Make();
    this->List().ListIndex(row);
    this->control_->CardValue(card);
    MemoryPropertyBag bag;
    this->control_->WriteProperties(bag);
    this->recorder_.Forget();
    this->Make();
    this->control_->ReadProperties(bag);
    EXPECT_EQ(this->List().ListIndex(), row);
    EXPECT_EQ(this->Value(), row - 10);
    EXPECT_EQ(this->control_->CardValue(), card);
    EXPECT_EQ(this->CardCaption(), std::to_string(card));
    EXPECT_EQ(this->recorder_.Take(), this->Pick(row - 10));
  }
}

TYPED_TEST(CardValueSelectorTest, NothingStoredIsTheNeutralValueAndTheAce) {
  MemoryPropertyBag empty;
  this->control_->ReadProperties(empty);
  EXPECT_EQ(this->List().ListIndex(), 10);
  EXPECT_EQ(this->CardCaption(), "1");
  EXPECT_EQ(this->recorder_.Take(), this->Pick(0));
}

TYPED_TEST(CardValueSelectorTest, TakesWhatConvertsAndKeepsTheDefaultOtherwise) {
  const struct {
    const char* name;
    Variant stored;
    std::int32_t row, card;
    bool picks;
  } rows[] = {
      {"Empty", {}, 10, 0, true},
      {"Null", Variant::Null(), -1, 1, false},
      {"Words", "three", -1, 1, false},
      {"Numeral", "3", 13, 3, true},
      {"True", true, 9, -1, true},
      {"Fraction", 2.5, 12, 2, true},
      {"Highest", 10, 20, 10, true},
      {"AboveTheRows", 11, -1, 11, false},
      {"BelowTheRows", -11, -1, -11, false},
      {"FarBelowTheRows", -12, -1, -12, false},
      {"HighestThereIs", std::int32_t{2147483647}, -1, 2147483647, false},
      {"LowestThereIs", std::int32_t{-2147483647 - 1}, -1, -2147483647 - 1, false},
      {"TooBig", 4e9, -1, 1, false},
      {"Object", Variant(ObjectRef()), -1, 1, false},
  };
  for (const auto& [name, stored, row, card, picks] : rows) {
    this->Make();
    MemoryPropertyBag bag;
    bag.Write(Selector<TypeParam>::ValueName, stored);
    bag.Write("CardValue", stored);
    this->control_->ReadProperties(bag);
    EXPECT_EQ(this->List().ListIndex(), row) << name;
    EXPECT_EQ(this->Value(), picks ? row - 10 : 0) << name;
    EXPECT_EQ(this->control_->CardValue(), card) << name;
    EXPECT_EQ(this->CardCaption(), card == 1 ? "A" : std::to_string(card)) << name;
    EXPECT_EQ(this->recorder_.Take(), picks ? this->Pick(row - 10) : Texts{}) << name;
  }
  EXPECT_TRUE(this->site_->Errors().empty());
}

TYPED_TEST(CardValueSelectorTest, EachEntryThatFailsIsSkippedAlone) {
  const std::string value = Selector<TypeParam>::ValueName;
  for (const std::string& failing : {value, std::string("CardValue")}) {
    NotingBag bag;
    bag.Stored.Write(value, -4);
    bag.Stored.Write("CardValue", 7);
    bag.Failing = failing;
    this->Make();
    this->control_->ReadProperties(bag);
    EXPECT_EQ(this->Value(), failing == value ? 0 : -4);
    EXPECT_EQ(this->CardCaption(), failing == value ? "7" : "A");
    bag.Log.clear();
    this->control_->WriteProperties(bag);
    EXPECT_EQ(bag.Log.size(), 2U);
  }
}

TYPED_TEST(CardValueSelectorTest, AHandlersErrorWhileRestoringIsAFailureToRestore) {
  Selector<TypeParam>::TheEvent(*this->control_).Connect([](const std::int32_t&) { throw Error(4711); });
  MemoryPropertyBag bag;
  bag.Write("CardValue", 7);
  this->control_->ReadProperties(bag);
  EXPECT_EQ(this->CardCaption(), "7");
}

TYPED_TEST(CardValueSelectorTest, MayGoInEveryCallOut) {
  using Act = void (*)(TypeParam&);
  const struct {
    const char* name;
    Act act;
    bool hasRow;
  } rows[] = {
      {"Pick", [](TypeParam& control) { Selector<TypeParam>::TheList(control).PickRow(3); }, false},
      {"Key",
       [](TypeParam& control) {
         Selector<TypeParam>::TheList(control).KeyDown({DownArrowKey, 0});
       },
       false},
      {"SetTheRow", [](TypeParam& control) { Selector<TypeParam>::TheList(control).ListIndex(3); }, false},
      {"SetTheValue", [](TypeParam& control) { Selector<TypeParam>::Value(control, 3); }, true},
      {"Restore",
       [](TypeParam& control) {
         MemoryPropertyBag bag;
         control.ReadProperties(bag);
       },
       false},
  };
  for (const auto& [name, act, hasRow] : rows) {
    // Where a value is set, there are two picks.
    for (int at = 0; at < (hasRow ? 4 : 2); ++at) {
      for (const bool withWindow : {false, true}) {
        this->control_.reset();
        HeadlessSite* const site = &this->site_.emplace();
        this->Make();
        if (hasRow) this->Select(3);
        int heard = 0;
        const auto hear = [&] {
          if (heard++ != at) return;
          this->control_.reset();
          if (withWindow) this->site_.reset();
        };
        Selector<TypeParam>::TheEvent(*this->control_).Connect([&](const std::int32_t&) { hear(); });
        site->OnPropertyChanged([&](std::string_view) { hear(); });
        act(*this->control_);
        EXPECT_EQ(this->control_, nullptr) << name << " " << at;
        EXPECT_EQ(heard, at + 1) << name << " " << at;
        this->recorder_.Forget();
      }
    }
  }
  this->site_.emplace();
}

TYPED_TEST(CardValueSelectorTest, FillsItsSize) {
  const auto isInside = [](const Widget& child, float width, float height) {
    return child.Left() >= 0 && child.Top() >= 0 && child.Left() + child.Width() <= width &&
           child.Top() + child.Height() <= height;
  };
  Panel& panel = TestFixture::S::ThePanel(*this->control_);
  Frame& frame = TestFixture::S::TheFrame(*this->control_);
  for (const auto& [width, height] : {std::pair{2100.0F, 900.0F}, {3000.0F, 1500.0F}}) {
    this->control_->Extender().Place(0, 0, width, height);
    EXPECT_EQ(panel.Width(), width);
    EXPECT_EQ(panel.Height(), height);
    EXPECT_TRUE(isInside(frame, width, height));
    EXPECT_TRUE(isInside(this->control_->Children.lblCardValue, frame.Width(), frame.Height()));
    EXPECT_TRUE(isInside(this->List(), frame.Width(), frame.Height()));
    EXPECT_GT(this->List().Width(), width / 2);
  }
  this->control_->Extender().Place(0, 0, 0, 0);
  EXPECT_GE(this->List().Width(), 0);
  EXPECT_GE(frame.Height(), 0);
}

}  // namespace
}  // namespace tactix::tests
