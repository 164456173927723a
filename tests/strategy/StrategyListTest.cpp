#include "tactix/strategy/StrategyList.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
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

class StrategyListTest : public testing::Test {
 protected:
  StrategyListTest() { recorder_.Watch(list_->Events.All()); }

  Texts Rows() const {
    Texts rows;
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) rows.push_back(Box().List(row));
    return rows;
  }
  ListBox& Box() const { return list_->Children.StrategyListBox; }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<StrategyList> list_ = std::make_unique<StrategyList>(site_);
  EventRecorder recorder_;
};

TEST_F(StrategyListTest, StartsEmptyWithItsDesignText) {
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_EQ(list_->Font().Name, "Comic Sans MS");
  EXPECT_EQ(list_->BackColor(), static_cast<Color>(0x80000005));
  EXPECT_EQ(list_->ForeColor(), static_cast<Color>(0x80000008));
  EXPECT_TRUE(list_->Enabled());
  EXPECT_TRUE(list_->Visible());
  EXPECT_EQ(list_->ToolTipText(), "");
  EXPECT_EQ(list_->ControlType(), TypeOfStrategyControl::IsNotYetAssigned);
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(list_->SelectThisStrategy(), -2);
  EXPECT_EQ(list_->Style(), 0);
  EXPECT_EQ(list_->StrategyCount(), 0);
  EXPECT_EQ(list_->CurrentStrategy(), 0);
  EXPECT_EQ(list_->LastGoodListIndex(), 0);
  EXPECT_EQ(Rows(), Texts{});
  EXPECT_EQ(Box().Name(), "StrategyListBox");
}

TEST_F(StrategyListTest, NumbersAndNamesItsEvent) {
  EXPECT_EQ(list_->Events.StrategySelectionChanged.Number(), 1);
  EXPECT_EQ(list_->Events.StrategySelectionChanged.Name(), "StrategySelectionChanged");
}

// Filling.

TEST_F(StrategyListTest, FillsOneRowForEachStrategyNumber) {
  catalogue_->Describe(4);
  catalogue_->Playing[1] = "";
  catalogue_->Playing[3] = "note,Strategy 3,False False";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0", "Not Present", "Strategy 2", "Not Present", "Strategy 4"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(list_->CurrentStrategy(), 4);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyListTest, AsksForEachDescriptionTwice) {
  catalogue_->Range.HighestPlayingStrategy = 1;
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(catalogue_->Log,
            (Texts{"Range", "Playing -1", "Playing -1", "Playing 0", "Playing 0", "Playing 1", "Playing 1"}));
}

TEST_F(StrategyListTest, OnlyTheSecondAnswerMakesASlotEmpty) {
  catalogue_->Describe(1);
  catalogue_->PlayingSecond[0] = "";
  catalogue_->Playing[1] = "";
  catalogue_->PlayingSecond[1] = "note,Second answer,False True";
  list_->LoadStrategiesFromIniFile();
  // The row text is taken from the first answer, which is in the buffer: an empty one has no comma and so no row.
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Not Present"}));
}

TEST_F(StrategyListTest, WithoutARangeVisitsTheSeatAndTheFirstStrategy) {
  catalogue_->Describe(4);
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0"}));
  EXPECT_EQ(list_->CurrentStrategy(), 0);
}

TEST_F(StrategyListTest, UsesTheSecondFieldOfTheRange) {
  catalogue_->Describe(2);
  catalogue_->Range.HighestBettingStrategy = 9;
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows().size(), 4U);
}

struct RangeRow {
  const char* name;
  std::int16_t highest;
  std::size_t rows;
  std::int16_t current;
};

class StrategyListRangeTest : public StrategyListTest, public testing::WithParamInterface<RangeRow> {};

TEST_P(StrategyListRangeTest, VisitsUpToTheHighest) {
  catalogue_->Range.HighestPlayingStrategy = GetParam().highest;
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows().size(), GetParam().rows);
  EXPECT_EQ(list_->CurrentStrategy(), GetParam().current);
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyListRangeTest,
                         testing::Values(RangeRow{"BelowTheSeat", -2, 0, 0}, RangeRow{"TheSeat", -1, 1, -1},
                                         RangeRow{"TheFirst", 0, 2, 0}, RangeRow{"PastTheReported", 60, 62, 60},
                                         RangeRow{"TheLast", 32767, 32769, 32767}),
                         RowName());

TEST_F(StrategyListTest, AFillStartsOver) {
  catalogue_->Describe(2);
  list_->LoadStrategiesFromIniFile();
  list_->SelectThisStrategy(1);
  recorder_.Forget();
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows().size(), 4U);
  EXPECT_EQ(list_->ListIndex(), -2);
  EXPECT_EQ(list_->LastGoodListIndex(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyListTest, ADescriptionWithoutACommaMovesLaterRowsUp) {
  catalogue_->Describe(3);
  catalogue_->Playing[1] = "no comma anywhere";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0", "Strategy 2", "Strategy 3"}));
  list_->SelectThisStrategy(1);
  EXPECT_EQ(list_->Text(), "Strategy 2");
}

TEST_F(StrategyListTest, ThePresenceIsClosedByTheBuffersPadding) {
  catalogue_->Playing[-1] = "note,Seat,False True";
  catalogue_->Playing[0] = "xy~o,Lk}sm,True True";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Not Present", "Basic"}));
}

TEST_F(StrategyListTest, ADescriptionAsWideAsTheBufferIsNotClosed) {
  const std::string head = "note,Wide,False True";
  catalogue_->Playing[0] = std::string(DescriptionBuffer::Width - head.size(), 'x') + head;
  EXPECT_EQ(ErrorCodeOf([&] { list_->InputPlayingStrategyDescriptions(); }), 5);
  catalogue_->Playing[0] = catalogue_->Playing[0].substr(1);
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Wide"}));
}

TEST_F(StrategyListTest, ACatalogueThatWritesToTheNumberChangesNothing) {
  catalogue_->Describe(2);
  catalogue_->WriteBack = [](std::int16_t& number) { number = 77; };
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0", "Strategy 1", "Strategy 2"}));
  EXPECT_EQ(list_->CurrentStrategy(), 2);
}

TEST_F(StrategyListTest, AFlagThatIsNoneEndsTheFill) {
  catalogue_->Describe(3);
  catalogue_->Playing[1] = "note,Strategy 1,False maybe";
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 13);
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0"}));
  EXPECT_EQ(list_->CurrentStrategy(), 1);
}

TEST_F(StrategyListTest, TheTextIsResetOnlyByACompleteFill) {
  list_->Text("mine");
  catalogue_->Playing[0] = "note,Strategy 0,maybe True";
  EXPECT_EQ(ErrorCodeOf([&] { list_->InputPlayingStrategyDescriptions(); }), 13);
  EXPECT_EQ(list_->Text(), "mine");
  catalogue_->Playing[0] = "";
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(list_->Text(), "Select a Strategy");
}

TEST_F(StrategyListTest, AFailureOfTheCatalogueEndsTheFill) {
  catalogue_->Describe(3);
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Playing 2") throw Error(1234);
  };
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 1234);
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0", "Strategy 1"}));
}

TEST_F(StrategyListTest, AFailingRangeLeavesTheOldOne) {
  catalogue_->Describe(3);
  list_->LoadStrategiesFromIniFile();
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Range") throw Error(1234);
  };
  catalogue_->Range.HighestPlayingStrategy = 1;
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 1234);
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows().size(), 5U);
}

TEST_F(StrategyListTest, FailsWithoutACatalogue) {
  StrategyListData::UseCatalogue(nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { list_->LoadStrategiesFromIniFile(); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { list_->InputPlayingStrategyDescriptions(); }), 91);
}

TEST_F(StrategyListTest, ACatalogueMayDestroyTheListInTheMiddleOfAFill) {
  for (const char* when : {"Range", "Playing -1", "Playing 1"}) {
    list_ = std::make_unique<StrategyList>(site_);
    catalogue_->Describe(3);
    catalogue_->Log.clear();
    catalogue_->OnCall = [&](const std::string& call) {
      if (call == when) list_.reset();
    };
    list_->LoadStrategiesFromIniFile();
    EXPECT_EQ(list_, nullptr);
    EXPECT_NE(catalogue_->Log.back(), "Playing 2") << when;
  }
}

// The host's collection.

TEST_F(StrategyListTest, StoresTheCountOfTheCollection) {
  const auto collection = std::make_shared<FakeCollection>("12");
  list_->UseThisStrategyList(collection);
  EXPECT_EQ(list_->StrategyCount(), 12);
  EXPECT_EQ(collection.use_count(), 2);
  list_->Terminated();
  EXPECT_EQ(collection.use_count(), 1);
  EXPECT_EQ(list_->StrategyCount(), 12);
}

TEST_F(StrategyListTest, TheCollectionGivesNoRows) {
  catalogue_->Describe(1);
  list_->UseThisStrategyList(std::make_shared<FakeCollection>(40));
  EXPECT_EQ(Rows(), Texts{});
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows().size(), 3U);
}

struct CountRow {
  const char* name;
  Variant count;
  int code;
};

class StrategyListCountTest : public StrategyListTest, public testing::WithParamInterface<CountRow> {};

TEST_P(StrategyListCountTest, FailsFor) {
  list_->UseThisStrategyList(std::make_shared<FakeCollection>(7));
  const auto collection = std::make_shared<FakeCollection>(GetParam().count);
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(collection); }), GetParam().code);
  EXPECT_EQ(list_->StrategyCount(), 7);
  EXPECT_EQ(collection.use_count(), 2) << "it is kept before its count is read";
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyListCountTest,
                         testing::Values(CountRow{"TooLarge", 32768, 6}, CountRow{"Text", "many", 13},
                                         CountRow{"Null", Variant::Null(), 94}),
                         RowName());

TEST_F(StrategyListTest, ACollectionWithoutACountFails) {
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(nullptr); }), 91);
  class Bare final : public Object {};
  EXPECT_EQ(ErrorCodeOf([&] { list_->UseThisStrategyList(std::make_shared<Bare>()); }), 438);
}

TEST_F(StrategyListTest, ACollectionMayDestroyTheListWhenItIsCounted) {
  auto collection = std::make_shared<FakeCollection>(3);
  collection->OnCount = [&] { list_.reset(); };
  list_->UseThisStrategyList(collection);
  EXPECT_EQ(list_, nullptr);
  EXPECT_EQ(collection.use_count(), 1);
}

TEST_F(StrategyListTest, ACollectionMayBeReplacedWhileItIsCounted) {
  auto first = std::make_shared<FakeCollection>(3);
  first->OnCount = [&] { list_->UseThisStrategyList(std::make_shared<FakeCollection>(4)); };
  list_->UseThisStrategyList(std::move(first));
  EXPECT_EQ(list_->StrategyCount(), 3);
}

// Selecting from code.

class FilledStrategyListTest : public StrategyListTest {
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

TEST_F(FilledStrategyListTest, ALastGoodRowThatIsGoneFailsAfterTheBeep) {
  list_->ListIndex(40);
  catalogue_->Range.HighestPlayingStrategy = 5;
  list_->LoadStrategiesFromIniFile();
  recorder_.Forget();
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(4); }), 380);
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_EQ(list_->ListIndex(), 4);
  EXPECT_EQ(recorder_.Take(), Texts{});
  // Refusing goes on as before.
  list_->ListIndex(3);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(3)"});
  list_->ListIndex(4);
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
  list_->Events.StrategySelectionChanged.Connect([this](std::int32_t&) {
    recorder_.Note("last good " + std::to_string(list_->LastGoodListIndex()));
  });
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
  EXPECT_EQ(recorder_.Take(), (Texts{"StrategySelectionChanged#1(3)", "StrategySelectionChanged#1(6)",
                                     "StrategySelectionChanged#1(7)"}));
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

TEST_F(StrategyListTest, AddsRowsOfTheHosts) {
  list_->AddItem("a");
  list_->AddItem("c");
  list_->AddItem("b", 1);
  EXPECT_EQ(Rows(), (Texts{"a", "b", "c"}));
  EXPECT_EQ(ErrorCodeOf([&] { list_->AddItem("d", 4); }), 5);
  EXPECT_EQ(ErrorCodeOf([&] { list_->AddItem("d", -1); }), 5);
}

TEST_F(StrategyListTest, ARowNumberBeyondSixteenBitsFails) {
  for (int i = 0; i < 32770; ++i) list_->AddItem("row");
  list_->ListIndex(32767);
  EXPECT_EQ(list_->ListIndex(), 32767);
  Box().ListIndex(32769);
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(); }), 6);
}

// Properties.

struct NoticeRow {
  const char* name;
  void (*write)(StrategyList&);
  Texts notices;
};

class StrategyListNoticeTest : public StrategyListTest, public testing::WithParamInterface<NoticeRow> {};

TEST_P(StrategyListNoticeTest, Notifies) {
  // A second write of the same value is announced too.
  for (int time = 0; time < 2; ++time) {
    site_.ForgetRecords();
    GetParam().write(*list_);
    EXPECT_EQ(site_.Changes(), GetParam().notices);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, StrategyListNoticeTest,
    testing::Values(NoticeRow{"BackColor", [](StrategyList& list) { list.BackColor(255); }, {"BackColor"}},
                    NoticeRow{"ForeColor", [](StrategyList& list) { list.ForeColor(255); }, {"ForeColor"}},
                    NoticeRow{"Enabled", [](StrategyList& list) { list.Enabled(false); }, {"Enabled"}},
                    NoticeRow{"Font", [](StrategyList& list) { list.Font({"Serif", 9}); }, {"Font"}},
                    NoticeRow{"Text", [](StrategyList& list) { list.Text("x"); }, {"Text"}},
                    NoticeRow{"ToolTipText", [](StrategyList& list) { list.ToolTipText("x"); }, {"ToolTipText"}},
                    NoticeRow{"DefaultContent", [](StrategyList& list) { list.DefaultContent("x"); }, {"DefaultContent"}},
                    NoticeRow{"Visible", [](StrategyList& list) { list.Visible(false); }, {}},
                    NoticeRow{"ControlType", [](StrategyList& list) { list.ControlType(2); }, {}},
                    NoticeRow{"ListIndex", [](StrategyList& list) { list.ListIndex(-2); }, {}}),
    RowName());

TEST_F(StrategyListTest, ItsPropertiesAreTheBoxes) {
  list_->BackColor(0x123456);
  list_->ForeColor(0x654321);
  list_->Enabled(false);
  list_->Font({"Serif", 9});
  list_->ToolTipText("tip");
  list_->Visible(false);
  list_->DefaultContent("content");
  EXPECT_EQ(Box().BackColor(), 0x123456);
  EXPECT_EQ(Box().ForeColor(), 0x654321);
  EXPECT_FALSE(Box().Enabled());
  EXPECT_EQ(Box().Font().Name, "Serif");
  EXPECT_EQ(Box().ToolTipText(), "tip");
  EXPECT_FALSE(Box().Visible());
  EXPECT_TRUE(list_->Extender().Visible()) << "the control itself stays";
  EXPECT_TRUE(list_->Extender().Enabled());
  EXPECT_EQ(Box().Text(), "content");
  EXPECT_EQ(list_->Text(), "content");
  list_->ControlType(99);
  EXPECT_EQ(list_->ControlType(), 99);
}

/// Notes what a control reads and writes, and fails where a test says so.
class LoggingBag final : public PropertyBag {
 public:
  Texts log;
  std::string failing;
  MemoryPropertyBag stored;

  Variant Read(std::string_view name, const Variant& defaultValue) override {
    Note("read ", name);
    return stored.Read(name, defaultValue);
  }
  void Write(std::string_view name, const Variant& value) override {
    Note("write ", name);
    stored.Write(name, value);
  }
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override {
    Note("write ", name);
    defaults.push_back(std::string(name) + "=" + (defaultValue.Type() == VariantType::Font ? "font" : defaultValue.ToText()));
    stored.Write(name, value, defaultValue);
  }
  Texts defaults;

 private:
  void Note(const char* what, std::string_view name) {
    log.push_back(what + std::string(name));
    if (name == failing) throw Error(1234);
  }
};

TEST_F(StrategyListTest, ReadsAndWritesInOrder) {
  LoggingBag bag;
  list_->ReadProperties(bag);
  EXPECT_EQ(bag.log, (Texts{"read Enabled", "read BackColor", "read ForeColor", "read Text", "read ToolTipText",
                            "read Font"}));
  bag.log.clear();
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.log, (Texts{"write Enabled", "write BackColor", "write ForeColor", "write Text", "write ToolTipText",
                            "write DefaultContent", "write Font"}));
  EXPECT_EQ(bag.defaults, (Texts{"Enabled=True", "BackColor=-2147483643", "ForeColor=-2147483640", "Text=",
                                 "ToolTipText=", "DefaultContent=", "Font=font"}));
}

TEST_F(StrategyListTest, ANewListReadsItsDefaults) {
  site_.AmbientFont({"Ambient", 11});
  list_->Text("before");
  list_->BackColor(1);
  list_->ForeColor(2);
  list_->Enabled(false);
  list_->ToolTipText("tip");
  MemoryPropertyBag empty;
  list_->ReadProperties(empty);
  EXPECT_TRUE(list_->Enabled());
  EXPECT_EQ(list_->BackColor(), WindowColor);
  EXPECT_EQ(list_->ForeColor(), WindowTextColor);
  EXPECT_EQ(list_->ToolTipText(), "");
  EXPECT_EQ(list_->Font(), (Font{"Ambient", 11}));
  EXPECT_EQ(list_->Text(), "before") << "an empty stored text leaves the text that is there";
}

TEST_F(StrategyListTest, AnEmptyStoredTextLeavesTheDesignText) {
  MemoryPropertyBag bag;
  bag.Write("Text", "");
  list_->ReadProperties(bag);
  EXPECT_EQ(list_->Text(), "Select a Strategy");
}

TEST_F(StrategyListTest, TheDefaultContentIsWrittenAndNotRead) {
  list_->DefaultContent("content");
  MemoryPropertyBag bag;
  list_->WriteProperties(bag);
  EXPECT_EQ(bag.Read("DefaultContent"), Variant("content"));
  bag.Remove("Text");
  StrategyList other(site_);
  other.ReadProperties(bag);
  EXPECT_EQ(other.DefaultContent(), "Select a Strategy");
}

TEST_F(StrategyListTest, EachFailingBagEntryIsSkippedAlone) {
  const Texts names = {"Enabled", "BackColor", "ForeColor", "Text", "ToolTipText", "Font"};
  for (const std::string& failing : names) {
    for (const bool failsToConvert : {false, true}) {
      LoggingBag bag;
      bag.stored.Write("Enabled", false);
      bag.stored.Write("BackColor", 11);
      bag.stored.Write("ForeColor", 12);
      bag.stored.Write("Text", "text");
      bag.stored.Write("ToolTipText", "tip");
      bag.stored.Write("Font", Font{"Stored", 5});
      if (failsToConvert) {
        bag.stored.Write(failing, Variant::Null());
      } else {
        bag.failing = failing;
      }
      StrategyList list(site_);
      list.ReadProperties(bag);
      EXPECT_EQ(list.Enabled(), failing == "Enabled") << failing;
      EXPECT_EQ(list.BackColor(), failing == "BackColor" ? WindowColor : 11) << failing;
      EXPECT_EQ(list.ForeColor(), failing == "ForeColor" ? WindowTextColor : 12) << failing;
      EXPECT_EQ(list.Text(), failing == "Text" ? "Select a Strategy" : "text") << failing;
      EXPECT_EQ(list.ToolTipText(), failing == "ToolTipText" ? "" : "tip") << failing;
      EXPECT_EQ(list.Font().Name, failing == "Font" ? "Comic Sans MS" : "Stored") << failing;
      EXPECT_EQ(bag.log.size(), names.size());
    }
  }
}

TEST_F(StrategyListTest, EachEntryThatCannotBeWrittenIsSkippedAlone) {
  for (const char* failing :
       {"Enabled", "BackColor", "ForeColor", "Text", "ToolTipText", "DefaultContent", "Font"}) {
    LoggingBag bag;
    bag.failing = failing;
    list_->WriteProperties(bag);
    EXPECT_EQ(bag.log.size(), 7U) << failing;
    EXPECT_EQ(bag.defaults.size(), 6U) << failing;
  }
}

TEST_F(StrategyListTest, ReadingIsNotAnnounced) {
  MemoryPropertyBag bag;
  bag.Write("Text", "text");
  list_->ReadProperties(bag);
  EXPECT_EQ(site_.Changes(), Texts{});
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyListTest, TheBoxTakesTheControlsWidth) {
  for (const float width : {3000.0F, 10.0F, 0.0F}) {
    list_->Extender().Width(width);
    EXPECT_EQ(Box().Width(), width);
  }
}

}  // namespace
}  // namespace tactix::tests
