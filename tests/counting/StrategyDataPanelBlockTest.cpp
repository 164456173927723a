// The data panel and the host's blocks: whose it keeps, how reading fails, what code of the host's may do meanwhile.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/companion/StrategyDataBlock.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/FullDataBlock.h"

namespace tactix::tests {
namespace {

using companion::StrategyDataBlock;
using Texts = std::vector<std::string>;

class StrategyDataPanelBlockTest : public testing::Test {
 protected:
  StrategyDataPanelBlockTest() {
    DefaultStrategyData::CreateWith([this] {
      auto block = std::make_shared<StrategyDataBlock>();
      created_.push_back(block);
      return block;
    });
  }
  ~StrategyDataPanelBlockTest() override { DefaultStrategyData::CreateWith(nullptr); }

  std::string Aces() { return panel_->Children.datAces.Caption(); }
  std::string Total() { return panel_->Children.datEndingTotal.Caption(); }

  HeadlessSite site_;
  std::unique_ptr<StrategyDataPanel> panel_ = std::make_unique<StrategyDataPanel>(site_);
  std::vector<std::weak_ptr<StrategyDataBlock>> created_;
};

TEST_F(StrategyDataPanelBlockTest, ABlockThatIsOnlyShownIsForgotten) {
  auto block = FullDataBlock();
  const std::weak_ptr<PropertyObject> watched = block;
  panel_->HereIsYourStrategyData(block);
  block.reset();
  EXPECT_TRUE(watched.expired());
  EXPECT_TRUE(created_.empty());
  EXPECT_EQ(Aces(), "4");
  EXPECT_EQ(ErrorCodeOf([&] { return panel_->HereIsYourStrategyData(nullptr), 0; }), Error::ObjectNotSet);
}

TEST_F(StrategyDataPanelBlockTest, ABlockThatIsHandedOverIsKept) {
  auto block = FullDataBlock();
  const std::weak_ptr<PropertyObject> watched = block;
  panel_->HereIsSomeStrategyDataBlockData(block);
  block.reset();
  EXPECT_FALSE(watched.expired());
  EXPECT_EQ(Aces(), "4");
  EXPECT_TRUE(created_.empty());
  panel_->HereIsSomeStrategyDataBlockData(nullptr);
  EXPECT_TRUE(watched.expired());
  ASSERT_EQ(created_.size(), 1U);
  EXPECT_FALSE(created_[0].expired());
  EXPECT_EQ(Aces(), "0");
  EXPECT_EQ(Total(), "00.0");
  panel_->HereIsSomeStrategyDataBlockData(nullptr);
  EXPECT_TRUE(created_[0].expired());
  EXPECT_EQ(created_.size(), 2U);
}

TEST_F(StrategyDataPanelBlockTest, AnAssignedBlockIsCopiedToAnOwnOne) {
  const auto block = FullDataBlock();
  panel_->StrategyDataBlockData(block);
  ASSERT_EQ(created_.size(), 1U);
  const auto own = created_[0].lock();
  ASSERT_NE(own, nullptr);
  EXPECT_EQ(own->AcesDealt, 4);
  EXPECT_EQ(own->DealerEndingTotal, 8.5F);
  EXPECT_EQ(Aces(), "4");
  EXPECT_EQ(Total(), "08.5");
  block->Set("AcesDealt", 44);
  EXPECT_EQ(own->AcesDealt, 4);
  panel_->StrategyDataBlockData(block);
  EXPECT_EQ(own->AcesDealt, 44);
  EXPECT_EQ(Aces(), "44");
  EXPECT_EQ(created_.size(), 1U);
}

/// A host's block that keeps what is assigned to it.
class AssignableBlock final : public Object {
 public:
  ObjectRef Assigned;
  Variant Get(std::string_view) override { return Assigned ? 2 : 1; }
  void Put(std::string_view name, const Variant& value) override {
    if (!name.empty()) return Object::Put(name, value);
    Assigned = value.ToObject();
  }
};

TEST_F(StrategyDataPanelBlockTest, AnAssignedBlockGoesToTheHostsBlockThatIsKept) {
  const auto own = std::make_shared<AssignableBlock>();
  panel_->HereIsSomeStrategyDataBlockData(own);
  EXPECT_EQ(Aces(), "1");
  const auto assigned = FullDataBlock();
  panel_->StrategyDataBlockData(assigned);
  EXPECT_EQ(own->Assigned, assigned);
  EXPECT_EQ(Aces(), "2") << "the own block is shown, not the assigned one";
  EXPECT_TRUE(created_.empty());
  EXPECT_TRUE(assigned->Log.empty());
}

TEST_F(StrategyDataPanelBlockTest, WithoutAFactoryItFails) {
  for (const bool makesNone : {false, true}) {
    if (makesNone) {
      DefaultStrategyData::CreateWith([] { return ObjectRef(); });
    } else {
      DefaultStrategyData::CreateWith(nullptr);
    }
    EXPECT_EQ(ErrorCodeOf([&] { return panel_->StrategyDataBlockData(FullDataBlock()), 0; }), Error::ObjectNotSet);
    EXPECT_EQ(ErrorCodeOf([&] { return panel_->HereIsSomeStrategyDataBlockData(nullptr), 0; }), Error::ObjectNotSet);
  }
  EXPECT_EQ(Aces(), "");
  panel_->HereIsSomeStrategyDataBlockData(std::make_shared<StrategyDataBlock>());
  panel_->StrategyDataBlockData(FullDataBlock());
  EXPECT_EQ(Aces(), "4");
}

TEST_F(StrategyDataPanelBlockTest, AFailedAssignmentKeepsWhatIsShown) {
  panel_->StrategyDataBlockData(FullDataBlock());
  const auto block = FullDataBlock();
  block->Set("AcesDealt", 7);
  block->Set("DealerEndingTotal", "high");
  EXPECT_EQ(ErrorCodeOf([&] { return panel_->StrategyDataBlockData(block), 0; }), Error::TypeMismatch);
  EXPECT_EQ(ErrorCodeOf([&] { return panel_->StrategyDataBlockData(nullptr), 0; }), Error::ObjectNotSet);
  EXPECT_EQ(Aces(), "4");
  EXPECT_EQ(created_[0].lock()->AcesDealt, 4);
}

TEST_F(StrategyDataPanelBlockTest, ReleasesItsBlockWhenItEnds) {
  panel_->HereIsSomeStrategyDataBlockData(nullptr);
  panel_->Terminated();
  EXPECT_TRUE(created_[0].expired());
}

struct FailingFieldRow {
  const char* field;
  Variant value;
  std::int32_t error;
  const char* lastRead;
};

TEST_F(StrategyDataPanelBlockTest, AFieldThatFailsEndsTheShowing) {
  constexpr float Infinite = std::numeric_limits<float>::infinity();
  constexpr float NotANumber = std::numeric_limits<float>::quiet_NaN();
  const FailingFieldRow rows[] = {
      {"RunningCount", 32768, Error::Overflow, "Get RunningCount"},
      {"TrueCount", "three", Error::TypeMismatch, "Get TrueCount"},
      {"AcesDealt", Variant::Null(), Error::InvalidUseOfNull, "Get AcesDealt"},
      {"FivesDealt", Font{}, Error::TypeMismatch, "Get FivesDealt"},
      {"TensDealt", -32769, Error::Overflow, "Get TensDealt"},
      {"BiasRating", 3e9, Error::Overflow, "Get BiasRating"},
      {"ClumpType", 3e9, Error::Overflow, "Get ClumpType"},
      {"ClumpType", 32768, Error::Overflow, "Get ClumpType"},
      {"ClumpType", -70000, Error::Overflow, "Get ClumpType"},
      {"CoreCardsDealt", "", Error::TypeMismatch, "Get CoreCardsDealt"},
      {"TargetRating", nullptr, Error::ObjectNotSet, "Get TargetRating"},
      {"DealerBreakPercent", 1e300, Error::Overflow, "Get DealerBreakPercent"},
      {"DealerBreakPercent", Infinite, Error::InvalidProcedureCall, "Get DealerBreakPercent"},
      {"AdjustedCount", 1e9, Error::Overflow, "Get AdjustedCount"},
      {"DealerStiffHands", "few", Error::TypeMismatch, "Get DealerStiffHands"},
      {"DealerStiffHands", Infinite, Error::Overflow, "Get DealerStrongHands"},
      {"DealerStiffHands", NotANumber, Error::Overflow, "Get DealerStrongHands"},
      {"DealerStrongHands", -Infinite, Error::Overflow, "Get DealerStrongHands"},
      {"DealerStrongHands", "many", Error::TypeMismatch, "Get DealerStrongHands"},
      {"DealerEndingTotal", "NN.NN", Error::TypeMismatch, "Get DealerEndingTotal"},
  };
  for (const FailingFieldRow& row : rows) {
    const auto block = FullDataBlock();
    block->Set(row.field, row.value);
    EXPECT_EQ(ErrorCodeOf([&] { return panel_->HereIsYourStrategyData(block), 0; }), row.error) << row.field;
    EXPECT_EQ(block->Log.back(), row.lastRead) << row.field;
  }
}

TEST_F(StrategyDataPanelBlockTest, WhatWasShownBeforeTheFailureStays) {
  const auto block = FullDataBlock();
  block->Set("TensDealt", 40000);
  EXPECT_EQ(ErrorCodeOf([&] { return panel_->HereIsYourStrategyData(block), 0; }), Error::Overflow);
  EXPECT_EQ(Aces(), "4");
  EXPECT_EQ(panel_->Children.datFives.Caption(), "5");
  EXPECT_EQ(panel_->Children.dat10Count.Caption(), "");
  EXPECT_EQ(Total(), "NN.NN");
}

TEST_F(StrategyDataPanelBlockTest, AMissingFieldFails) {
  for (const std::string_view missing : DataFields) {
    const auto block = std::make_shared<PropertyObject>();
    for (const std::string_view field : DataFields) {
      if (field != missing) block->Set(std::string(field), 1);
    }
    EXPECT_EQ(ErrorCodeOf([&] { return panel_->HereIsYourStrategyData(block), 0; }), Error::NoSuchMember) << missing;
  }
}

TEST_F(StrategyDataPanelBlockTest, AnyReadMayDestroyThePanel) {
  for (const bool kept : {false, true}) {
    for (const std::string_view field : DataFields) {
      panel_ = std::make_unique<StrategyDataPanel>(site_);
      const auto block = FullDataBlock();
      block->OnUse = [&](const std::string& use) {
        if (use == "Get " + std::string(field)) panel_.reset();
      };
      if (kept) {
        panel_->HereIsSomeStrategyDataBlockData(block);
      } else {
        panel_->HereIsYourStrategyData(block);
      }
      EXPECT_EQ(panel_, nullptr) << field;
      EXPECT_EQ(block->Log.back(), "Get " + std::string(field)) << "went on reading";
    }
  }
}

TEST_F(StrategyDataPanelBlockTest, AFieldMayBeAnObjectAndDestroyThePanelWhenItIsAsked) {
  for (const std::string_view field : DataFields) {
    panel_ = std::make_unique<StrategyDataPanel>(site_);
    const auto value = std::make_shared<PropertyObject>("", 3);
    const auto block = FullDataBlock();
    block->Set(std::string(field), value);
    panel_->HereIsYourStrategyData(block);
    EXPECT_EQ(block->Log.size(), std::size(DataFields)) << field;
    block->Log.clear();
    value->OnUse = [&](const std::string&) { panel_.reset(); };
    panel_->HereIsYourStrategyData(block);
    EXPECT_EQ(panel_, nullptr) << field;
    EXPECT_EQ(block->Log.back(), "Get " + std::string(field)) << "went on reading";
  }
}

TEST_F(StrategyDataPanelBlockTest, AssigningAndCreatingMayDestroyThePanel) {
  const auto block = FullDataBlock();
  block->OnUse = [&](const std::string&) { panel_.reset(); };
  panel_->StrategyDataBlockData(block);
  EXPECT_EQ(panel_, nullptr);
  for (const bool assigned : {false, true}) {
    panel_ = std::make_unique<StrategyDataPanel>(site_);
    DefaultStrategyData::CreateWith([&] {
      panel_.reset();
      DefaultStrategyData::CreateWith(nullptr);
      return std::make_shared<StrategyDataBlock>();
    });
    if (assigned) {
      panel_->StrategyDataBlockData(FullDataBlock());
    } else {
      panel_->HereIsSomeStrategyDataBlockData(nullptr);
    }
    EXPECT_EQ(panel_, nullptr);
  }
}

TEST_F(StrategyDataPanelBlockTest, TheEditionMayDestroyThePanel) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 5);
  edition->OnUse = [&](const std::string&) { panel_.reset(); };
  panel_->TheKelvoEditionIs(edition);
  EXPECT_EQ(panel_, nullptr);
}

TEST_F(StrategyDataPanelBlockTest, AReadMayShowAnotherBlock) {
  const auto block = FullDataBlock();
  block->OnUse = [&](const std::string& use) {
    block->OnUse = nullptr;
    if (use == "Get RunningCount") panel_->HereIsSomeStrategyDataBlockData(nullptr);
  };
  panel_->HereIsSomeStrategyDataBlockData(block);
  EXPECT_EQ(Aces(), "4") << "the outer showing goes on with its own block";
  EXPECT_FALSE(created_[0].expired());
}

}  // namespace
}  // namespace tactix::tests
