#include "tactix/strategy/BetStrategyList.h"

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

class BetStrategyListTest : public testing::Test {
 protected:
  BetStrategyListTest() { recorder_.Watch(list_->Events.All()); }

  ListBox& Box() const { return list_->Children.BetStrategyListBox; }
  Texts Rows() const {
    Texts rows;
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) rows.push_back(Box().List(row));
    return rows;
  }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<BetStrategyList> list_ = std::make_unique<BetStrategyList>(site_);
  EventRecorder recorder_;
};

TEST_F(BetStrategyListTest, ListsWhatThePlayingListHasToo) {
  catalogue_->DescribeBetting(5);
  catalogue_->Playing[1] = "";
  catalogue_->Betting[3] = "note,Bet 3,0";
  catalogue_->Betting[4] = "note,one comma";
  catalogue_->Playing[5] = "anything";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 2", "Not Present", "Not Present", "Bet 5"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  EXPECT_EQ(list_->CurrentStrategy(), 5);
}

TEST_F(BetStrategyListTest, ADescriptionWithoutACommaAddsNoRow) {
  catalogue_->DescribeBetting(3);
  catalogue_->Betting[1] = "no comma";
  catalogue_->Betting[2] = "";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 3"}));
}

TEST_F(BetStrategyListTest, AsksForThePlayingStrategyFirst) {
  catalogue_->DescribeBetting(1);
  catalogue_->Playing[0] = "";
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(catalogue_->Log, (Texts{"Range", "Playing -1", "Betting -1", "Playing 0", "Playing 1", "Betting 1"}));
}

TEST_F(BetStrategyListTest, UsesTheFirstFieldOfTheRange) {
  catalogue_->DescribeBetting(4);
  catalogue_->Range.HighestBettingStrategy = 2;
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows().size(), 4U);
  EXPECT_EQ(list_->CurrentStrategy(), 2);
}

TEST_F(BetStrategyListTest, ACatalogueThatWritesToTheNumberChangesNothing) {
  catalogue_->DescribeBetting(2);
  catalogue_->WriteBack = [](std::int16_t& number) { number = 77; };
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 1", "Bet 2"}));
}

void ExpectTheListsError(BetStrategyList& list, int code) {
  try {
    list.InputBettingStrategyDescriptions();
    FAIL() << "did not fail";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), code);
    EXPECT_EQ(error.Source(), "BettingStrategyList::");
    EXPECT_EQ(error.Description(), "InputBettingStrategyDescriptions");
  }
}

TEST_F(BetStrategyListTest, AFailureGoesOnUnderItsCodeAndTheListsName) {
  catalogue_->DescribeBetting(4);
  list_->LoadStrategiesFromIniFile();
  catalogue_->Betting[2] = "xy~o,Pvk~,\\1";
  list_->Text("before");
  ExpectTheListsError(*list_, 13);
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 1"})) << "rows already added stay";
  EXPECT_EQ(list_->Text(), "before");
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Betting 1") throw Error(1234, "the host's", "the host");
  };
  ExpectTheListsError(*list_, 1234);
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0"}));
}

TEST_F(BetStrategyListTest, AFailingRangeGoesOnAsItIs) {
  catalogue_->OnCall = [](const std::string&) { throw Error(1234, {}, "the host"); };
  try {
    list_->LoadStrategiesFromIniFile();
    FAIL() << "did not fail";
  } catch (const Error& error) {
    EXPECT_EQ(error.Source(), "the host");
  }
}

// What is not set is passed over, statement by statement.

TEST_F(BetStrategyListTest, AStrategyThatCannotBeTestedIsListed) {
  catalogue_->DescribeBetting(2);
  catalogue_->Playing[1] = "";
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Playing 1") throw Error(Error::ObjectNotSet);
  };
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 1", "Bet 2"}));
}

TEST_F(BetStrategyListTest, ADescriptionThatCannotBeHadLeavesTheLastOne) {
  catalogue_->DescribeBetting(2);
  catalogue_->OnCall = [](const std::string& call) {
    if (call == "Betting 1") throw Error(Error::ObjectNotSet);
  };
  list_->LoadStrategiesFromIniFile();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Bet 0", "Bet 0", "Bet 2"}));
}

TEST_F(BetStrategyListTest, WithoutACatalogueParsesWhatTheBufferHolds) {
  catalogue_->DescribeBetting(1);
  list_->LoadStrategiesFromIniFile();
  StrategyListData::UseCatalogue(nullptr);
  StrategyListData::Buffer().Write("note,Held,1");
  list_->Text("before");
  list_->InputBettingStrategyDescriptions();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Held", "Held"}));
  EXPECT_EQ(list_->Text(), "Select a Strategy");
  StrategyListData::Buffer().Write("");
  list_->InputBettingStrategyDescriptions();
  EXPECT_EQ(Rows(), Texts{});
  EXPECT_EQ(list_->CurrentStrategy(), 1) << "it went on to the last";
  EXPECT_EQ(list_->Text(), "Select a Strategy");
}

// Selecting quietly.

class FilledBetStrategyListTest : public BetStrategyListTest {
 protected:
  FilledBetStrategyListTest() {
    catalogue_->DescribeBetting(60);
    catalogue_->Betting[4] = "note,Bet 4,0";
    list_->LoadStrategiesFromIniFile();
  }
};

TEST_F(FilledBetStrategyListTest, SelectThisStrategySelectsQuietly) {
  EXPECT_FALSE(list_->QuietSelection());
  list_->SelectThisStrategy(3);
  EXPECT_EQ(list_->SelectThisStrategy(), 3);
  EXPECT_EQ(list_->LastGoodListIndex(), 4);
  EXPECT_FALSE(list_->QuietSelection());
  EXPECT_EQ(recorder_.Take(), Texts{});
  Box().PickRow(6);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(5)"});
}

TEST_F(FilledBetStrategyListTest, ListIndexIsReported) {
  list_->ListIndex(3);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(3)"});
}

struct QuietRow {
  const char* name;
  std::int16_t strategy;
  int code;
  bool staysQuiet;
};

class BetStrategyListQuietTest : public FilledBetStrategyListTest, public testing::WithParamInterface<QuietRow> {};

TEST_P(BetStrategyListQuietTest, TheFlagStaysUntilARowIsAccepted) {
  list_->SelectThisStrategy(2);
  EXPECT_EQ(ErrorCodeOf([&] { list_->SelectThisStrategy(GetParam().strategy); }), GetParam().code);
  EXPECT_EQ(list_->QuietSelection(), GetParam().staysQuiet);
  Box().PickRow(6);
  EXPECT_EQ(recorder_.Take(), GetParam().staysQuiet ? Texts{} : Texts{"StrategySelectionChanged#1(5)"});
  EXPECT_FALSE(list_->QuietSelection());
  Box().PickRow(7);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(6)"});
}

INSTANTIATE_TEST_SUITE_P(Rows, BetStrategyListQuietTest,
                         testing::Values(QuietRow{"Accepted", 3, 0, false}, QuietRow{"AsManyAsRows", 62, 380, true},
                                         QuietRow{"MoreThanRows", 63, 0, false},
                                         QuietRow{"LastRowAndOne", 61, 380, true}, QuietRow{"BelowNone", -3, 380, true},
                                         QuietRow{"None", -2, 0, true}, QuietRow{"Refused", 4, 0, true},
                                         QuietRow{"PastTheReported", 50, 0, true},
                                         QuietRow{"LastReported", 49, 0, false}),
                         RowName());

TEST_F(FilledBetStrategyListTest, ARefusedPickLeavesTheFlag) {
  ErrorCodeOf([&] { list_->SelectThisStrategy(62); });
  Box().PickRow(5);
  EXPECT_EQ(site_.Beeps(), 1);
  EXPECT_TRUE(list_->QuietSelection());
}

TEST_F(FilledBetStrategyListTest, AHandlerMaySelectQuietly) {
  list_->Events.StrategySelectionChanged.Connect([this](std::int32_t& strategy) {
    if (strategy == 3) list_->SelectThisStrategy(7);
  });
  Box().PickRow(4);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#1(3)"});
  EXPECT_EQ(list_->ListIndex(), 7);
  EXPECT_FALSE(list_->QuietSelection());
}

TEST_F(FilledBetStrategyListTest, AHandlerThatFailsLeavesTheNextSelectionReported) {
  const ScopedConnection failing =
      list_->Events.StrategySelectionChanged.Connect([](std::int32_t&) { throw Error(1234); });
  EXPECT_EQ(ErrorCodeOf([&] { list_->ListIndex(3); }), 1234);
  EXPECT_FALSE(list_->QuietSelection());
}

TEST_F(FilledBetStrategyListTest, AHandlerMayDestroyTheList) {
  list_->Events.StrategySelectionChanged.Connect([this](std::int32_t&) { list_.reset(); });
  list_->ListIndex(3);
  EXPECT_EQ(list_, nullptr);
}

}  // namespace
}  // namespace tactix::tests
