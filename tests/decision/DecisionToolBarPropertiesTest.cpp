// The properties of both decision toolbars.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/decision/DecisionToolBarGroups.h"
#include "tests/platform/ErrorCode.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Status = DecisionBarGroup::Status;

template <class Bar>
class DecisionToolBarPropertiesTest : public DecisionToolBarFixture<Bar> {
 protected:
  /// The keys of the buttons that are not shown.
  Texts Missing() {
    Texts keys;
    for (const auto& button : this->Strip().Buttons()) {
      if (!button->Visible()) keys.push_back(button->Key());
    }
    return keys;
  }
};
TYPED_TEST_SUITE(DecisionToolBarPropertiesTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarPropertiesTest, AVisibilityIsStoredShownAndAnnounced) {
  for (const DecisionBarGroup& group : DecisionBarGroups) {
    for (const Status status : {ButtonsHidden, ButtonsShown}) {
      this->site_.ForgetRecords();
      (this->bar_.get()->*group.set)(status);
      EXPECT_EQ(this->Missing(), status == ButtonsHidden ? group.keys : Texts{}) << "separators stay, and other groups";
      if (group.get) {
        EXPECT_EQ((this->bar_.get()->*group.get)(), status);
      }
      EXPECT_EQ(this->site_.Changes(), Texts{group.notice});
    }
  }
}

TYPED_TEST(DecisionToolBarPropertiesTest, TheNoticeComesLast) {
  for (const DecisionBarGroup& group : DecisionBarGroups) {
    Texts missing;
    std::int32_t stored = -1;
    this->site_.OnPropertyChanged([&](std::string_view) {
      missing = this->Missing();
      if (group.get) stored = (this->bar_.get()->*group.get)().Value();
    });
    (this->bar_.get()->*group.set)(ButtonsHidden);
    EXPECT_EQ(missing, group.keys);
    EXPECT_EQ(stored, group.get ? 0 : -1) << group.notice;
    (this->bar_.get()->*group.set)(ButtonsShown);
  }
  DecisionBARAlignment docked{};
  this->site_.OnPropertyChanged([&](std::string_view) { docked = this->bar_->Alignment().Row(); });
  this->bar_->Alignment(DecisionBARAlignment::DBAlignRight);
  EXPECT_EQ(docked, DecisionBARAlignment::DBAlignRight);
}

TYPED_TEST(DecisionToolBarPropertiesTest, AnyNumberButZeroShowsAGroup) {
  for (const DecisionBarGroup& group : DecisionBarGroups) {
    for (const std::int32_t number : {5, -1, 1, -2147483647 - 1, 2147483647}) {
      (this->bar_.get()->*group.set)(0);
      (this->bar_.get()->*group.set)(number);
      EXPECT_EQ(this->Missing(), Texts{}) << number;
      if (group.get) {
        EXPECT_EQ((this->bar_.get()->*group.get)(), number);
      }
    }
  }
}

TYPED_TEST(DecisionToolBarPropertiesTest, PluggingShowsAndStoresNothing) {
  for (const DecisionBarGroup& group : DecisionBarGroups) {
    (this->bar_.get()->*group.set)(7);
    this->site_.ForgetRecords();
    (this->bar_.get()->*group.plug)(0);
    EXPECT_EQ(this->Missing(), group.keys);
    if (group.get) {
      EXPECT_EQ((this->bar_.get()->*group.get)(), 7);
    }
    (this->bar_.get()->*group.plug)(-3);
    EXPECT_EQ(this->Missing(), Texts{});
    EXPECT_EQ(this->site_.Changes(), Texts{});
  }
}

TYPED_TEST(DecisionToolBarPropertiesTest, HidingAGroupLeavesItsButtonPressed) {
  this->Button("HitcardMid").Click();
  this->bar_->HitcardButtonsVisibility(ButtonsHidden);
  EXPECT_EQ(this->Pressed(), Texts{"HitcardMid"});
  this->Button("HitcardLow").Click();
  EXPECT_EQ(this->Record(), (PredictionRecord{2, 0, 0, 0})) << "a hidden button does not click";
  this->bar_->HitcardButtonsVisibility(ButtonsShown);
  EXPECT_EQ(this->Pressed(), Texts{"HitcardMid"});
}

TYPED_TEST(DecisionToolBarPropertiesTest, DockingIsAnnouncedEachTime) {
  this->bar_->Alignment(DecisionBARAlignment::DBAlignTop);
  this->bar_->Alignment(DecisionBARAlignment::DBAlignTop);
  EXPECT_EQ(this->site_.Changes(), (Texts{"Alignment", "Alignment"}));
}

TYPED_TEST(DecisionToolBarPropertiesTest, ReadingTheStatusReappliesTheDealerGroupAndGivesZero) {
  this->bar_->StatusButtonButtonVisibility(ButtonsShown);
  for (const std::int32_t dealer : {0, 6}) {
    this->bar_->DealerStrengthButtonsVisibility(dealer);
    this->bar_->PlugDealerStrengthButtons(dealer == 0 ? -1 : 0);
    this->site_.ForgetRecords();
    EXPECT_EQ(this->bar_->StatusButtonButtonVisibility(), ButtonsHidden);
    EXPECT_EQ(this->site_.Changes(), Texts{"DealerStrengthButtonsVisibility"});
    EXPECT_EQ(this->Missing(), dealer == 0 ? (Texts{"DealerStrengthWeak", "DealerStrengthStrong"}) : Texts{});
    EXPECT_EQ(this->bar_->DealerStrengthButtonsVisibility(), dealer);
  }
  EXPECT_TRUE(this->Button("ClumpStatistics").Visible());
}

TYPED_TEST(DecisionToolBarPropertiesTest, PredictionResettingIsNeitherSavedNorAnnounced) {
  this->bar_->ResetPredictionButtons(true);
  EXPECT_TRUE(this->bar_->ResetPredictionButtons());
  EXPECT_EQ(this->site_.Changes(), Texts{});
}

// The edition.

TYPED_TEST(DecisionToolBarPropertiesTest, MakesAnEditionWhenItIsReadAndThereIsNone) {
  const ObjectRef made = this->bar_->KelvoEdition();
  EXPECT_NE(made, nullptr);
  EXPECT_EQ(this->bar_->KelvoEdition(), made);
  EXPECT_EQ(this->editionsMade_, 1);
  const auto own = std::make_shared<PropertyObject>();
  this->bar_->KelvoEdition(own);
  EXPECT_EQ(this->bar_->KelvoEdition(), own);
  this->bar_->KelvoEdition(nullptr);
  EXPECT_NE(this->bar_->KelvoEdition(), own);
  EXPECT_EQ(this->editionsMade_, 2);
  EXPECT_EQ(this->site_.Changes(), Texts{});
}

TYPED_TEST(DecisionToolBarPropertiesTest, WithoutAMakerThereIsNoEdition) {
  DefaultEdition::CreateWith({});
  EXPECT_EQ(ErrorCodeOf([&] { return this->bar_->KelvoEdition(); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->SetupTheDecisionBAR(this->BlockFor(9, 0)); }), 91);
  EXPECT_EQ(this->bar_->DecodedDCB().HardTotal(), 9) << "the block is copied first";
  DefaultEdition::CreateWith([] { return ObjectRef(); });
  EXPECT_EQ(ErrorCodeOf([&] { return this->bar_->KelvoEdition(); }), 91);
}

TYPED_TEST(DecisionToolBarPropertiesTest, TheMakerOfEditionsMayDestroyIt) {
  this->onEdition_ = [this] { this->bar_.reset(); };
  EXPECT_NE(this->bar_->KelvoEdition(), nullptr);
  EXPECT_EQ(this->bar_, nullptr);
  this->bar_ = std::make_unique<TypeParam>(this->site_);
  this->bar_->SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->bar_, nullptr);
}

TYPED_TEST(DecisionToolBarPropertiesTest, AsksAnEditionForItsCode) {
  const struct {
    Variant value;
    int code;
    std::int16_t edition;
  } rows[] = {{4, 0, 4},           {"7", 0, 7},        {2.5, 0, 2},       {Variant(), 0, 0},
              {-32768, 0, -32768}, {32768, 6, -32768}, {"x", 13, -32768}, {Variant::Null(), 94, -32768},
              {true, 0, -1}};
  for (const auto& row : rows) {
    const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", row.value);
    EXPECT_EQ(ErrorCodeOf([&] { this->bar_->TheKelvoEditionIs(edition); }), row.code);
    EXPECT_EQ(this->bar_->thisKelvoEdition(), row.edition);
    EXPECT_EQ(edition->Log, Texts{"Get thisKelvoEdition"});
  }
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->TheKelvoEditionIs(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { this->bar_->TheKelvoEditionIs(std::make_shared<PropertyObject>()); }), 438);
  EXPECT_EQ(this->editionsMade_, 0) << "it is asked and not kept";
  const auto deadly = std::make_shared<PropertyObject>("thisKelvoEdition", 3);
  deadly->OnUse = [this](const std::string&) { this->bar_.reset(); };
  this->bar_->TheKelvoEditionIs(deadly);
  EXPECT_EQ(this->bar_, nullptr);
}

}  // namespace
}  // namespace tactix::tests
