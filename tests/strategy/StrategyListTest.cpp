#include "tactix/strategy/StrategyList.h"

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

class StrategyListTest : public StrategyListFixture {};

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

TEST_F(StrategyListTest, WritesTheNumberBeforeItAsks) {
  Texts seen;
  catalogue_->Range.HighestPlayingStrategy = 100;
  catalogue_->OnCall = [&](const std::string& call) {
    if (call != "Range") seen.push_back(StrategyListData::Buffer().Text().substr(0, 4));
  };
  list_->LoadStrategiesFromIniFile();
  ASSERT_EQ(seen.size(), 204U);
  EXPECT_EQ(seen[0], "-01 ");
  EXPECT_EQ(seen[2], "00  ");
  EXPECT_EQ(seen[22], "10  ");
  EXPECT_EQ(seen[202], "100 ");
  EXPECT_EQ(seen[203], "    ") << "the empty answer";
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

// The host's collection.

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
  const std::weak_ptr<FakeCollection> alive = first;
  ObjectRef hosts;
  first->OnCount = [&] {
    hosts = std::make_shared<FakeCollection>(4);
    list_->UseThisStrategyList(hosts);
    EXPECT_FALSE(alive.expired()) << "as long as it runs";
  };
  hosts = std::move(first);
  list_->UseThisStrategyList(hosts);
  EXPECT_EQ(list_->StrategyCount(), 3);
  EXPECT_TRUE(alive.expired());
}

}  // namespace
}  // namespace tactix::tests
