#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::tests {
namespace {

using companion::BettingPlan;
using companion::CountSettings;
using companion::IniStrategyCatalogue;

IniStrategyCatalogue BuiltIn() { return {companion::DefaultStrategies(), companion::DefaultStrategiesName}; }

/// What stands between the separators; "a b " has three pieces, the last of them empty.
std::vector<std::string> Pieces(const std::string& text, char separator) {
  std::vector<std::string> pieces{""};
  for (const char c : text) {
    if (c == separator) {
      pieces.emplace_back();
    } else {
      pieces.back() += c;
    }
  }
  return pieces;
}

/// A description taken apart by hand, its texts turned back.
struct TakenApart {
  std::string note;
  std::string caption;
  bool shifted = false;
  bool present = false;
  std::vector<int> numbers;
};

/// "note,caption,False True"
TakenApart PlayingParts(const std::string& description) {
  const std::vector<std::string> texts = Pieces(description, ',');
  EXPECT_EQ(texts.size(), 3U) << description;
  const std::vector<std::string> flags = Pieces(texts.at(2), ' ');
  EXPECT_EQ(flags.size(), 2U) << description;
  for (const std::string& flag : flags) EXPECT_TRUE(flag == "True" || flag == "False") << description;
  const bool shifted = flags.at(0) == "True";
  const auto text = [&](const std::string& stored) { return shifted ? UnshiftStrategyText(stored) : stored; };
  return {text(texts.at(0)), text(texts.at(1)), shifted, flags.at(1) == "True", {}};
}

/// "note,caption,1\"
TakenApart BettingParts(const std::string& description) {
  const std::vector<std::string> texts = Pieces(description, ',');
  EXPECT_EQ(texts.size(), 3U) << description;
  const std::string& marks = texts.at(2);
  EXPECT_TRUE(marks == "0" || marks == "1" || marks == "0\\" || marks == "1\\") << description;
  const bool shifted = marks.ends_with('\\');
  const auto text = [&](const std::string& stored) { return shifted ? UnshiftStrategyText(stored) : stored; };
  return {text(texts.at(0)), text(texts.at(1)), shifted, marks.starts_with('1'), {}};
}

/// "note,caption,False True 1 2 3 4 "
TakenApart CountParts(const std::string& description) {
  const std::vector<std::string> texts = Pieces(description, ',');
  EXPECT_EQ(texts.size(), 3U) << description;
  std::vector<std::string> fields = Pieces(texts.at(2), ' ');
  EXPECT_EQ(fields.size(), 7U) << "four numbers and exactly one blank after them: " << description;
  EXPECT_EQ(fields.back(), "") << description;
  TakenApart parts = PlayingParts(texts.at(0) + "," + texts.at(1) + "," + fields.at(0) + " " + fields.at(1));
  for (std::size_t i = 2; i < 6; ++i) parts.numbers.push_back(std::stoi(fields.at(i)));
  return parts;
}

TEST(DefaultDescriptionsTest, BettingStrategies) {
  struct Row {
    std::int16_t number;
    const char* caption;
    bool shifted;
    bool present;
  };
  const Row rows[] = {
      {-1, "Empty Seat", false, false},
      {0, "Flat Bet", false, true},
      {1, "1-2 Spread", false, true},
      {2, "1-4 Spread", false, true},
      {3, "1-8 Spread", false, true},
      {4, "1-12 Spread", true, true},
      {5, "Progressive Up as You Win", true, true},
      {6, "One-Three-Two-Six", false, true},
      {7, "Kelly Fraction", true, false},
  };
  IniStrategyCatalogue catalogue = BuiltIn();
  EXPECT_EQ(catalogue.GetStrategyRange().HighestBettingStrategy, 7);
  for (const Row& row : rows) {
    std::int16_t number = row.number;
    const TakenApart parts = BettingParts(catalogue.DescribeBettingStrategy(number));
    EXPECT_EQ(parts.caption, row.caption);
    EXPECT_EQ(parts.shifted, row.shifted) << row.caption;
    EXPECT_EQ(parts.present, row.present) << row.caption;
    EXPECT_EQ(catalogue.BettingCaptionOf(row.number), row.caption);
    EXPECT_EQ(catalogue.BettingPlanOf(row.number) != nullptr, row.present) << row.caption;
    EXPECT_NE(catalogue.DescribeStrategy(number), "") << "the betting list would leave out " << row.caption;
  }
}

TEST(DefaultDescriptionsTest, BettingPlans) {
  struct Row {
    std::int16_t number;
    std::vector<int> trueCounts;  ///< units at -1, 1, 2, 3, 4, 5, 9
    std::vector<int> wins;        ///< units after 0 ... 6 wins in a row
  };
  const std::vector<int> ones(7, 1);
  const Row rows[] = {
      {0, ones, ones},
      {1, {1, 1, 2, 2, 2, 2, 2}, ones},
      {2, {1, 1, 2, 4, 4, 4, 4}, ones},
      {3, {1, 1, 2, 4, 6, 8, 8}, ones},
      {4, {1, 1, 2, 4, 8, 12, 12}, ones},
      {5, ones, {1, 2, 3, 4, 5, 6, 6}},
      {6, ones, {1, 3, 2, 6, 1, 3, 2}},
  };
  const IniStrategyCatalogue catalogue = BuiltIn();
  for (const Row& row : rows) {
    const BettingPlan* const plan = catalogue.BettingPlanOf(row.number);
    ASSERT_NE(plan, nullptr) << row.number;
    std::vector<int> units;
    for (const int trueCount : {-1, 1, 2, 3, 4, 5, 9}) units.push_back(plan->UnitsFor(trueCount, 0));
    EXPECT_EQ(units, row.trueCounts) << row.number;
    units.clear();
    for (int wins = 0; wins < 7; ++wins) units.push_back(plan->UnitsFor(0, wins));
    EXPECT_EQ(units, row.wins) << row.number;
    EXPECT_EQ(plan->UnitsFor(0, -1), 1) << row.number;
  }
}

TEST(DefaultDescriptionsTest, CountSystems) {
  struct Row {
    std::int16_t number;
    const char* caption;
    bool shifted;
    bool present;
    std::vector<int> numbers;  ///< level, deck sum, start, divisor
  };
  const Row rows[] = {
      {11, "USTON Simple +/-", false, true, {1, 0, 0, 0}},
      {12, "USTON Advanced +/-", false, true, {1, 0, 0, 26}},
      {13, "USTON Advanced Point Count", true, true, {3, 0, 0, 26}},
      {14, "USTON \"SS\"", false, true, {3, 4, -4, 0}},
      {15, "Kelvo' A - 5 Count", false, true, {1, 0, 0, 0}},
      {16, "Kelvo' APC", false, true, {3, 0, 0, 52}},
      {17, "Kelvo' APC2 (Experimental)", true, true, {3, 0, 0, 52}},
      {18, "Kelvo' SS (in Research)", false, true, {3, 2, -2, 0}},
      {19, "Kelvo' Clump Count", false, true, {1, 0, 0, 0}},
      {20, "Kelvo' Clump Track", false, true, {1, 0, 0, 26}},
      {21, "HI-Opt I", false, true, {1, 0, 0, 52}},
      {22, "HI-Opt II", true, true, {2, 0, 0, 52}},
      {23, "Revere +/-", false, true, {1, 0, 0, 0}},
      {24, "Revere PC", false, true, {2, 0, 0, 26}},
      {25, "Revere APC", false, true, {4, 0, 0, 52}},
      {26, "Patterson +/-", false, false, {1, 0, 0, 52}},
      {27, "Anderson PC", false, false, {1, 0, 0, 52}},
      {28, "Scoblete PC", false, false, {1, 0, 0, 52}},
      {29, "Ultimate Count", false, true, {11, 0, 0, 52}},
      {30, "Canfield Expert", false, true, {1, 0, 0, 52}},
      {31, "Canfield Master", false, true, {2, 0, 0, 52}},
      {32, "Snyder's Red-Seven", false, true, {1, 2, -2, 0}},
      {33, "Snyder's Zen Count", true, true, {2, 0, 0, 52}},
      {34, "Marshall's Womans Count", false, false, {1, 0, 0, 52}},
      {35, "Omega II", true, true, {2, 0, 0, 52}},
      {36, "Alan Wilson's Point Count", false, true, {4, 0, 0, 0}},
      {37, "Aguilar's Ace-Six", true, false, {1, 0, 0, 52}},
      {38, "Core-Ratio Count!", false, false, {1, 0, 0, 52}},
  };
  IniStrategyCatalogue catalogue = BuiltIn();
  std::int16_t number = IniStrategyCatalogue::LowestCountNumber;
  for (const Row& row : rows) {
    EXPECT_EQ(row.number, number++);
    std::string description;
    catalogue.DescribeStrategy(row.number, description);
    const TakenApart parts = CountParts(description);
    EXPECT_EQ(parts.caption, row.caption);
    EXPECT_NE(parts.note, "") << row.caption;
    EXPECT_EQ(parts.shifted, row.shifted) << row.caption;
    EXPECT_EQ(parts.present, row.present) << row.caption;
    EXPECT_EQ(parts.numbers, row.numbers) << row.caption;
    EXPECT_EQ(catalogue.CountCaptionOf(row.number), row.caption);
    const CountSettings* const settings = catalogue.CountSettingsOf(row.number);
    ASSERT_EQ(settings != nullptr, row.present) << row.caption;
    if (settings) {
      EXPECT_EQ((std::vector<int>{settings->Level, settings->DeckSum, settings->Start, settings->Divisor}), row.numbers)
          << row.caption;
    }
  }
  EXPECT_EQ(number - 1, IniStrategyCatalogue::HighestCountNumber);
}

/// Plain and shifted, present and not present: lists take a different way for each.
struct Ways {
  bool plain = false;
  bool shifted = false;
  bool present = false;
  bool notPresent = false;

  void Add(const TakenApart& parts) {
    (parts.shifted ? shifted : plain) = true;
    (parts.present ? present : notPresent) = true;
  }
  bool All() const { return plain && shifted && present && notPresent; }
};

TEST(DefaultDescriptionsTest, TakeEveryWayThroughTheLists) {
  IniStrategyCatalogue catalogue = BuiltIn();
  const StrategyRange range = catalogue.GetStrategyRange();
  Ways playing;
  for (std::int16_t i = 0; i <= range.HighestPlayingStrategy; ++i)
    playing.Add(PlayingParts(catalogue.DescribeStrategy(i)));
  EXPECT_TRUE(playing.All());
  Ways betting;
  for (std::int16_t i = 0; i <= range.HighestBettingStrategy; ++i) {
    betting.Add(BettingParts(catalogue.DescribeBettingStrategy(i)));
  }
  EXPECT_TRUE(betting.All());
  Ways counts;
  for (std::int16_t i = IniStrategyCatalogue::LowestCountNumber; i <= IniStrategyCatalogue::HighestCountNumber; ++i) {
    std::string description;
    catalogue.DescribeStrategy(i, description);
    counts.Add(CountParts(description));
  }
  EXPECT_TRUE(counts.All());
}

}  // namespace
}  // namespace tactix::tests
