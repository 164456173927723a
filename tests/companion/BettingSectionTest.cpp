#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "tactix/companion/IniStrategyCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::BettingRule;
using companion::IniError;
using companion::IniStrategyCatalogue;

/// Playing and betting strategies -1 ... highest, without the betting strategies of that number and above.
std::string UpTo(int highest, int bettingHighest) {
  std::string text;
  for (int number = -1; number <= highest; ++number) {
    text += "[Playing " + std::to_string(number) + "]\ncaption=p\n";
    if (number < bettingHighest) text += "[Betting " + std::to_string(number) + "]\ncaption=b\n";
  }
  return text;
}

std::string DescribedBet(IniStrategyCatalogue& catalogue, int number) {
  auto asked = static_cast<std::int16_t>(number);
  const std::string description = catalogue.DescribeBettingStrategy(asked);
  EXPECT_EQ(asked, number);
  return description;
}

struct BettingRow {
  const char* name;
  std::string section;
  std::string description;
};

class BettingSectionTest : public testing::TestWithParam<BettingRow> {};

TEST_P(BettingSectionTest, DescribesTheStrategy) {
  IniStrategyCatalogue catalogue(UpTo(1, 1) + "[Betting 1]\n" + GetParam().section, "s.ini");
  EXPECT_EQ(DescribedBet(catalogue, 1), GetParam().description);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BettingSectionTest,
    testing::Values(BettingRow{"CaptionOnly", "caption=Flat\n", ",Flat,1"},
                    BettingRow{"Note", "note=For all\ncaption=Flat\n", "For all,Flat,1"},
                    BettingRow{"NotPresent", "caption=Flat\npresent=no\n", ",Flat,0"},
                    BettingRow{"Shifted", "caption=Basic\nnote=a b\nshifted=yes\n", "k*l,Lk}sm,1\\"},
                    BettingRow{"ShiftedAndNotPresent", "caption=Basic\nshifted=yes\npresent=no\n", ",Lk}sm,0\\"},
                    BettingRow{"PlanIsNotDescribed", "caption=Flat\nplan=flat\n", ",Flat,1"},
                    BettingRow{"Longest", "caption=x\nnote=" + std::string(1019, 'n') + "\n",
                               std::string(1019, 'n') + ",x,1"}),
    RowName());

TEST(BettingSectionTest, TellsTheHighestNumber) {
  EXPECT_EQ(IniStrategyCatalogue(UpTo(3, 0), "s.ini").GetStrategyRange().HighestBettingStrategy, 0);
  EXPECT_EQ(IniStrategyCatalogue(UpTo(3, 1), "s.ini").GetStrategyRange().HighestBettingStrategy, 0);
  EXPECT_EQ(IniStrategyCatalogue(UpTo(3, 3), "s.ini").GetStrategyRange().HighestBettingStrategy, 2);
  EXPECT_EQ(IniStrategyCatalogue(UpTo(3, 3), "s.ini").GetStrategyRange().HighestPlayingStrategy, 3);
  EXPECT_EQ(IniStrategyCatalogue(UpTo(54, 50), "s.ini").GetStrategyRange().HighestBettingStrategy, 49);
}

TEST(BettingSectionTest, IsApartFromPlayingStrategies) {
  IniStrategyCatalogue catalogue(UpTo(1, 1) + "[Betting 1]\ncaption=Bold\n", "s.ini");
  for (const int none : {-32768, -2, 2, 55, 32767}) EXPECT_EQ(DescribedBet(catalogue, none), "") << none;
  std::int16_t number = 1;
  EXPECT_EQ(catalogue.DescribeStrategy(number), ",p,False True");
  EXPECT_EQ(catalogue.CaptionOf(1), "p");
}

TEST(BettingSectionTest, TellsCaptionAndPlan) {
  const IniStrategyCatalogue catalogue(
      UpTo(2, 0) + "[Betting 0]\ncaption=Bold\nplan=true-count 1 7\nshifted=yes\n[Betting 2]\ncaption=c\npresent=no\n" +
          "plan=flat\n[Betting 1]\ncaption=\" b \"\n",
      "s.ini");
  EXPECT_EQ(catalogue.BettingCaptionOf(0), "Bold");
  EXPECT_EQ(catalogue.BettingCaptionOf(1), " b ");
  ASSERT_NE(catalogue.BettingPlanOf(0), nullptr);
  EXPECT_EQ(catalogue.BettingPlanOf(0)->UnitsFor(2, 0), 7);
  EXPECT_EQ(catalogue.BettingPlanOf(1), nullptr);
  ASSERT_NE(catalogue.BettingPlanOf(2), nullptr);
  EXPECT_EQ(catalogue.BettingPlanOf(2)->Rule(), BettingRule::Flat);
  for (const std::int16_t none : std::initializer_list<std::int16_t>{-32768, -2, 3, 32767}) {
    EXPECT_EQ(catalogue.BettingCaptionOf(none), "") << none;
    EXPECT_EQ(catalogue.BettingPlanOf(none), nullptr) << none;
  }
}

struct RefusedBettingRow {
  const char* name;
  std::string text;
  std::string description;
};

class BettingSectionRefusalTest : public testing::TestWithParam<RefusedBettingRow> {};

TEST_P(BettingSectionRefusalTest, NamesFileAndLine) {
  try {
    const IniStrategyCatalogue catalogue(GetParam().text, "s.ini");
    FAIL() << "not refused";
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), GetParam().description);
  }
}

const std::string NoBettingNumber = "s.ini:1: expected '[Betting -1]' ... '[Betting 49]'";

INSTANTIATE_TEST_SUITE_P(
    Rows, BettingSectionRefusalTest,
    testing::Values(
        RefusedBettingRow{"Alone", "[Betting -1]\ncaption=a\n", "s.ini: holds no playing strategy"},
        RefusedBettingRow{"NoNumber", "[Betting]\ncaption=a\n", NoBettingNumber},
        RefusedBettingRow{"NumberTooLow", "[Betting -2]\ncaption=a\n", NoBettingNumber},
        RefusedBettingRow{"NumberTooHigh", "[Betting 50]\ncaption=a\n", NoBettingNumber},
        RefusedBettingRow{"WordForANumber", "[Betting flat]\ncaption=a\n", NoBettingNumber},
        RefusedBettingRow{"NumberTwice", "[Betting 1]\ncaption=a\n[Betting 01]\ncaption=b\n",
                          "s.ini:3: betting strategy 1 was given before"},
        RefusedBettingRow{"NoCaption", "[Betting 0]\nplan=flat\n", "s.ini:1: 'Betting 0' has no caption"},
        RefusedBettingRow{"KeyOfAPlayingStrategy", "[Betting 0]\ncaption=a\nplays=b\n", "s.ini:3: unknown key 'plays'"},
        RefusedBettingRow{"KeyOfACount", "[Betting 0]\ncaption=a\nlevel=1\n", "s.ini:3: unknown key 'level'"},
        RefusedBettingRow{"Comma", "[Betting 0]\ncaption=1, 2\n", "s.ini:2: caption holds a ','"},
        RefusedBettingRow{"ShiftedQuote", "[Betting 0]\ncaption=\"a\"b\"\nshifted=yes\n",
                          "s.ini:2: caption: a '\"' cannot be stored shifted"},
        RefusedBettingRow{"TooLong", "[Betting 0]\ncaption=x\nnote=" + std::string(1020, 'n') + "\n",
                          "s.ini:2: caption and note are too long together"},
        RefusedBettingRow{"NoPlan", "[Betting 0]\ncaption=a\nplan=\n",
                          "s.ini:3: expected 'flat', 'true-count', 'win-progression' or 'win-cycle', found ''"},
        RefusedBettingRow{"NoEmptySeat", UpTo(0, -1) + "[Betting 0]\ncaption=a\n",
                          "s.ini:5: 'Betting 0' needs a '[Betting -1]', or lists have it in the wrong row"},
        RefusedBettingRow{"NoPlayingSeat", "[Playing 0]\ncaption=a\n[Betting -1]\ncaption=b\n",
                          "s.ini:3: 'Betting -1' needs a '[Playing -1]', or lists have it in the wrong row"},
        RefusedBettingRow{"Gap", UpTo(2, 1) + "[Betting 2]\ncaption=a\n",
                          "s.ini:13: 'Betting 2' needs a '[Betting 1]', or lists have it in the wrong row"},
        RefusedBettingRow{"GapInThePlayingStrategies",
                          UpTo(0, 1) + "[Betting 2]\ncaption=a\n[Betting 1]\ncaption=b\n[Playing 2]\ncaption=c\n",
                          "s.ini:11: 'Betting 1' needs a '[Playing 1]', or lists have it in the wrong row"},
        RefusedBettingRow{"MoreThanPlayingStrategies", UpTo(0, 1) + "[Betting 1]\ncaption=a\n",
                          "s.ini:9: 'Betting 1' needs a '[Playing 1]', or lists have it in the wrong row"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
