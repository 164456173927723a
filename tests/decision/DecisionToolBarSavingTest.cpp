// What both decision toolbars save, and how they take what a host's bag gives back.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/decision/DecisionToolBarGroups.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

/// A bag that logs what is asked of it, fails where it is told to, and does something at every turn.
class HostileBag final : public PropertyBag {
 public:
  Texts Log;
  std::function<void(const std::string& turn)> OnTurn;

  Variant Read(std::string_view name, const Variant& defaultValue) override {
    Turn("Read " + std::string(name) + " or " + defaultValue.ToText());
    return stored.Read(name, defaultValue);
  }
  void Write(std::string_view name, const Variant& value) override {
    Turn("Write " + std::string(name) + "=" + value.ToText());
    stored.Write(name, value);
  }
  void Write(std::string_view, const Variant&, const Variant&) override { FAIL() << "a default was given"; }

  MemoryPropertyBag stored;

 private:
  void Turn(std::string turn) {
    Log.push_back(turn);
    if (OnTurn) OnTurn(turn);
  }
};

template <class Bar>
class DecisionToolBarSavingTest : public DecisionToolBarFixture<Bar> {};
TYPED_TEST_SUITE(DecisionToolBarSavingTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarSavingTest, SavesBottomAndNoStatus) {
  this->bar_->Alignment(DecisionBARAlignment::DBAlignTop);
  this->bar_->HitcardButtonsVisibility(ButtonsShown);
  this->bar_->HolecardButtonsVisibility(3);
  this->bar_->TensRatioButtonVisibility(7);
  this->bar_->DealerStrengthButtonsVisibility(-2147483647);
  this->bar_->PlugDealerStrengthButtons(ButtonsHidden);
  this->bar_->StatusButtonButtonVisibility(ButtonsShown);
  this->site_.ForgetRecords();
  HostileBag bag;
  this->site_.OnPropertyChanged([&bag](std::string_view name) { bag.Log.push_back("notice " + std::string(name)); });
  this->bar_->WriteProperties(bag);
  EXPECT_EQ(bag.Log,
            (Texts{"Write Alignment=2", "Write HitcardButtonsVisibility=-1", "Write HoleCardButtonsVisibility=3",
                   "Write TensRatioButtonsVisibility=7", "Write DealerStrengthButtonsVisibility=-2147483647",
                   "notice DealerStrengthButtonsVisibility", "Write StatusButtonVisibility=0"}));
  EXPECT_TRUE(this->Button("DealerStrengthWeak").Visible()) << "saving re-applies the dealer's buttons";
  EXPECT_EQ(this->bar_->Alignment(), DecisionBARAlignment::DBAlignTop);
  for (const std::string& name : bag.stored.Names()) {
    EXPECT_EQ(bag.stored.Read(name).Type(), VariantType::Long) << name;
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ReadsInThisOrderWithTheseDefaults) {
  HostileBag bag;
  this->site_.OnPropertyChanged([&bag](std::string_view name) { bag.Log.push_back("notice " + std::string(name)); });
  this->bar_->Extender().Place(300, 400, 9000, 900);
  this->bar_->ReadProperties(bag);
  EXPECT_EQ(bag.Log, (Texts{"Read HitcardButtonsVisibility or 0", "Read HoleCardButtonsVisibility or 0",
                            "Read TensRatioButtonsVisibility or 0", "Read DealerStrengthButtonsVisibility or 0",
                            "Read StatusButtonVisibility or 0", "Read Alignment or 2", "notice Alignment"}));
  EXPECT_EQ(this->bar_->Extender().Left(), 0);
  EXPECT_EQ(this->bar_->Extender().Top(), 0);
}

TYPED_TEST(DecisionToolBarSavingTest, WhatWasSavedComesBackAndTouchesNoButton) {
  for (const std::int32_t saved : {0, -1, 5}) {
    MemoryPropertyBag bag;
    for (const DecisionBarGroup& group : DecisionBarGroups) bag.Write(group.notice, saved);
    bag.Write("Alignment", 3);
    for (const bool shown : {true, false}) {
      TypeParam bar(this->site_);
      for (const DecisionBarGroup& group : DecisionBarGroups) (bar.*group.plug)(shown ? 1 : 0);
      bar.ReadProperties(bag);
      EXPECT_EQ(bar.Alignment(), DecisionBARAlignment::DBAlignLeft);
      for (const DecisionBarGroup& group : DecisionBarGroups) {
        if (group.get) {
          EXPECT_EQ((bar.*group.get)(), saved) << group.notice;
        }
        for (const std::string& key : group.keys) {
          EXPECT_EQ(bar.Children.DecisionToolBar.Button(key).Visible(), shown) << key;
        }
      }
    }
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ASavedPropertyThatCannotBeReadHasItsDefault) {
  const Variant bad[] = {"many", Variant::Null(), 3e9, Variant(ObjectRef()), Font{}};
  for (const Variant& value : bad) {
    for (const DecisionBarGroup& hostile : DecisionBarGroups) {
      TypeParam bar(this->site_);
      for (const DecisionBarGroup& group : DecisionBarGroups) (bar.*group.set)(9);
      MemoryPropertyBag bag;
      for (const DecisionBarGroup& group : DecisionBarGroups) bag.Write(group.notice, 4);
      bag.Write("Alignment", 1);
      bag.Write(hostile.notice, value);
      bar.ReadProperties(bag);
      for (const DecisionBarGroup& group : DecisionBarGroups) {
        if (group.get) {
          EXPECT_EQ((bar.*group.get)(), &group == &hostile ? 0 : 4) << group.notice;
        }
      }
      EXPECT_EQ(bar.Alignment(), DecisionBARAlignment::DBAlignTop);
      bag.Write("Alignment", value);
      bar.ReadProperties(bag);
      EXPECT_EQ(bar.Alignment(), DecisionBARAlignment::DBAlignBottom);
    }
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ABagThatFailsToReadIsPassedOver) {
  for (std::size_t failing = 0; failing < 6; ++failing) {
    TypeParam bar(this->site_);
    HostileBag bag;
    for (const DecisionBarGroup& group : DecisionBarGroups) bag.stored.Write(group.notice, 4);
    bag.stored.Write("Alignment", 1);
    bag.OnTurn = [&](const std::string&) {
      if (bag.Log.size() == failing + 1) throw Error(1234);
    };
    bar.ReadProperties(bag);
    EXPECT_EQ(bag.Log.size(), 6U);
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_EQ((bar.*DecisionBarGroups[i].get)(), i == failing ? 0 : 4) << DecisionBarGroups[i].notice;
    }
    EXPECT_EQ(bar.Alignment(), failing == 5 ? 2 : 1);
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ABagThatFailsToWriteEndsTheSave) {
  for (std::size_t failing = 0; failing < 6; ++failing) {
    HostileBag bag;
    bag.OnTurn = [&](const std::string&) {
      if (bag.Log.size() == failing + 1) throw Error(1234);
    };
    EXPECT_EQ(ErrorCodeOf([&] { this->bar_->WriteProperties(bag); }), 1234);
    EXPECT_EQ(bag.Log.size(), failing + 1);
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ABagMayDestroyItAtEveryTurn) {
  for (const bool writing : {false, true}) {
    for (std::size_t at = 1; at <= 6; ++at) {
      this->bar_ = std::make_unique<TypeParam>(this->site_);
      HostileBag bag;
      bag.OnTurn = [&](const std::string&) {
        if (bag.Log.size() == at) this->bar_.reset();
      };
      writing ? this->bar_->WriteProperties(bag) : this->bar_->ReadProperties(bag);
      EXPECT_EQ(this->bar_, nullptr);
      // Nothing is left to read for; a value at hand is not written any more either.
      EXPECT_EQ(bag.Log.size(), at);
    }
  }
}

TYPED_TEST(DecisionToolBarSavingTest, ANoticeMayDestroyIt) {
  const struct {
    const char* name;
    void (*act)(TypeParam& bar, PropertyBag& bag);
  } rows[] = {
      {"docking", [](TypeParam& bar, PropertyBag&) { bar.Alignment(3); }},
      {"visibility", [](TypeParam& bar, PropertyBag&) { bar.HitcardButtonsVisibility(ButtonsHidden); }},
      {"hole card", [](TypeParam& bar, PropertyBag&) { bar.HolecardButtonsVisibility(ButtonsHidden); }},
      {"tens", [](TypeParam& bar, PropertyBag&) { bar.TensRatioButtonVisibility(ButtonsHidden); }},
      {"dealer", [](TypeParam& bar, PropertyBag&) { bar.DealerStrengthButtonsVisibility(ButtonsHidden); }},
      {"status", [](TypeParam& bar, PropertyBag&) { bar.StatusButtonButtonVisibility(ButtonsHidden); }},
      {"reading the status", [](TypeParam& bar, PropertyBag&) { EXPECT_EQ(bar.StatusButtonButtonVisibility(), 0); }},
      {"reading", [](TypeParam& bar, PropertyBag& bag) { bar.ReadProperties(bag); }},
      {"writing",
       [](TypeParam& bar, PropertyBag& bag) {
         bar.WriteProperties(bag);
         EXPECT_EQ(static_cast<HostileBag&>(bag).Log.size(), 5U) << "the status comes no more";
       }},
  };
  for (const auto& row : rows) {
    this->bar_ = std::make_unique<TypeParam>(this->site_);
    this->site_.OnPropertyChanged([this](std::string_view) { this->bar_.reset(); });
    HostileBag bag;
    row.act(*this->bar_, bag);
    EXPECT_EQ(this->bar_, nullptr) << row.name;
  }
}

}  // namespace
}  // namespace tactix::tests
