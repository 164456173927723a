#include "tactix/decision/AdviceButton.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class AdviceButtonTest : public testing::Test {
 protected:
  AdviceButtonTest() {
    button_->InitProperties();
    recorder_.Watch(button_->Events.All());
  }
  std::string Checked() const {
    std::string checked;
    for (const MenuEntry& entry : children_.mnuButtonBlink) checked += entry.Checked() ? 'x' : '-';
    return checked;
  }
  void ChooseBlink(std::size_t index) {
    site_.ScriptMenu([this, index](Menu&) { children_.mnuButtonBlink[index].Choose(); });
    children_.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
  }

  HeadlessSite site_;
  std::unique_ptr<AdviceButton> button_ = std::make_unique<AdviceButton>(site_);
  AdviceButton::ChildWidgets& children_ = button_->Children;
  EventRecorder recorder_;
};

TEST_F(AdviceButtonTest, NumbersAndNamesItsEvents) {
  Texts events;
  const auto note = [&](auto&... each) {
    (events.push_back(std::to_string(each.Number()) + " " + std::string(each.Name())), ...);
  };
  std::apply(note, button_->Events.All());
  EXPECT_EQ(events, (Texts{"1 Click", "2 AdviceRecommendation", "3 AdviceStrategySelected",
                           "4 StrategyListBoxVisibilityChanged"}));
}

TEST_F(AdviceButtonTest, HasItsDesign) {
  EXPECT_EQ(button_->Caption(), "&Ask Kelvo for Advice");
  EXPECT_EQ(children_.cmdAdviceButton.Font().Name, "Comic Sans MS");
  EXPECT_EQ(children_.cmdAdviceButton.Name(), "cmdAdviceButton");
  EXPECT_EQ(children_.StrategyListBox.Extender().Name(), "StrategyListBox");
  EXPECT_EQ(children_.StrategyListBox.Text(), "Select a Strategy");
  EXPECT_FALSE(children_.StrategyListBox.Extender().Visible());
  EXPECT_FALSE(button_->DEFAULT());
  EXPECT_FALSE(button_->Enabled());
  EXPECT_TRUE(button_->Extender().Enabled());
  EXPECT_EQ(button_->WhichStrategyToUse(), 0);
  EXPECT_FALSE(children_.BlinkTimer.Enabled());
}

TEST_F(AdviceButtonTest, HasItsMenu) {
  const auto captions = [](const MenuEntry& menu) {
    Texts texts;
    for (const MenuEntry* entry : menu.Entries()) {
      texts.push_back(entry->Caption() + " " + std::to_string(entry->Index()));
    }
    return texts;
  };
  EXPECT_EQ(children_.mnuAdviceOptions.Caption(), "Advice &Options");
  EXPECT_EQ(captions(children_.mnuAdviceOptions), (Texts{"&Blink Advice Button 0", "- 0", "&Select Strategy 0"}));
  EXPECT_EQ(captions(children_.mnuBlinkAdviceButton),
            (Texts{"&Never 0", "- 1", "&Every Time 2", "- 3", "1st &Time this Hand 4"}));
  EXPECT_EQ(Checked(), "x----");
}

TEST_F(AdviceButtonTest, ABlinkModeIsTheOnlyOneChecked) {
  const struct {
    std::size_t index;
    const char* checked;
  } rows[] = {{2, "--x--"}, {2, "--x--"}, {4, "----x"}, {1, "----x"}, {3, "----x"}, {0, "x----"}, {0, "x----"}};
  for (const auto& row : rows) {
    ChooseBlink(row.index);
    EXPECT_EQ(Checked(), row.checked) << "after choosing " << row.index;
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(AdviceButtonTest, OnlyTheRightMouseButtonOpensTheMenuAtTheMouse) {
  button_->Extender().Place(100, 200, 3000, 900);
  for (std::int16_t button = 0; button < 8; ++button) {
    site_.ForgetRecords();
    children_.cmdAdviceButton.MouseDown({button, 7, 30, 40});
    const bool opens = button == 2 || button == 3 || button == 6 || button == 7;
    ASSERT_EQ(site_.PopUps().size(), opens ? 1U : 0U) << button;
    if (!opens) continue;
    EXPECT_EQ(site_.PopUps()[0].caption, "Advice &Options");
    EXPECT_EQ(site_.PopUps()[0].x, children_.cmdAdviceButton.Left() + 30);
    EXPECT_EQ(site_.PopUps()[0].y, children_.cmdAdviceButton.Top() + 40);
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(AdviceButtonTest, BlinksWhenItsModeSaysSo) {
  const struct {
    std::size_t mode;
    bool blinks;
  } rows[] = {{0, false}, {2, true}, {4, false}, {2, true}};
  for (const auto& row : rows) {
    ChooseBlink(row.mode);
    children_.cmdAdviceButton.DEFAULT(false);
    const std::int64_t before = site_.Now();
    button_->BlinkIfNecessary();
    EXPECT_EQ(site_.Now() - before, row.blinks ? 1600 : 0) << row.mode;
    EXPECT_EQ(button_->DEFAULT(), row.blinks);
    button_->GotFocus();
    EXPECT_EQ(site_.Now() - before, row.blinks ? 3200 : 0) << row.mode;
  }
}

TEST_F(AdviceButtonTest, AClickThatBringsTheFocusBlinksFirst) {
  ChooseBlink(2);
  children_.cmdAdviceButton.Click();
  EXPECT_EQ(site_.Now(), 1600);
  EXPECT_EQ(recorder_.Take(), Texts{"Click#1"});
}

TEST_F(AdviceButtonTest, EnabledIsTheDefaultFlag) {
  button_->Enabled(true);
  EXPECT_TRUE(button_->DEFAULT());
  EXPECT_TRUE(children_.cmdAdviceButton.DEFAULT());
  button_->DEFAULT(false);
  EXPECT_FALSE(button_->Enabled());
  button_->DEFAULT(true);
  button_->Enabled(false);
  EXPECT_FALSE(button_->DEFAULT());
  EXPECT_TRUE(children_.cmdAdviceButton.Enabled());
  EXPECT_TRUE(button_->Extender().Enabled());
}

TEST_F(AdviceButtonTest, StoresWhatTheHostStores) {
  button_->WhichStrategyToUse(-7);
  EXPECT_EQ(button_->WhichStrategyToUse(), -7);
  button_->Caption("&Help");
  EXPECT_EQ(button_->Caption(), "&Help");
  EXPECT_EQ(children_.cmdAdviceButton.Caption(), "&Help");
  EXPECT_EQ(site_.Changes(), Texts{});
}

TEST_F(AdviceButtonTest, HandsTheStrategiesToItsList) {
  const ObjectRef strategies = std::make_shared<FakeCollection>(8);
  EXPECT_EQ(button_->AdviceStrategyList(strategies), strategies);
  EXPECT_EQ(children_.StrategyListBox.StrategyCount(), 8);
  EXPECT_EQ(strategies.use_count(), 2);
  button_->Terminated();
  EXPECT_EQ(strategies.use_count(), 1);
  EXPECT_EQ(ErrorCodeOf([&] { button_->AdviceStrategyList(nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([&] { button_->AdviceStrategyList(std::make_shared<FakeCollection>(40000)); }), 6);
}

TEST_F(AdviceButtonTest, TheStrategiesMayDestroyTheButton) {
  const auto strategies = std::make_shared<FakeCollection>(8);
  strategies->OnCount = [&] { button_.reset(); };
  EXPECT_EQ(button_->AdviceStrategyList(strategies), strategies);
  EXPECT_EQ(button_, nullptr);
}

TEST_F(AdviceButtonTest, BothElementsTakeTheControlsWidth) {
  for (const float width : {5000.0F, 100.0F, 0.0F}) {
    button_->Extender().Width(width);
    EXPECT_EQ(children_.cmdAdviceButton.Width(), width);
    EXPECT_EQ(children_.StrategyListBox.Extender().Width(), width);
    EXPECT_EQ(children_.StrategyListBox.Children.StrategyListBox.Width(), width);
  }
}

TEST_F(AdviceButtonTest, TheOpenListStandsBelowTheButton) {
  children_.StrategyListBox.AddItem("a");
  site_.ScriptMenu([this](Menu&) { children_.mnuSelectStrategy.Choose(); });
  children_.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
  const Extender& list = children_.StrategyListBox.Extender();
  for (const auto& [height, listHeight] :
       {std::pair(2000.0F, 390.0F), std::pair(840.0F, 390.0F), std::pair(300.0F, 150.0F)}) {
    button_->Extender().Height(height);
    EXPECT_EQ(list.Height(), listHeight);
    EXPECT_EQ(list.Top() + list.Height(), height);
    EXPECT_EQ(children_.cmdAdviceButton.Top() + children_.cmdAdviceButton.Height(), list.Top());
  }
  children_.StrategyListBox.Children.StrategyListBox.PickRow(0);
  EXPECT_EQ(children_.cmdAdviceButton.Height(), 300) << "the closed list leaves all to the button";
}

class AdviceButtonListTest : public AdviceButtonTest {
 protected:
  AdviceButtonListTest() {
    StrategyListData::UseCatalogue(nullptr);
    StrategyListData::CreateCatalogueWith(nullptr);
  }

  void SelectStrategy() {
    site_.ScriptMenu([this](Menu&) { children_.mnuSelectStrategy.Choose(); });
    children_.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
  }
  Texts Rows() const {
    const ListBox& list = children_.StrategyListBox.Children.StrategyListBox;
    Texts rows;
    for (std::int32_t row = 0; row < list.ListCount(); ++row) rows.push_back(list.List(row));
    return rows;
  }
};

TEST_F(AdviceButtonListTest, FillsItsListWhenItIsFirstOpened) {
  const InstalledCatalogue catalogue;
  catalogue->Describe(2);
  EXPECT_EQ(Rows(), Texts{});
  SelectStrategy();
  const Texts filled = Rows();
  EXPECT_FALSE(filled.empty());
  const std::size_t asked = catalogue->Log.size();
  SelectStrategy();
  EXPECT_EQ(Rows(), filled);
  EXPECT_EQ(catalogue->Log.size(), asked) << "the catalogue is not asked again";
  EXPECT_EQ(recorder_.Take(),
            (Texts{"StrategyListBoxVisibilityChanged#4(true)", "StrategyListBoxVisibilityChanged#4(true)"}));
}

TEST_F(AdviceButtonListTest, LeavesTheRowsThatTheHostHasAdded) {
  const InstalledCatalogue catalogue;
  catalogue->Describe(2);
  children_.StrategyListBox.AddItem("mine");
  SelectStrategy();
  EXPECT_EQ(Rows(), Texts{"mine"});
}

TEST_F(AdviceButtonListTest, WithoutACatalogueItOpensEmpty) {
  SelectStrategy();
  EXPECT_EQ(Rows(), Texts{});
  EXPECT_TRUE(children_.StrategyListBox.Extender().Visible());
  EXPECT_EQ(recorder_.Take(), Texts{"StrategyListBoxVisibilityChanged#4(true)"});
  EXPECT_TRUE(site_.Errors().empty());
}

/// A call of the catalogue that fails while the list is filled, and the rows that it has by then.
struct BrokenFillRow {
  const char* name;
  const char* call;
  std::int32_t code;
  Texts rows;
};

class AdviceButtonBrokenFillTest : public AdviceButtonListTest, public testing::WithParamInterface<BrokenFillRow> {
 protected:
  std::vector<std::int32_t> TakeErrors() {
    std::vector<std::int32_t> codes;
    for (const Error& error : site_.Errors()) codes.push_back(error.Code());
    site_.ForgetRecords();
    return codes;
  }
};

TEST_P(AdviceButtonBrokenFillTest, TheListOpensAllTheSameAndIsFilledAtTheNextOpening) {
  const auto& [name, call, code, rows] = GetParam();
  const std::vector<std::int32_t> unhandled =
      code == 91 ? std::vector<std::int32_t>{} : std::vector<std::int32_t>{code};
  const InstalledCatalogue catalogue;
  catalogue->Describe(2);
  bool shownWhenRaised = false;
  button_->Events.StrategyListBoxVisibilityChanged.Connect(
      [&](bool) { shownWhenRaised = children_.StrategyListBox.Extender().Visible(); });
  catalogue->OnCall = [&](const std::string& made) {
    if (made == GetParam().call) throw Error(GetParam().code);
  };
  for (int opening = 1; opening <= 2; ++opening) {
    shownWhenRaised = false;
    SelectStrategy();
    EXPECT_EQ(TakeErrors(), unhandled);
    EXPECT_TRUE(children_.StrategyListBox.Extender().Visible());
    EXPECT_TRUE(shownWhenRaised);
    EXPECT_EQ(recorder_.Take(), Texts{"StrategyListBoxVisibilityChanged#4(true)"});
    EXPECT_EQ(Rows(), rows) << "at opening " << opening;
  }
  catalogue->OnCall = nullptr;
  SelectStrategy();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0", "Strategy 1", "Strategy 2"}));
  const std::size_t asked = catalogue->Log.size();
  SelectStrategy();
  EXPECT_EQ(catalogue->Log.size(), asked) << "a whole fill is not made again";
  EXPECT_EQ(TakeErrors(), std::vector<std::int32_t>{});
}

INSTANTIATE_TEST_SUITE_P(Rows, AdviceButtonBrokenFillTest,
                         testing::Values(BrokenFillRow{"Range", "Range", 4711, {}},
                                         BrokenFillRow{"FirstRow", "Playing -1", 13, {}},
                                         BrokenFillRow{"LaterRow", "Playing 1", 4711, {"Empty Seat", "Strategy 0"}},
                                         BrokenFillRow{"NotSetAtTheRange", "Range", 91, {}},
                                         BrokenFillRow{"NotSetLater", "Playing 1", 91, {"Empty Seat", "Strategy 0"}}),
                         RowName());

TEST_F(AdviceButtonListTest, AfterABrokenFillTheHostsRowsGiveWay) {
  const InstalledCatalogue catalogue;
  catalogue->Describe(0);
  catalogue->OnCall = [](const std::string&) { throw Error(4711); };
  SelectStrategy();
  children_.StrategyListBox.AddItem("mine");
  catalogue->OnCall = nullptr;
  SelectStrategy();
  EXPECT_EQ(Rows(), (Texts{"Empty Seat", "Strategy 0"}));
}

TEST_F(AdviceButtonListTest, WithoutACatalogueTheHostsRowsStay) {
  SelectStrategy();
  children_.StrategyListBox.AddItem("mine");
  const InstalledCatalogue catalogue;
  catalogue->Describe(0);
  SelectStrategy();
  EXPECT_EQ(Rows(), Texts{"mine"});
}

TEST_F(AdviceButtonListTest, WhatIsNoErrorIsReportedAsOneAndTheListOpens) {
  const InstalledCatalogue catalogue;
  catalogue->OnCall = [](const std::string&) { throw std::runtime_error("the file is locked"); };
  SelectStrategy();
  ASSERT_EQ(site_.Errors().size(), 1U);
  EXPECT_EQ(site_.Errors()[0].Description(), "the file is locked");
  EXPECT_EQ(recorder_.Take(), Texts{"StrategyListBoxVisibilityChanged#4(true)"});
}

TEST_F(AdviceButtonListTest, ACatalogueMayDestroyTheButtonAndFail) {
  for (const std::int32_t code : {0, 91, 4711}) {
    site_.ForgetRecords();
    button_ = std::make_unique<AdviceButton>(site_);
    bool opened = false;
    button_->Events.StrategyListBoxVisibilityChanged.Connect([&](bool) { opened = true; });
    const InstalledCatalogue catalogue;
    catalogue->OnCall = [&](const std::string&) {
      button_.reset();
      if (code != 0) throw Error(code);
    };
    site_.ScriptMenu([this](Menu&) { button_->Children.mnuSelectStrategy.Choose(); });
    button_->Children.cmdAdviceButton.MouseDown({RightButton, 0, 0, 0});
    EXPECT_EQ(button_, nullptr);
    EXPECT_FALSE(opened);
    EXPECT_EQ(site_.Errors().size(), code == 4711 ? 1U : 0U) << code;
  }
}

TEST_F(AdviceButtonListTest, AHandlerMayDestroyTheButtonWhoseFillBrokeOff) {
  const InstalledCatalogue catalogue;
  catalogue->OnCall = [](const std::string&) { throw Error(4711); };
  button_->Events.StrategyListBoxVisibilityChanged.Connect([this](bool) { button_.reset(); });
  SelectStrategy();
  EXPECT_EQ(button_, nullptr);
  ASSERT_EQ(site_.Errors().size(), 1U);
  EXPECT_EQ(site_.Errors()[0].Code(), 4711);
}

TEST_F(AdviceButtonTest, KeepsTheListsNoticesToItself) {
  children_.StrategyListBox.Text("x");
  EXPECT_EQ(site_.Changes(), Texts{});
}

TEST_F(AdviceButtonTest, AHostPreselectsQuietly) {
  InstalledCatalogue catalogue;
  catalogue->Playing = {{-1, "note,seat,False True"}, {0, "note,zero,False True"}, {1, "note,one,False True"}};
  catalogue->Range.HighestPlayingStrategy = 1;
  button_->PreselectStrategy(1);
  EXPECT_EQ(button_->InnerList().ListIndex(), 1) << "filled first, as it was empty";
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(ErrorCodeOf([&] { return button_->PreselectStrategy(2), 0; }), 380);
  EXPECT_EQ(button_->InnerList().ListIndex(), 1);
  // The player's own choice is reported as ever.
  button_->InnerList().Extender().Visible(true);
  children_.StrategyListBox.Children.StrategyListBox.PickRow(1);
  EXPECT_EQ(recorder_.Take(), Texts{"AdviceStrategySelected#3(0)"});
}

TEST_F(AdviceButtonTest, AHostRefillsTheListOfACatalogueThatHasChanged) {
  EXPECT_EQ(ErrorCodeOf([&] { return button_->RefillStrategyList(), 0; }), 91);
  InstalledCatalogue catalogue;
  catalogue->Playing = {{-1, "note,seat,False True"}};
  catalogue->Range.HighestPlayingStrategy = -1;
  button_->RefillStrategyList();
  const ListBox& box = button_->InnerList().Children.StrategyListBox;
  EXPECT_EQ(box.ListCount(), 1);
  catalogue->Playing[0] = "note,zero,False True";
  catalogue->Range.HighestPlayingStrategy = 0;
  button_->RefillStrategyList();
  EXPECT_EQ(box.ListCount(), 2);
}

}  // namespace
}  // namespace tactix::tests
