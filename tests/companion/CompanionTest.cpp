#include "tactix/companion/Companion.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tactix/decision/DefaultEdition.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

class CompanionTest : public testing::Test {
 protected:
  CompanionTest() { Forget(); }
  ~CompanionTest() override { Forget(); }

  static void Forget() {
    StrategyListData::UseCatalogue(nullptr);
    StrategyListData::CreateCatalogueWith(nullptr);
    DefaultEdition::CreateWith(nullptr);
    DefaultStrategyData::CreateWith(nullptr);
  }
};

TEST_F(CompanionTest, ListsFillThemselvesOnceInstalled) {
  companion::Install();
  HeadlessSite site;
  StrategyList list(site);
  list.LoadStrategiesFromIniFile();
  const ListBox& box = list.Children.StrategyListBox;
  std::vector<std::string> rows;
  for (std::int32_t row = 0; row < box.ListCount(); ++row) rows.push_back(box.List(row));
  EXPECT_EQ(rows, (std::vector<std::string>{"Not Present", "Basic 4-8 Decks S17", "Basic 4-8 Decks H17",
                                            "Basic 1 Deck H17", "Basic 1 Deck S17", "Mimic the Dealer", "Never Bust",
                                            "Not Present", "Not Present"}));
}

TEST_F(CompanionTest, ToolbarsMakeThemselvesAnEditionOnceInstalled) {
  HeadlessSite site;
  DecisionBAR2 bar(site);
  EXPECT_EQ(ErrorCodeOf([&] { bar.SetupTheDecisionBAR(DecisionBlock()); }), 91);
  companion::Install();
  bar.SetupTheDecisionBAR(DecisionBlock());
  const ObjectRef edition = bar.KelvoEdition();
  EXPECT_EQ(edition->Get("thisKelvoEdition"), 0);
  edition->Put("thisKelvoEdition", 3);
  bar.TheKelvoEditionIs(edition);
  EXPECT_EQ(bar.thisKelvoEdition(), 3);
  DecisionBAR2 other(site);
  EXPECT_NE(other.KelvoEdition(), edition) << "each has its own";
}

TEST_F(CompanionTest, InstallingMakesEmptyStrategyDataBlocks) {
  companion::Install();
  const ObjectRef block = DefaultStrategyData::Create();
  block->Put("RunningCount", 5);
  EXPECT_EQ(block->Get("RunningCount"), Variant(5));
  EXPECT_EQ(DefaultStrategyData::Create()->Get("RunningCount"), Variant(0));
}

TEST_F(CompanionTest, InstallingAgainKeepsWhatWasCreated) {
  companion::Install();
  const StrategyCatalogue* const created = StrategyListData::Catalogue().get();
  companion::Install();
  EXPECT_EQ(StrategyListData::Catalogue().get(), created);
}

TEST_F(CompanionTest, InstallingKeepsTheHostsCatalogue) {
  const auto own = std::make_shared<companion::IniStrategyCatalogue>("[Playing 0]\ncaption=x\n", "own.ini");
  StrategyListData::UseCatalogue(own);
  companion::Install();
  EXPECT_EQ(StrategyListData::Catalogue().get(), own.get());
}

}  // namespace
}  // namespace tactix::tests
