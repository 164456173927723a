#include "tactix/strategy/CountStrategyList.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Counts = CountStrategyPossibilities;

class CountStrategyListTest : public testing::Test {
 protected:
  CountStrategyListTest() {
    catalogue_->DescribeCounts();
    recorder_.Watch(list_->Events.All());
  }

  ListBox& Box() const { return list_->Children.StrategyListBox; }
  Texts Rows() const {
    Texts rows;
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) rows.push_back(Box().List(row));
    return rows;
  }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<CountStrategyList> list_ = std::make_unique<CountStrategyList>(site_);
  EventRecorder recorder_;
};

TEST_F(CountStrategyListTest, ShowsTheDesignedNamesUntilItsFirstFill) {
  EXPECT_EQ(Rows(), (Texts{"USTON Simple +/-",
                           "USTON Advanced +/-",
                           "USTON Advanced Point Count",
                           "USTON \"SS\"",
                           "Kelvo' A - 5 Count",
                           "Kelvo' APC",
                           "Kelvo' APC2 (Experimental)",
                           "Kelvo' SS (in Research)",
                           "Kelvo' Clump Count",
                           "Kelvo' Clump Track",
                           "HI-Opt I",
                           "HI-Opt II",
                           "Revere +/-",
                           "Revere PC",
                           "Revere APC",
                           "Patterson +/-",
                           "Anderson PC",
                           "Scoblete PC",
                           "Ultimate Count",
                           "Canfield Expert",
                           "Canfield Master",
                           "Snyder's Red-Seven",
                           "Snyder's Zen Count",
                           "Marshall's Womans Count",
                           "Omega II",
                           "Alan Wilson's Point Count",
                           "Core-Ratio Count!"}));
  EXPECT_FALSE(list_->IsFilled());
  EXPECT_EQ(list_->CurrentIndex(), 0);
  EXPECT_EQ(list_->CountStrategy(), -2);
  EXPECT_EQ(catalogue_->Log, Texts{});
}

TEST_F(CountStrategyListTest, NumbersAndNamesItsEvent) {
  EXPECT_EQ(list_->Events.StrategySelectionChanged.Number(), 1);
  EXPECT_EQ(list_->Events.StrategySelectionChanged.Name(), "StrategySelectionChanged");
}

// Filling.

TEST_F(CountStrategyListTest, FillsOneRowForEachDescribedSystem) {
  catalogue_->Counts[12] = "";
  catalogue_->Counts[13] = "note,Count 13,False False ";
  catalogue_->Counts[14] = "note,one comma";
  catalogue_->Counts[15] = "xy~o,Myx~,True True 0 0 0 0 ";
  list_->LoadStrategiesFromIniFile();
  const Texts rows = Rows();
  ASSERT_EQ(rows.size(), 27U);
  EXPECT_EQ(Texts(rows.begin(), rows.begin() + 5),
            (Texts{"Count 11", "Not Present", "Not Present", "Cont", "Count 16"}));
  EXPECT_EQ(rows.back(), "Count 38");
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_TRUE(list_->IsFilled());
  EXPECT_EQ(list_->CurrentIndex(), 38);
  EXPECT_EQ(Box().ItemData(0), 11);
  EXPECT_EQ(Box().ItemData(1), 0) << "not listed";
  EXPECT_EQ(Box().ItemData(3), 15);
  EXPECT_EQ(Box().ItemData(26), 38);
}

TEST_F(CountStrategyListTest, HandsANewStoreOverAndAsksTwiceForEach) {
  catalogue_->Counts.clear();
  catalogue_->Counts[12] = "note,Name,0 1 0 0 0 0 ";
  list_->LoadStrategiesFromIniFile();
  Texts expected = {"Range", "Store", "Count 11", "Count 12", "Count 12"};
  for (int i = 13; i <= 38; ++i) expected.push_back("Count " + std::to_string(i));
  EXPECT_EQ(catalogue_->Log, expected);
  const ObjectRef first = catalogue_->Store;
  ASSERT_TRUE(first);
  EXPECT_EQ(first.use_count(), 3) << "the list keeps it";
  list_->InputCountStrategyDescriptions();
  EXPECT_NE(catalogue_->Store, first);
  EXPECT_EQ(first.use_count(), 1);
}

TEST_F(CountStrategyListTest, KeepsARecordOfEachSystem) {
  catalogue_->Counts[20] = "*~ozyx*,Myx~,True True 1 2 3 4 ";
  list_->InputCountStrategyDescriptions();
  const CountStrategyRecord& record = list_->Record(20);
  EXPECT_EQ(record.Description, "tepon");
  EXPECT_EQ(record.Name, "Cont");
  EXPECT_TRUE(record.Enciphered);
  EXPECT_TRUE(record.Listed);
  EXPECT_EQ(record.CountSetting1, 3);
  EXPECT_EQ(list_->Record(Counts::UstonSPM).Name, "Count 11");
  EXPECT_EQ(list_->Record(38).Name, "Count 38");
  EXPECT_EQ(ErrorCodeOf([&] { return &list_->Record(10); }), 9);
  EXPECT_EQ(ErrorCodeOf([&] { return &list_->Record(39); }), 9);
}

struct CountEndRow {
  const char* name;
  std::string description;
  std::size_t rows;
};

class CountStrategyListEndTest : public CountStrategyListTest, public testing::WithParamInterface<CountEndRow> {};

TEST_P(CountStrategyListEndTest, EndsTheFillQuietly) {
  catalogue_->Counts[13] = GetParam().description;
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(Rows().size(), GetParam().rows);
  EXPECT_EQ(list_->Text(), "Select a Count Strategy");
  EXPECT_FALSE(list_->IsFilled());
  EXPECT_EQ(list_->CurrentIndex(), 13);
}

INSTANTIATE_TEST_SUITE_P(Rows, CountStrategyListEndTest,
                         testing::Values(CountEndRow{"NoComma", "no comma", 2},
                                         CountEndRow{"NoBlank", "note,Name,True", 2},
                                         CountEndRow{"ListedIsNotClosed", "note,Name,False True", 2},
                                         CountEndRow{"NoFlag", "note,Name,maybe True ", 2},
                                         CountEndRow{"TooFewNumbers", "note,Name,False True 1 2 3 ", 3},
                                         CountEndRow{"NumberTooLarge", "note,Name,False True 1 2 3 40000 ", 3},
                                         CountEndRow{"AFieldAfterTheNumbers", "note,Name,False True 1 2 3 4 5 ", 3},
                                         CountEndRow{"ManyFields", "note,Name,0 1 1 2 3 4 0 0 0 0 0 0 0 ", 3}),
                         RowName());

TEST_F(CountStrategyListTest, AFillThatIsCompleteOnceStaysSo) {
  list_->InputCountStrategyDescriptions();
  catalogue_->Counts[13] = "no comma";
  list_->InputCountStrategyDescriptions();
  EXPECT_TRUE(list_->IsFilled());
  EXPECT_EQ(Rows().size(), 2U);
}

TEST_F(CountStrategyListTest, AFailureOfTheCatalogueEndsTheFillQuietly) {
  for (const char* when : {"Store", "Count 13"}) {
    catalogue_->OnCall = [when](const std::string& call) {
      if (call == when) throw Error(1234);
    };
    list_->InputCountStrategyDescriptions();
    EXPECT_EQ(Rows().size(), std::string(when) == "Store" ? 0U : 2U);
    EXPECT_FALSE(list_->IsFilled());
  }
}

// What is not set is passed over, statement by statement.

TEST_F(CountStrategyListTest, AStoreThatNobodyTakesIsPassedOver) {
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Store") throw Error(Error::ObjectNotSet);
  };
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(Rows().size(), 28U);
  EXPECT_TRUE(list_->IsFilled());
}

TEST_F(CountStrategyListTest, ADescriptionThatCannotBeTestedIsParsed) {
  int seen = 0;
  catalogue_->Counts[13] = "";
  catalogue_->OnCall = [&](const std::string& call) {
    if (call == "Count 13" && ++seen == 1) throw Error(Error::ObjectNotSet);
  };
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(Rows().size(), 2U) << "it is empty, and so has no comma, which ends the fill";
  seen = 0;
  catalogue_->DescribeCounts();
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(Rows().size(), 28U);
}

TEST_F(CountStrategyListTest, ADescriptionThatCannotBeHadLeavesTheLastOne) {
  int seen = 0;
  catalogue_->OnCall = [&](const std::string& call) {
    if (call == "Count 13" && ++seen == 2) throw Error(Error::ObjectNotSet);
  };
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(Rows()[2], "Count 12");
  EXPECT_EQ(list_->Record(13).Name, "Count 12");
  EXPECT_EQ(Box().ItemData(2), 13);
  EXPECT_TRUE(list_->IsFilled());
}

TEST_F(CountStrategyListTest, WithoutACatalogueTheFillEndsAtItsFirstSystem) {
  list_->InputCountStrategyDescriptions();
  StrategyListData::UseCatalogue(nullptr);
  list_->Text("before");
  list_->InputCountStrategyDescriptions();
  EXPECT_EQ(Rows(), Texts{}) << "the text of the fill before is gone";
  EXPECT_EQ(list_->CurrentIndex(), 11);
  EXPECT_EQ(list_->Text(), "before");
}

// Choosing a system.

TEST_F(CountStrategyListTest, ReportsTheRowAndTenWithTheText) {
  list_->InputCountStrategyDescriptions();
  Box().PickRow(5);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(15, Count 16)"});
  EXPECT_EQ(list_->CountStrategy(), 4);
  EXPECT_EQ(list_->ListIndex(), 4);
}

TEST_F(CountStrategyListTest, WhatAHandlerWritesIsIgnored) {
  list_->Events.StrategySelectionChanged.Connect([](std::int16_t& system, std::string& text) {
    system = 99;
    text = "written";
  });
  Box().PickRow(5);
  EXPECT_EQ(list_->ListIndex(), 4);
  EXPECT_EQ(list_->Text(), "Kelvo' APC");
  EXPECT_EQ(Box().List(5), "Kelvo' APC");
}

struct SystemRow {
  const char* name;
  std::int32_t system;
  std::int32_t reads;
};

class CountStrategyListSystemTest : public CountStrategyListTest, public testing::WithParamInterface<SystemRow> {};

TEST_P(CountStrategyListSystemTest, SelectsItsRow) {
  const std::int32_t row = GetParam().reads + 1;
  list_->CountStrategy(GetParam().system);
  EXPECT_TRUE(list_->IsFilled()) << "whatever the number";
  EXPECT_EQ(list_->CountStrategy(), GetParam().reads);
  if (row >= 0) {
    EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(" + std::to_string(row + 10) + ", Count " +
                                      std::to_string(GetParam().system) + ")"});
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(site_.Changes(), row >= 0 ? Texts{"CountStrategy"} : Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, CountStrategyListSystemTest,
                         testing::Values(SystemRow{"Lowest", 11, -1}, SystemRow{"Middle", 16, 4},
                                         SystemRow{"Highest", 38, 26}, SystemRow{"BelowTheLowest", 10, -2},
                                         SystemRow{"AboveTheHighest", 39, -2}, SystemRow{"Invalid", 0, -2},
                                         SystemRow{"Negative", -11, -2}, SystemRow{"FarAbove", 70000, -2}),
                         RowName());

TEST_F(CountStrategyListTest, ASystemThatDoesNotExistLeavesTheSelection) {
  list_->CountStrategy(Counts::KelvoAPC);
  for (const int system : {10, 39}) list_->CountStrategy(system);
  EXPECT_EQ(list_->CountStrategy(), 4);
}

TEST_F(CountStrategyListTest, FillsOnlyUntilAFillWasComplete) {
  catalogue_->Counts[13] = "no comma";
  list_->CountStrategy(11);
  list_->CountStrategy(11);
  catalogue_->DescribeCounts();
  list_->CountStrategy(11);
  catalogue_->Log.clear();
  list_->CountStrategy(12);
  EXPECT_EQ(catalogue_->Log, Texts{});
  EXPECT_EQ(list_->Text(), "Count 12");
}

TEST_F(CountStrategyListTest, ASystemWithoutARowFails) {
  catalogue_->Counts.erase(38);
  EXPECT_EQ(ErrorCodeOf([&] { list_->CountStrategy(38); }), 380);
  EXPECT_EQ(site_.Changes(), Texts{});
  StrategyListData::UseCatalogue(nullptr);
  list_ = std::make_unique<CountStrategyList>(site_);
  EXPECT_EQ(ErrorCodeOf([&] { list_->CountStrategy(11); }), 380) << "the designed rows are gone";
}

TEST_F(CountStrategyListTest, AnUnlistedSystemIsRefused) {
  catalogue_->Counts[13] = "note,Name,0 0 ";
  list_->CountStrategy(12);
  recorder_.Forget();
  list_->CountStrategy(13);
  EXPECT_EQ(list_->Text(), "Count 12");
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(CountStrategyListTest, SettingTheSystemMayDestroyTheList) {
  for (const char* when : {"Store", "Count 20", "event"}) {
    list_ = std::make_unique<CountStrategyList>(site_);
    catalogue_->OnCall = [&](const std::string& call) {
      if (call == when) list_.reset();
    };
    if (std::string(when) == "event") {
      list_->Events.StrategySelectionChanged.Connect([this](std::int16_t&, std::string&) { list_.reset(); });
    }
    list_->CountStrategy(16);
    EXPECT_EQ(list_, nullptr) << when;
  }
}

// Point values.

struct ValueRow {
  const char* name;
  std::int32_t system;
  std::int16_t card;
  int code;
};

class CountValueTest : public CountStrategyListTest, public testing::WithParamInterface<ValueRow> {};

TEST_P(CountValueTest, IsZeroOrOutOfRange) {
  list_->InputCountStrategyDescriptions();
  std::int16_t value = 0;
  const auto read = [&] { return value = list_->CountValue(GetParam().system, GetParam().card); };
  EXPECT_EQ(ErrorCodeOf(read), GetParam().code);
  EXPECT_EQ(value, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, CountValueTest,
                         testing::Values(ValueRow{"Lowest", 11, 1, 0}, ValueRow{"Highest", 38, 4, 0},
                                         ValueRow{"CardAbove", 11, 5, 9}, ValueRow{"CardBelow", 11, 0, 9},
                                         ValueRow{"CardNegative", 11, -1, 9}, ValueRow{"SystemBelow", 10, 1, 9},
                                         ValueRow{"SystemAbove", 39, 1, 9}, ValueRow{"SystemFarBelow", -32768, 1, 9}),
                         RowName());

// Saving.

TEST_F(CountStrategyListTest, TheFirstLoadFillsAndSelectsItsDefault) {
  MemoryPropertyBag empty;
  list_->ReadProperties(empty);
  EXPECT_TRUE(list_->IsFilled());
  EXPECT_EQ(list_->Text(), "Count 16");
  EXPECT_EQ(list_->CountStrategy(), 4);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(15, Count 16)"});
  EXPECT_EQ(site_.Changes(), Texts{});
}

TEST_F(CountStrategyListTest, WhatIsSavedIsNotWhatComesBack) {
  list_->CountStrategy(38);
  MemoryPropertyBag bag;
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.Read("CountStrategy"), Variant(26));
  EXPECT_EQ(bag.Read("CountStrategy").Type(), VariantType::Integer);
  bag.Remove("Text");
  CountStrategyList other(site_);
  other.ReadProperties(bag);
  EXPECT_EQ(other.Text(), "Count 26");
  EXPECT_EQ(other.CountStrategy(), 14);
}

TEST_F(CountStrategyListTest, AStoredTextThatIsNotTheRowsDeselects) {
  MemoryPropertyBag bag;
  bag.Write("CountStrategy", 20);
  bag.Write("Text", "Count 30");
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->Text(), "Count 30");
  EXPECT_EQ(list_->CountStrategy(), -2);
  bag.Write("Text", "Count 20");
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->CountStrategy(), 8);
}

TEST_F(CountStrategyListTest, ALoadGoesOnWhereTheSystemCannotBeSet) {
  MemoryPropertyBag bag;
  bag.Write("BackColor", 11);
  StrategyListData::UseCatalogue(nullptr);
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->BackColor(), 11);
  bag.Write("CountStrategy", "KelvoAPC");
  bag.Write("BackColor", 12);
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->BackColor(), 12);
}

TEST_F(CountStrategyListTest, AnEventOfALoadMayDestroyTheList) {
  list_->Events.StrategySelectionChanged.Connect([this](std::int16_t&, std::string&) { list_.reset(); });
  MemoryPropertyBag empty;
  list_->ReadProperties(empty);
  EXPECT_EQ(list_, nullptr);
}

}  // namespace
}  // namespace tactix::tests
