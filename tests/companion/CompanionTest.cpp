#include "tactix/companion/Companion.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/counting/CounterValueObject.h"
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

TEST_F(CompanionTest, WithoutItAnErrorSaysWhatToCall) {
  CounterValueObject::CreateWith(nullptr);
  const struct {
    const char* hook;
    void (*create)();
  } rows[] = {
      {"tactix::DefaultEdition::CreateWith", [] { DefaultEdition::Create(); }},
      {"tactix::DefaultStrategyData::CreateWith", [] { DefaultStrategyData::Create(); }},
      {"tactix::CounterValueObject::CreateWith", [] { CounterValueObject::Create(); }},
      {"tactix::StrategyListData::CreateCatalogueWith", [] { StrategyListData::Catalogue(); }},
  };
  for (const auto& row : rows) {
    try {
      row.create();
      ADD_FAILURE() << row.hook;
    } catch (const Error& error) {
      EXPECT_EQ(error.Code(), 91) << row.hook;
      EXPECT_NE(error.Description().find("tactix::companion::Install()"), std::string::npos) << error.Description();
      EXPECT_NE(error.Description().find(row.hook), std::string::npos) << error.Description();
    }
  }
}

/// A host's catalogue that has count systems and nothing else.
class CountsOnly final : public StrategyCatalogue {
 public:
  std::string DescribeCountSystem(std::int16_t number) override {
    return number == 13 ? "a,b,False True 1 0 0 52 " : "";
  }
  StrategyRange GetStrategyRange() override { return {}; }
};

TEST_F(CompanionTest, ACatalogueOverridesWhatItHas) {
  CountsOnly counts;
  std::string text = "before";
  counts.DescribeStrategy(std::int16_t{12}, text);
  EXPECT_EQ(text, "");
  counts.DescribeStrategy(std::int16_t{13}, text);
  EXPECT_EQ(text, "a,b,False True 1 0 0 52 ");
  std::int16_t number = 13;
  EXPECT_EQ(counts.DescribeStrategy(number), "");
  EXPECT_EQ(counts.DescribeBettingStrategy(number), "");
}

}  // namespace
}  // namespace tactix::tests
