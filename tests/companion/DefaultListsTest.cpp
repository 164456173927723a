#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::tests {
namespace {

class DefaultListsTest : public testing::Test {
 protected:
  DefaultListsTest() {
    StrategyListData::UseCatalogue(std::make_shared<companion::IniStrategyCatalogue>(companion::DefaultStrategies(),
                                                                                     companion::DefaultStrategiesName));
  }
  ~DefaultListsTest() override { StrategyListData::UseCatalogue(nullptr); }

  static std::vector<std::string> RowsOf(const ListBox& box) {
    std::vector<std::string> rows;
    for (std::int32_t row = 0; row < box.ListCount(); ++row) rows.push_back(box.List(row));
    return rows;
  }

  HeadlessSite site_;
};

TEST_F(DefaultListsTest, BetStrategyListShowsThem) {
  BetStrategyList list(site_);
  list.LoadStrategiesFromIniFile();
  EXPECT_EQ(RowsOf(list.Children.BetStrategyListBox),
            (std::vector<std::string>{"Empty Seat", "Flat Bet", "1-2 Spread", "1-4 Spread", "1-8 Spread", "1-12 Spread",
                                      "Progressive Up as You Win", "One-Three-Two-Six", "Not Present"}));
}

TEST_F(DefaultListsTest, CountStrategyListShowsThem) {
  CountStrategyList list(site_);
  list.CountStrategy(CountStrategyPossibilities::KelvoAPC);
  EXPECT_EQ(list.Children.StrategyListBox.Text(), "Kelvo' APC");
  EXPECT_TRUE(list.IsFilled()) << "a description has too much or too little behind its four numbers";
  const std::vector<std::string> rows = {"USTON Simple +/-",
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
                                         "Not Present",
                                         "Not Present",
                                         "Not Present",
                                         "Ultimate Count",
                                         "Canfield Expert",
                                         "Canfield Master",
                                         "Snyder's Red-Seven",
                                         "Snyder's Zen Count",
                                         "Not Present",
                                         "Omega II",
                                         "Alan Wilson's Point Count",
                                         "Not Present",
                                         "Not Present"};
  EXPECT_EQ(RowsOf(list.Children.StrategyListBox), rows);
}

TEST_F(DefaultListsTest, CountStrategyListReadsTheSettings) {
  CountStrategyList list(site_);
  list.LoadStrategiesFromIniFile();
  const CountStrategyRecord& uston = list.Record(CountStrategyPossibilities::UstonSS);
  EXPECT_EQ(uston.CountSetting3, 3) << "level";
  EXPECT_EQ(uston.CountSetting4, 4) << "deck sum";
  EXPECT_EQ(uston.CountSetting1, -4) << "start";
  EXPECT_EQ(uston.CountSetting2, 0) << "divisor";
  EXPECT_EQ(list.Record(CountStrategyPossibilities::UstonAPC).CountSetting2, 26);
  EXPECT_EQ(list.Record(CountStrategyPossibilities::UstonAPC).Name, "USTON Advanced Point Count");
}

}  // namespace
}  // namespace tactix::tests
