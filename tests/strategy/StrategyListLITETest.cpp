#include "tactix/strategy/StrategyListLITE.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class StrategyListLITETest : public testing::Test {
 protected:
  StrategyListLITETest() { recorder_.Watch(list_->Events.All()); }

  Texts Rows() const {
    const ListBox& box = list_->Children.StrategyListBox;
    Texts rows;
    for (std::int32_t row = 0; row < box.ListCount(); ++row) rows.push_back(box.List(row));
    return rows;
  }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<StrategyListLITE> list_ = std::make_unique<StrategyListLITE>(site_);
  EventRecorder recorder_;
};

TEST_F(StrategyListLITETest, AnEmptyDescriptionAddsNoRow) {
  catalogue_->Describe(5);
  catalogue_->Playing[1] = "";
  catalogue_->Playing[3] = "note,Strategy 3,False False";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Strategy 0", "Strategy 2", "Not Present", "Strategy 4", "Strategy 5"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_EQ(list_->CurrentStrategy(), 5);
  list_->SelectThisStrategy(0);
  EXPECT_EQ(list_->Text(), "Strategy 2") << "later rows have moved up";
}

TEST_F(StrategyListLITETest, ACompleteDescriptionOfTheSeatIsAnEmptySeat) {
  catalogue_->Describe(0);
  for (const char* description : {"note,Seat,False True", "note,Seat,False False", "note,one comma"}) {
    catalogue_->Playing[-1] = description;
    list_->LoadStrategiesFromIniFile();
    EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0"})) << description;
  }
}

TEST_F(StrategyListLITETest, AsksOnceToTestAndOnceToParse) {
  catalogue_->Range.HighestPlayingStrategy = 1;
  catalogue_->Playing[0] = "note,tested,False True";
  catalogue_->PlayingSecond[0] = "note,parsed,False True";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(catalogue_->Log, (Texts{"Range", "Playing -1", "Playing 0", "Playing 0", "Playing 1"}));
  EXPECT_EQ(Rows(), Texts{"parsed"});
}

TEST_F(StrategyListLITETest, UsesTheSecondFieldOfTheRange) {
  catalogue_->Describe(2);
  catalogue_->Range.HighestBettingStrategy = 9;
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows().size(), 3U);
  EXPECT_EQ(list_->CurrentStrategy(), 2);
}

TEST_F(StrategyListLITETest, WithoutARangeVisitsTheSeatAndTheFirstStrategy) {
  catalogue_->Describe(4);
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows(), Texts{"Strategy 0"});
}

struct EndRow {
  const char* name;
  std::string description;
};

class StrategyListLITEEndTest : public StrategyListLITETest, public testing::WithParamInterface<EndRow> {};

TEST_P(StrategyListLITEEndTest, EndsTheFillQuietly) {
  catalogue_->Describe(4);
  catalogue_->Playing[2] = GetParam().description;
  list_->Text("before");
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Strategy 0", "Strategy 1"}));
  EXPECT_EQ(list_->Text(), "before");
  EXPECT_EQ(list_->CurrentStrategy(), 2);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyListLITEEndTest,
                         testing::Values(EndRow{"NoComma", "no comma anywhere"},
                                         EndRow{"ShiftedIsNoFlag", "note,Strategy 2,maybe True"},
                                         EndRow{"PresentIsNoFlag", "note,Strategy 2,False maybe"},
                                         EndRow{"CodeBelowTen", "note,\x09,True True"},
                                         EndRow{"AsWideAsTheBuffer", "n,c,False " + std::string(1024, '1')}),
                         RowName());

TEST_F(StrategyListLITETest, AFailureOfTheCatalogueEndsTheFillQuietly) {
  catalogue_->Describe(4);
  for (const int time : {1, 2}) {
    int seen = 0;
    catalogue_->OnCall = [&](const std::string& call) {
      if (call == "Playing 2" && ++seen == time) throw Error(1234);
    };
    list_->LoadStrategiesFromIniFile();
    EXPECT_EQ(Rows(), (Texts{"Strategy 0", "Strategy 1"}));
  }
}

// What is not set is passed over, statement by statement.

TEST_F(StrategyListLITETest, ADescriptionThatCannotBeTestedIsParsed) {
  catalogue_->Describe(2);
  catalogue_->Playing[1] = "";
  int seen = 0;
  catalogue_->OnCall = [&](const std::string& call) {
    if (call == "Playing 1" && ++seen == 1) throw Error(Error::ObjectNotSet);
  };
  list_->LoadStrategiesFromIniFile();
  // It is empty, and so has no comma, which ends the fill.
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(Rows(), Texts{"Strategy 0"});
}

TEST_F(StrategyListLITETest, ADescriptionThatCannotBeHadLeavesTheLastOne) {
  catalogue_->Describe(3);
  int seen = 0;
  catalogue_->OnCall = [&](const std::string& call) {
    if (call == "Playing 1" && ++seen == 2) throw Error(Error::ObjectNotSet);
  };
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Strategy 0", "Strategy 0", "Strategy 2", "Strategy 3"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
}

TEST_F(StrategyListLITETest, WithoutACatalogueParsesWhatTheBufferHolds) {
  catalogue_->Describe(2);
  list_->LoadStrategiesFromIniFile();
  StrategyListData::UseCatalogue(nullptr);
  StrategyListData::Buffer().Write("note,Held,False True");
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Held", "Held", "Held"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  StrategyListData::Buffer().Write("");
  list_->Text("before");
  list_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Rows(), Texts{});
  EXPECT_EQ(list_->Text(), "before");
  EXPECT_EQ(list_->CurrentStrategy(), -1);
}

// Selecting.

TEST_F(StrategyListLITETest, SelectThisStrategyReportsLikeAPick) {
  catalogue_->Describe(60);
  catalogue_->Playing[-1] = "note,Seat,0 1";
  catalogue_->Playing[4] = "note,Strategy 4,0 0";
  list_->LoadStrategiesFromIniFile();
  list_->SelectThisStrategy(3);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(3)"});
  list_->SelectThisStrategy(4);
  EXPECT_EQ(list_->SelectThisStrategy(), 3);
  EXPECT_EQ(site_.Beeps(), 1);
  list_->SelectThisStrategy(49);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(49)"});
  list_->SelectThisStrategy(50);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(list_->LastGoodListIndex(), 50);
  list_->SelectThisStrategy(63);
  EXPECT_EQ(list_->SelectThisStrategy(), 50) << "above the row count";
  EXPECT_EQ(ErrorCodeOf([&] { list_->SelectThisStrategy(62); }), 380) << "the row count";
}

}  // namespace
}  // namespace tactix::tests
