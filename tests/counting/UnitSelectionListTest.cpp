#include "tactix/counting/UnitSelectionList.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/NotingBag.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class UnitSelectionListTest : public testing::Test {
 protected:
  UnitSelectionListTest() {
    list_->InitProperties();
    recorder_.Watch(list_->Events.All());
  }
  ListBox& Box() { return list_->Children.comboBettingUnits; }
  static std::string Raised(int row) { return "UnitSizeSelected#1(" + std::to_string(row) + ")"; }

  std::optional<HeadlessSite> site_{std::in_place};
  std::unique_ptr<UnitSelectionList> list_ = std::make_unique<UnitSelectionList>(*site_);
  EventRecorder recorder_;
};

TEST_F(UnitSelectionListTest, HasItsDesign) {
  EXPECT_EQ(Box().Name(), "comboBettingUnits");
  EXPECT_EQ(Box().Text(), "UNITS");
  EXPECT_EQ(Box().ListIndex(), -1);
  EXPECT_EQ(Box().Font().Name, "Comic Sans MS");
  EXPECT_TRUE(list_->Properties().Rows().empty());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(UnitSelectionListTest, HasThirtyFiveRows) {
  const Texts rows = {" 1-Unit",  " 2-Units", " 3-Units", " 4-Units", " 5-Units", " 6-Units", " 7-Units",
                      " 8-Units", " 9-Units", "10-Units", "11-Units", "12-Units", "13-Units", "14-Units",
                      "15-Units", "16-Units", "17-Units", "18-Units", "19-Units", "20-Units", "21-Units",
                      "22-Units", "23-Units", "24-Units", "25-Units", "26-Units", "27-Units", "28-Units",
                      "29-Units", "30-Units", "31-Units", "32-Units", "33-Units", "34-Units", "35-Units"};
  Texts actual;
  for (std::int32_t row = 0; row < Box().ListCount(); ++row) actual.push_back(Box().List(row));
  EXPECT_EQ(actual, rows);
}

TEST_F(UnitSelectionListTest, ReportsTheRowAndNotTheUnits) {
  for (int row = 0; row < 35; ++row) {
    Box().PickRow(row);
    EXPECT_EQ(recorder_.Take(), Texts{Raised(row)});
    Box().ListIndex(row);
    EXPECT_EQ(recorder_.Take(), Texts{Raised(row)}) << "the same row again, from code";
  }
  EXPECT_EQ(site_->Changes(), Texts{});
}

TEST_F(UnitSelectionListTest, ReportsATextThatIsNoRowsAsNoRow) {
  Box().ListIndex(4);
  recorder_.Forget();
  Box().ListIndex(-1);
  EXPECT_EQ(recorder_.Take(), Texts{}) << "deselecting is silent";
  Box().Text("a lot");
  EXPECT_EQ(recorder_.Take(), Texts{Raised(-1)});
}

TEST_F(UnitSelectionListTest, WhatAHandlerWritesIsIgnored) {
  list_->Events.UnitSizeSelected.Connect([](std::int16_t& units) { units = 30; });
  Box().PickRow(4);
  EXPECT_EQ(Box().ListIndex(), 4);
}

TEST_F(UnitSelectionListTest, AHandlerMayPickAnotherRow) {
  list_->Events.UnitSizeSelected.Connect([this](const std::int16_t& row) {
    if (row == 4) Box().ListIndex(9);
  });
  Box().PickRow(4);
  EXPECT_EQ(recorder_.Take(), (Texts{Raised(4), Raised(9)}));
  EXPECT_EQ(Box().Text(), "10-Units");
}

TEST_F(UnitSelectionListTest, AHandlerMayDestroyIt) {
  for (const bool withWindow : {false, true}) {
    for (const bool byText : {false, true}) {
      list_.reset();
      site_.emplace();
      list_ = std::make_unique<UnitSelectionList>(*site_);
      list_->Events.UnitSizeSelected.Connect([this, withWindow](const std::int16_t&) {
        list_.reset();
        if (withWindow) site_.reset();
      });
      byText ? Box().Text("a lot") : Box().PickRow(3);
      EXPECT_EQ(list_, nullptr);
    }
  }
}

TEST_F(UnitSelectionListTest, SavesNothing) {
  NotingBag bag;
  list_->WriteProperties(bag);
  list_->ReadProperties(bag);
  EXPECT_EQ(bag.Log, Texts{});
}

TEST_F(UnitSelectionListTest, TheBoxFillsTheControl) {
  for (const float size : {900.0F, 3000.0F, 0.0F}) {
    list_->Extender().Place(15, 15, 2 * size, size);
    EXPECT_EQ(Box().Left(), 0);
    EXPECT_EQ(Box().Width(), 2 * size);
    EXPECT_EQ(Box().Height(), size);
  }
}

}  // namespace
}  // namespace tactix::tests
