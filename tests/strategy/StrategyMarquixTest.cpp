#include "tactix/strategy/StrategyMarquix.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/BareSite.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/LoggingBag.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class StrategyMarquixTest : public testing::Test {
 protected:
  StrategyMarquixTest() {
    catalogue_->Describe(5);
    catalogue_->Playing[-1] = "note,Seat,0 1";
    catalogue_->Playing[3] = "note,Strategy 3,0 0";
    recorder_.Watch(marquee_->Events.All());
  }

  StrategyListLITE& List() const { return marquee_->Children.StrategyListBox; }
  ListBox& Box() const { return List().Children.StrategyListBox; }
  OptionButton& Mark() const { return marquee_->Children.optStrategySelected; }

  InstalledCatalogue catalogue_;
  HeadlessSite site_;
  std::unique_ptr<StrategyMarquix> marquee_ = std::make_unique<StrategyMarquix>(site_);
  EventRecorder recorder_;
};

TEST_F(StrategyMarquixTest, StartsAsDesigned) {
  EXPECT_EQ(marquee_->Caption(), "Strategy Un-defined");
  EXPECT_EQ(marquee_->ControlType(), TypeOfStrategyMarquixControl::IsNotYetAssigned);
  EXPECT_EQ(marquee_->ourStrategyListFormats, StrategyListFormats::ShowAllStrategies);
  EXPECT_EQ(List().Text(), "Select a Strategy");
  EXPECT_EQ(List().DefaultContent(), "Select a Strategy");
  EXPECT_EQ(List().Font().Name, "Comic Sans MS");
  EXPECT_FALSE(Mark().Visible());
  EXPECT_FALSE(Mark().Value());
  EXPECT_TRUE(marquee_->Enabled());
  EXPECT_EQ(marquee_->ListIndex(), -2);
  EXPECT_FALSE(marquee_->aStrategyExists());
  Texts names;
  for (const Widget* child : marquee_->Extender().Children()) names.emplace_back(child->Name());
  EXPECT_EQ(names, (Texts{"labelStrategyBanner", "StrategyListBox", "optStrategySelected"}));
}

TEST_F(StrategyMarquixTest, NumbersItsEvents) {
  EXPECT_EQ(marquee_->Events.BettingStrategySelected.Number(), 1);
  EXPECT_EQ(marquee_->Events.PlayingStrategySelected.Number(), 2);
  EXPECT_EQ(marquee_->Events.StrategySelectionChanged.Number(), 3);
}

struct MarkRow {
  const char* name;
  std::int32_t type;
  bool fromHidden;
  bool fromShown;
};

class StrategyMarquixMarkTest : public StrategyMarquixTest, public testing::WithParamInterface<MarkRow> {};

TEST_P(StrategyMarquixMarkTest, IsShownByControlType) {
  const auto& [name, type, fromHidden, fromShown] = GetParam();
  marquee_->ControlType(type);
  EXPECT_EQ(Mark().Visible(), fromHidden);
  EXPECT_EQ(marquee_->ControlType(), type);
  marquee_->ControlType(TypeOfStrategyMarquixControl::IsAPlayingMarquix);
  marquee_->ControlType(type);
  EXPECT_EQ(Mark().Visible(), fromShown);
  EXPECT_EQ(site_.Changes(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(Rows, StrategyMarquixMarkTest,
                         testing::Values(MarkRow{"NotYetAssigned", 0, false, false},
                                         MarkRow{"Betting", 1, false, false}, MarkRow{"Playing", 2, true, true},
                                         MarkRow{"Evaluation", 3, false, false},
                                         MarkRow{"TableSelection", 4, false, false},
                                         MarkRow{"TableDeparture", 5, false, false}, MarkRow{"Above", 6, false, true},
                                         MarkRow{"FarAbove", 70000, false, true}, MarkRow{"Below", -1, false, true},
                                         MarkRow{"FarBelow", -70000, false, true}),
                         RowName());

TEST_F(StrategyMarquixTest, TakesRowsOfBothEnumerations) {
  marquee_->ControlType(TypeOfStrategyControl::IsAPlayingControl);
  EXPECT_EQ(marquee_->ControlType(), TypeOfStrategyMarquixControl::IsAPlayingMarquix);
  EXPECT_TRUE(Mark().Visible());
}

TEST_F(StrategyMarquixTest, ForwardsToItsList) {
  marquee_->AddItem("a");
  marquee_->AddItem("b");
  EXPECT_EQ(Box().List(1), "b");
  marquee_->ListIndex(0);
  EXPECT_EQ(List().ListIndex(), 0);
  EXPECT_EQ(marquee_->ListIndex(), 0);
  marquee_->Enabled(false);
  EXPECT_FALSE(List().Enabled());
  EXPECT_FALSE(marquee_->Enabled());
  EXPECT_TRUE(marquee_->Extender().Enabled());
  marquee_->UseThisStrategyList(std::make_shared<FakeCollection>(6));
  EXPECT_EQ(List().StrategyCount(), 6);
  marquee_->InputPlayingStrategyDescriptions();
  EXPECT_EQ(Box().ListCount(), 2) << "no range is loaded: the seat and strategy 0";
  EXPECT_EQ(site_.Changes(), Texts{}) << "the list's notices stay inside";
}

TEST_F(StrategyMarquixTest, LoadsTwice) {
  catalogue_->Range.HighestPlayingStrategy = 0;
  catalogue_->Playing[-1] = "";
  marquee_->LoadStrategiesFromIniFile();
  EXPECT_EQ(catalogue_->Log,
            (Texts{"Range", "Playing -1", "Playing 0", "Playing 0", "Range", "Playing -1", "Playing 0", "Playing 0"}));
  EXPECT_EQ(Box().ListCount(), 1);
}

TEST_F(StrategyMarquixTest, PassesTheSelectionOnByReference) {
  marquee_->LoadStrategiesFromIniFile();
  std::int32_t heard = 0;
  marquee_->Events.StrategySelectionChanged.Connect([](std::int32_t& strategy) { strategy += 100; });
  List().Events.StrategySelectionChanged.Connect([&](std::int32_t& strategy) { heard = strategy; });
  Box().PickRow(3);
  EXPECT_EQ(recorder_.Take(), Texts{"StrategySelectionChanged#3(2)"});
  EXPECT_EQ(heard, 102);
  EXPECT_EQ(marquee_->ListIndex(), 2);
}

TEST_F(StrategyMarquixTest, ARefusedRowRaisesNothing) {
  marquee_->LoadStrategiesFromIniFile();
  marquee_->ListIndex(2);
  recorder_.Forget();
  Box().PickRow(4);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(marquee_->ListIndex(), 2);
  EXPECT_EQ(site_.Beeps(), 1);
}

TEST_F(StrategyMarquixTest, AStrategyExistsFromNumberOneOn) {
  marquee_->LoadStrategiesFromIniFile();
  EXPECT_FALSE(marquee_->aStrategyExists());
  for (const std::int16_t strategy : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    marquee_->ListIndex(strategy);
    EXPECT_EQ(marquee_->aStrategyExists(), strategy >= 1) << strategy;
  }
}

TEST_F(StrategyMarquixTest, SelectThisStrategySetsTheMarkOnly) {
  marquee_->LoadStrategiesFromIniFile();
  marquee_->SelectThisStrategy(true);
  EXPECT_TRUE(Mark().Value());
  EXPECT_FALSE(Mark().Visible());
  marquee_->SelectThisStrategy(false);
  EXPECT_FALSE(Mark().Value());
  EXPECT_EQ(marquee_->ListIndex(), -2);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(site_.Changes(), Texts{});
}

TEST_F(StrategyMarquixTest, ItsTypeComparesWithRowsOfBothEnumerations) {
  marquee_->ControlType(TypeOfStrategyControl::IsAPlayingControl);
  EXPECT_TRUE(marquee_->ControlType() == TypeOfStrategyControl::IsAPlayingControl);
  EXPECT_TRUE(TypeOfStrategyControl::IsAPlayingControl == marquee_->ControlType());
  EXPECT_FALSE(marquee_->ControlType() == TypeOfStrategyControl::IsABettingControl);
  EXPECT_TRUE(marquee_->ControlType() != TypeOfStrategyControl::IsAnEvaluationControl);
  EXPECT_TRUE(marquee_->ControlType() == TypeOfStrategyMarquixControl::IsAPlayingMarquix);
  marquee_->ControlType(TypeOfStrategyMarquixControl::IsATableSelectionMarquix);
  EXPECT_FALSE(marquee_->ControlType() == TypeOfStrategyControl::IsAnEvaluationControl);
  EXPECT_TRUE(marquee_->ControlType() == 4);
}

TEST_F(StrategyMarquixTest, AUserMayMarkIt) {
  marquee_->ControlType(2);
  Mark().Click();
  EXPECT_TRUE(Mark().Value());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(StrategyMarquixTest, GivesTheFocusToItsList) {
  marquee_->SetFocus();
  EXPECT_EQ(site_.Focus(), &Box());
}

TEST_F(StrategyMarquixTest, FailuresOfTheListReachTheCaller) {
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->ListIndex(5); }), 380);
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->UseThisStrategyList(nullptr); }), 91);
  StrategyListData::UseCatalogue(nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->LoadStrategiesFromIniFile(); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->InputPlayingStrategyDescriptions(); }), 0) << "quiet in the list";
}

TEST_F(StrategyMarquixTest, MayBeDestroyedInACallOut) {
  catalogue_->OnCall = [this](const std::string& call) {
    if (call == "Range") marquee_.reset();
  };
  marquee_->LoadStrategiesFromIniFile();
  EXPECT_EQ(marquee_, nullptr);
  EXPECT_EQ(catalogue_->Log, Texts{"Range"});

  catalogue_->OnCall = nullptr;
  marquee_ = std::make_unique<StrategyMarquix>(site_);
  marquee_->AddItem("a");
  marquee_->Events.StrategySelectionChanged.Connect([this](std::int32_t&) { marquee_.reset(); });
  Box().PickRow(0);
  EXPECT_EQ(marquee_, nullptr);

  marquee_ = std::make_unique<StrategyMarquix>(site_);
  site_.OnPropertyChanged([this](std::string_view) { marquee_.reset(); });
  marquee_->Caption("caption");
  EXPECT_EQ(marquee_, nullptr);
}

// Saving.

TEST_F(StrategyMarquixTest, ReadsThreeAndWritesOne) {
  LoggingBag bag;
  marquee_->ReadProperties(bag);
  EXPECT_EQ(bag.log, (Texts{"read Caption", "read Control Type", "read False"}));
  marquee_->SelectThisStrategy(true);
  marquee_->ControlType(2);
  bag.log.clear();
  marquee_->ReadProperties(bag);
  EXPECT_EQ(bag.log.back(), "read True");
  bag.log.clear();
  marquee_->WriteProperties(bag);
  EXPECT_EQ(bag.log, Texts{"write Caption"});
}

TEST_F(StrategyMarquixTest, WhatIsMissingStaysAsItIs) {
  marquee_->Caption("mine");
  marquee_->ControlType(2);
  marquee_->SelectThisStrategy(true);
  MemoryPropertyBag empty;
  marquee_->ReadProperties(empty);
  EXPECT_EQ(marquee_->Caption(), "mine");
  EXPECT_EQ(marquee_->ControlType(), 2);
  EXPECT_TRUE(Mark().Visible());
  EXPECT_TRUE(Mark().Value());
}

TEST_F(StrategyMarquixTest, ASavedFormBringsTheCaptionOnly) {
  marquee_->Caption("Ann's strategy");
  EXPECT_EQ(site_.Changes(), Texts{"Caption"});
  marquee_->ControlType(2);
  marquee_->SelectThisStrategy(true);
  MemoryPropertyBag bag;
  marquee_->WriteProperties(bag);
  StrategyMarquix other(site_);
  other.ReadProperties(bag);
  EXPECT_EQ(other.Caption(), "Ann's strategy");
  EXPECT_EQ(other.ControlType(), 0);
  EXPECT_FALSE(other.Children.optStrategySelected.Visible());
  EXPECT_FALSE(other.Children.optStrategySelected.Value());
}

TEST_F(StrategyMarquixTest, ASavedDesignCaptionReplacesAnother) {
  MemoryPropertyBag bag;
  marquee_->WriteProperties(bag);
  StrategyMarquix other(site_);
  other.Caption("x");
  other.ReadProperties(bag);
  EXPECT_EQ(other.Caption(), "Strategy Un-defined");
}

TEST_F(StrategyMarquixTest, TakesWhatABagHasUnderTheReadNames) {
  MemoryPropertyBag bag;
  bag.Write("Control Type", 2);
  bag.Write("False", true);
  bag.Write("True", false);
  marquee_->ReadProperties(bag);
  EXPECT_EQ(marquee_->ControlType(), 2);
  EXPECT_TRUE(Mark().Visible());
  EXPECT_TRUE(Mark().Value());
  marquee_->ReadProperties(bag);
  EXPECT_FALSE(Mark().Value()) << "read under the name of the value that it had";
}

TEST_F(StrategyMarquixTest, AFailureEndsTheLoadOrTheSave) {
  const Texts names = {"Caption", "Control Type", "False"};
  for (std::size_t i = 0; i < names.size(); ++i) {
    LoggingBag bag;
    bag.failing = names[i];
    EXPECT_EQ(ErrorCodeOf([&] { marquee_->ReadProperties(bag); }), 1234);
    EXPECT_EQ(bag.log.size(), i + 1);
  }
  MemoryPropertyBag words;
  words.Write("Control Type", "playing");
  words.Write("Caption", "caption");
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->ReadProperties(words); }), 13);
  EXPECT_EQ(marquee_->Caption(), "caption");
  LoggingBag bag;
  bag.failing = "Caption";
  EXPECT_EQ(ErrorCodeOf([&] { marquee_->WriteProperties(bag); }), 1234);
}

TEST_F(StrategyMarquixTest, ABagMayDestroyIt) {
  for (const char* when : {"Caption", "Control Type", "False"}) {
    marquee_ = std::make_unique<StrategyMarquix>(site_);
    LoggingBag bag;
    bag.onAccess = [&](std::string_view name) {
      if (name == when) marquee_.reset();
    };
    marquee_->ReadProperties(bag);
    EXPECT_EQ(bag.log.back(), std::string("read ") + when);
  }
}

TEST_F(StrategyMarquixTest, AMarkThatIsHiddenWithTheFocusMayDestroyIt) {
  BareSite site;
  marquee_ = std::make_unique<StrategyMarquix>(site);
  marquee_->ControlType(2);
  site.Focused = &Mark();
  site.OnSetFocus = [&] {
    site.Focused = nullptr;
    marquee_.reset();
  };
  LoggingBag bag;
  bag.stored.Write("Control Type", 0);
  marquee_->ReadProperties(bag);
  EXPECT_EQ(marquee_, nullptr);
  EXPECT_EQ(bag.log.back(), "read Control Type");
}

TEST_F(StrategyMarquixTest, ItsElementsFillItWithoutOverlapping) {
  for (const auto& [width, height] : {std::pair(2415.0F, 735.0F), std::pair(5000.0F, 900.0F), std::pair(900.0F, 300.0F),
                                      std::pair(100.0F, 40.0F), std::pair(0.0F, 0.0F)}) {
    marquee_->Extender().Place(0, 0, width, height);
    const Label& banner = marquee_->Children.labelStrategyBanner;
    const Extender& list = List().Extender();
    EXPECT_EQ(banner.Left() + banner.Width(), Mark().Left());
    EXPECT_EQ(Mark().Left() + Mark().Width(), width);
    EXPECT_EQ(banner.Top() + banner.Height(), list.Top());
    EXPECT_EQ(Mark().Height(), banner.Height());
    EXPECT_EQ(list.Top() + list.Height(), height);
    EXPECT_EQ(list.Width(), width);
    EXPECT_EQ(Box().Width(), width);
    EXPECT_GE(list.Height(), height / 2);
  }
}

}  // namespace
}  // namespace tactix::tests
