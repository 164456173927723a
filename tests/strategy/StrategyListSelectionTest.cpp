// Selecting rows from code, and what is reported of it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/platform/ErrorCode.h"
#include "tests/strategy/StrategyListFixture.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class FilledStrategyListTest : public StrategyListFixture {
 protected:
  FilledStrategyListTest() {
    catalogue_->Describe(60);
    catalogue_->Playing[4] = "note,Strategy 4,False False";
    catalogue_->Playing[5] = "note,Strategy 5,False False";
    list_->LoadStrategiesFromIniFile();
  }

  static constexpr std::int32_t Count = 62;
};

struct SelectionRow {
  const char* name;
  std::int16_t strategy;
  std::int16_t reads;
  Texts events;
  int code = 0;
  int beeps = 0;
};

class StrategyListSelectionTest : public FilledStrategyListTest, public testing::WithParamInterface<SelectionRow> {};

TEST_P(StrategyListSelectionTest, Selects) {
  const SelectionRow& row = GetParam();
  list_->ListIndex(2);
  recorder_.Forget();
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(row.strategy); }), row.code);
  EXPECT_EQ(recorder_.Take(), row.events);
  EXPECT_EQ(list_->ListIndex(), row.reads);
  EXPECT_EQ(list_->SelectThisStrategy(), row.reads);
  EXPECT_EQ(site_.Beeps(), row.beeps);
}

TEST_P(StrategyListSelectionTest, SelectsThisStrategy) {
  const SelectionRow& row = GetParam();
  list_->SelectThisStrategy(2);
  recorder_.Forget();
  const bool isTooHigh = row.strategy > Count;
  EXPECT_EQ(ErrorCodeOf([&] { list_->SelectThisStrategy(row.strategy); }), isTooHigh ? 0 : row.code);
  EXPECT_EQ(recorder_.Take(), row.events);
  EXPECT_EQ(list_->SelectThisStrategy(), row.reads);
  EXPECT_EQ(site_.Beeps(), row.beeps);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrategyListSelectionTest,
    testing::Values(SelectionRow{"TheSameAgain", 2, 2, {"StrategySelectionChanged#1(2)"}},
                    SelectionRow{"Another", 3, 3, {"StrategySelectionChanged#1(3)"}},
                    SelectionRow{"EmptySeat", -1, -1, {"StrategySelectionChanged#1(-1)"}},
                    SelectionRow{"None", -2, -2, {}}, SelectionRow{"BelowNone", -3, 2, {}, 380},
                    SelectionRow{"FarBelow", -32768, 2, {}, 380}, SelectionRow{"Refused", 4, 2, {}, 0, 1},
                    SelectionRow{"LastReported", 54, 54, {"StrategySelectionChanged#1(54)"}},
                    SelectionRow{"FirstNotReported", 55, 55, {}}, SelectionRow{"LastRow", 60, 60, {}},
                    SelectionRow{"PastTheLastRow", 61, 2, {}, 380}, SelectionRow{"AsManyAsRows", 62, 2, {}, 380},
                    SelectionRow{"MoreThanRows", 63, 2, {}, 380}, SelectionRow{"Highest", 32767, 2, {}, 380}),
    RowName());

TEST_F(FilledStrategyListTest, ARowPastTheReportedIsNotTheLastGoodOne) {
  list_->ListIndex(3);
  list_->ListIndex(58);
  EXPECT_EQ(list_->LastGoodListIndex(), 4);
  list_->ListIndex(4);
  EXPECT_EQ(list_->ListIndex(), 3);
}

TEST_F(FilledStrategyListTest, AnUnusableRowPastTheReportedIsNotRefused) {
  catalogue_->Playing[58] = "";
  list_->InputPlayingStrategyDescriptions();
  list_->ListIndex(58);
  EXPECT_EQ(list_->ListIndex(), 58);
  EXPECT_EQ(site_.Beeps(), 0);
}

TEST_F(FilledStrategyListTest, TheFirstRefusalGoesBackToTheFirstRow) {
  list_->ListIndex(4);
  EXPECT_EQ(list_->ListIndex(), -1);
  EXPECT_EQ(list_->Text(), "Empty Seat");
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(FilledStrategyListTest, GoesBackToARowThatHasBecomeUnusable) {
  list_->ListIndex(3);
  catalogue_->Playing[3] = "";
  list_->InputPlayingStrategyDescriptions();
  recorder_.Forget();
  list_->ListIndex(4);
  EXPECT_EQ(list_->ListIndex(), 3);
  EXPECT_EQ(list_->Text(), "Not Present");
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(recorder_.Take(), Texts{});
  // The next refusal is one again.
  list_->ListIndex(5);
  EXPECT_EQ(list_->ListIndex(), 3);
  EXPECT_EQ(site_.Beeps(), 2);
}

TEST_F(FilledStrategyListTest, OnlyTheExactTextIsRefused) {
  for (const char* text : {"not present", "Not Present ", "Not"}) {
    list_->AddItem(text, 3);
    list_->ListIndex(2);
    EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(2)"}) << text;
  }
  list_->AddItem("Not Present", 3);
  list_->ListIndex(2);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(FilledStrategyListTest, WhatAHandlerWritesIsIgnored) {
  list_->Events.StrategySelectionChanged.Connect([](std::int32_t& strategy) { strategy = 9; });
  list_->ListIndex(3);
  EXPECT_EQ(list_->ListIndex(), 3);
  EXPECT_EQ(list_->LastGoodListIndex(), 4);
}

TEST_F(FilledStrategyListTest, TheRowIsGoodBeforeItIsReported) {
  list_->Events.StrategySelectionChanged.Connect(
      [this](std::int32_t&) { recorder_.Note("last good " + std::to_string(list_->LastGoodListIndex())); });
  list_->ListIndex(3);
  EXPECT_EQ(recorder_.Take(), (Texts{"StrategySelectionChanged#1(3)", "last good 4"}));
}

TEST_F(FilledStrategyListTest, AHandlerMaySelectAgain) {
  list_->Events.StrategySelectionChanged.Connect([this](std::int32_t& strategy) {
    if (strategy == 3) list_->SelectThisStrategy(4);
    if (strategy == 6) list_->SelectThisStrategy(7);
  });
  list_->ListIndex(3);
  EXPECT_EQ(list_->ListIndex(), 3) << "the refused row went back to the one just accepted";
  list_->ListIndex(6);
  EXPECT_EQ(recorder_.Take(),
            (Texts{"StrategySelectionChanged#1(3)", "StrategySelectionChanged#1(6)", "StrategySelectionChanged#1(7)"}));
  EXPECT_EQ(list_->ListIndex(), 7);
  EXPECT_EQ(site_.Beeps(), 1);
}

TEST_F(FilledStrategyListTest, ATextThatIsNotTheRowsDeselectsSilently) {
  list_->ListIndex(3);
  recorder_.Forget();
  list_->Text("Strategy 3");
  EXPECT_EQ(list_->ListIndex(), 3);
  list_->Text("Strategy 2");
  EXPECT_EQ(list_->ListIndex(), -2);
  list_->Text("Not Present");
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(site_.Beeps(), 0);
}

class StrategyListRowTest : public StrategyListFixture {};

TEST_F(StrategyListRowTest, ARowNumberBeyondSixteenBitsFails) {
  for (int i = 0; i < 32770; ++i) list_->AddItem("row");
  list_->ListIndex(32767);
  EXPECT_EQ(list_->ListIndex(), 32767);
  Box().ListIndex(32769);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(); }), 6);
}

}  // namespace
}  // namespace tactix::tests
