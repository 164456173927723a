#include "tactix/companion/BettingPlan.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::BettingPlan;
using companion::BettingRule;
using companion::IniError;
using companion::IniFile;

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

BettingPlan PlanOf(const std::string& text) {
  const IniFile file("[Betting 0]\nplan = " + text + "\n", "p.ini");
  return {file, file.Sections().front().entries.front()};
}

struct PlanRow {
  const char* name;
  const char* plan;
  BettingRule rule;
  std::vector<int> trueCounts;   ///< units at Lowest, -3, 0, 1 ... 6 and Highest, with no run
  std::vector<int> winsInARow;   ///< units after 0 ... 9 wins, at a true count of 0
  std::vector<int> lossesOrTop;  ///< units after 1 and 5 losses, Lowest and Highest
};

class BettingPlanTest : public testing::TestWithParam<PlanRow> {};

TEST_P(BettingPlanTest, SizesTheBet) {
  const BettingPlan plan = PlanOf(GetParam().plan);
  EXPECT_EQ(plan.Rule(), GetParam().rule);
  std::vector<int> units;
  for (const int trueCount : {Lowest, -3, 0, 1, 2, 3, 4, 5, 6, Highest}) units.push_back(plan.UnitsFor(trueCount, 0));
  EXPECT_EQ(units, GetParam().trueCounts);
  units.clear();
  for (int wins = 0; wins < 10; ++wins) units.push_back(plan.UnitsFor(0, wins));
  EXPECT_EQ(units, GetParam().winsInARow);
  units.clear();
  for (const int run : {-1, -5, Lowest, Highest}) units.push_back(plan.UnitsFor(0, run));
  EXPECT_EQ(units, GetParam().lossesOrTop);
}

const std::vector<int> TenOnes(10, 1);

INSTANTIATE_TEST_SUITE_P(Rows, BettingPlanTest,
                         testing::Values(PlanRow{"Flat", "flat", BettingRule::Flat, TenOnes, TenOnes, {1, 1, 1, 1}},
                                         PlanRow{"Spread",
                                                 "true-count 1 2 4 8",
                                                 BettingRule::TrueCount,
                                                 {1, 1, 1, 1, 2, 4, 8, 8, 8, 8},
                                                 TenOnes,
                                                 {1, 1, 1, 1}},
                                         PlanRow{"Progression",
                                                 "win-progression 1 2 3",
                                                 BettingRule::WinProgression,
                                                 TenOnes,
                                                 {1, 2, 3, 3, 3, 3, 3, 3, 3, 3},
                                                 {1, 1, 1, 3}},
                                         PlanRow{"Cycle",
                                                 "win-cycle 1 3 2 6",
                                                 BettingRule::WinCycle,
                                                 TenOnes,
                                                 {1, 3, 2, 6, 1, 3, 2, 6, 1, 3},
                                                 {1, 1, 1, 6}},
                                         PlanRow{"AnyCaseAndBlanks",
                                                 "True-COUNT \t 3   1000",
                                                 BettingRule::TrueCount,
                                                 {3, 3, 3, 3, 1000, 1000, 1000, 1000, 1000, 1000},
                                                 std::vector<int>(10, 3),
                                                 {3, 3, 3, 3}}),
                         RowName());

TEST(BettingPlanTest, ComparesByRuleAndUnits) {
  EXPECT_EQ(PlanOf("win-cycle 1 2"), PlanOf("WIN-CYCLE  1  2"));
  EXPECT_NE(PlanOf("win-cycle 1 2"), PlanOf("win-progression 1 2"));
  EXPECT_NE(PlanOf("win-cycle 1 2"), PlanOf("win-cycle 1 3"));
}

TEST(BettingPlanTest, HasTwentySteps) {
  std::string plan = "true-count";
  for (int step = 1; step <= BettingPlan::MostSteps; ++step) plan += " " + std::to_string(step);
  EXPECT_EQ(PlanOf(plan).UnitsFor(20, 0), 20);
  EXPECT_EQ(PlanOf(plan).UnitsFor(19, 0), 19);
  EXPECT_THROW(PlanOf(plan + " 21"), IniError);
}

struct RefusedPlanRow {
  const char* name;
  const char* plan;
  const char* description;
};

class BettingPlanRefusalTest : public testing::TestWithParam<RefusedPlanRow> {};

TEST_P(BettingPlanRefusalTest, NamesFileAndLine) {
  try {
    PlanOf(GetParam().plan);
    FAIL() << "not refused";
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), std::string("p.ini:2: ") + GetParam().description);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BettingPlanRefusalTest,
    testing::Values(
        RefusedPlanRow{"Empty", "", "expected 'flat', 'true-count', 'win-progression' or 'win-cycle', found ''"},
        RefusedPlanRow{"UnknownRule", "martingale 1 2",
                       "expected 'flat', 'true-count', 'win-progression' or 'win-cycle', found 'martingale'"},
        RefusedPlanRow{"FlatWithUnits", "flat 2", "'flat' takes no units"},
        RefusedPlanRow{"NoUnits", "win-cycle", "expected 2 to 20 numbers of units, found 0"},
        RefusedPlanRow{"OneNumber", "true-count 1", "expected 2 to 20 numbers of units, found 1"},
        RefusedPlanRow{"ZeroUnits", "true-count 0 1", "expected units from 1 to 1000, found '0'"},
        RefusedPlanRow{"NegativeUnits", "true-count 1 -2", "expected units from 1 to 1000, found '-2'"},
        RefusedPlanRow{"TooManyUnits", "true-count 1 1001", "expected units from 1 to 1000, found '1001'"},
        RefusedPlanRow{"HugeUnits", "true-count 1 4294967297", "expected units from 1 to 1000, found '4294967297'"},
        RefusedPlanRow{"HalfUnits", "true-count 1 1.5", "expected units from 1 to 1000, found '1.5'"},
        RefusedPlanRow{"Commas", "true-count 1, 2", "expected units from 1 to 1000, found '1,'"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
