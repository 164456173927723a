// In what the two decision toolbars differ.

#include "tactix/decision/DecisionBAR2.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tactix/decision/DecisionBAR.h"
#include "tactix/platform/headless/HeadlessSite.h"

namespace tactix::tests {
namespace {

// What the first form lacks.
template <class Bar>
concept UnpressesTheHitCard = requires(Bar& bar) {
  bar.ResetTheHitcardPredictionButtons();
};
template <class Bar>
concept UnpressesTheHoleCard = requires(Bar& bar) {
  bar.ResetTheHoleCardPredictionButtons();
};
template <class Bar>
concept HasSettings = requires(Bar& bar) {
  bar.Children.menuDecisionBarSettings;
};
static_assert(UnpressesTheHitCard<DecisionBAR2> && !UnpressesTheHitCard<DecisionBAR>);
static_assert(UnpressesTheHoleCard<DecisionBAR2> && !UnpressesTheHoleCard<DecisionBAR>);
static_assert(HasSettings<DecisionBAR2> && !HasSettings<DecisionBAR>);

TEST(DecisionBAR2Test, TheNamesAndTipsDiffer) {
  HeadlessSite site;
  const DecisionBAR first(site);
  const DecisionBAR2 second(site);
  EXPECT_EQ(first.Children.DecisionBAR_ID.Caption(), "Decision BAR");
  EXPECT_EQ(second.Children.DecisionBAR_ID.Caption(), "Decision BAR-2");
  EXPECT_EQ(first.Children.DecisionToolBar.ToolTipText(), "Right-Click to bring up DecisionBAR Settings Menu");
  EXPECT_EQ(second.Children.DecisionToolBar.ToolTipText(), "");
}

TEST(DecisionBAR2Test, UnpressesOneGroupAndLeavesTheRecord) {
  HeadlessSite site;
  DecisionBAR2 bar(site);
  ToolBar& strip = bar.Children.DecisionToolBar;
  strip.Button("HitcardMid").Click();
  strip.Button("HolecardHigh").Click();
  bar.ResetTheHitcardPredictionButtons();
  EXPECT_FALSE(strip.Button("HitcardMid").Value());
  EXPECT_TRUE(strip.Button("HolecardHigh").Value());
  bar.ResetTheHoleCardPredictionButtons();
  EXPECT_FALSE(strip.Button("HolecardHigh").Value());
  EXPECT_EQ(bar.GiveMeYourResponseData().HitCardIs, DecisionBARHitcardPossibilities::DBHitcardIsMid);
  EXPECT_EQ(bar.GiveMeYourResponseData().HoleCardIs, DecisionBARHolecardPossibilities::DBHolecardIsHigh);
  strip.Button("HitcardUnknown").Click();
  strip.Button("HolecardUnknown").Click();
  bar.ResetTheHitcardPredictionButtons();
  bar.ResetTheHoleCardPredictionButtons();
  EXPECT_TRUE(strip.Button("HitcardUnknown").Value());
  EXPECT_TRUE(strip.Button("HolecardUnknown").Value());
}

TEST(DecisionBAR2Test, OnlyARightPressOpensTheSettings) {
  HeadlessSite site;
  DecisionBAR2 bar(site);
  DecisionBAR first(site);
  for (const std::int16_t button : {LeftButton, MiddleButton}) {
    bar.Extender().MouseDown({button, 0, 10, 20});
    bar.Children.DecisionToolBar.MouseDown({button, 0, 10, 20});
  }
  first.Extender().MouseDown({RightButton, 0, 10, 20});
  first.Children.DecisionToolBar.MouseDown({RightButton, 0, 10, 20});
  EXPECT_TRUE(site.PopUps().empty());
  bar.Children.DecisionToolBar.Top(300);
  bar.Extender().MouseDown({RightButton, 0, 10, 20});
  bar.Children.DecisionToolBar.MouseDown({RightButton, 0, 10, 20});
  ASSERT_EQ(site.PopUps().size(), 2U);
  EXPECT_EQ(site.PopUps()[0].caption, "&Decision Bar Settings");
  EXPECT_EQ(site.PopUps()[0].y, 20);
  EXPECT_EQ(site.PopUps()[1].x, 10);
  EXPECT_EQ(site.PopUps()[1].y, 320);
}

TEST(DecisionBAR2Test, TheSettingsHaveTheseEntries) {
  HeadlessSite site;
  DecisionBAR2 bar(site);
  std::vector<std::string> captions;
  for (const MenuEntry* entry : bar.Children.menuDecisionBarSettings.Entries()) {
    captions.push_back(entry->Caption());
    EXPECT_FALSE(entry->Checked()) << entry->Caption();
  }
  EXPECT_EQ(captions, (std::vector<std::string>{"H&ole-card Buttons Visible", "-", "H&it-card Buttons Visible", "-",
                                                "10's &Ratio ButtonsVisible", "-", "Strong &Hand Buttons Visible", "-",
                                                "&Stats Button Visible"}));
}

TEST(DecisionBAR2Test, ASettingChangesWhatIsSavedAndNothingElse) {
  HeadlessSite site;
  DecisionBAR2 bar(site);
  bar.PlugHitcardButtons(ButtonStatusPossibilities::ButtonsAreInvisible);
  bar.PlugHoleCardButtons(ButtonStatusPossibilities::ButtonsAreInvisible);
  struct Row {
    MenuEntry& entry;
    const char* saved;
  };
  const Row rows[] = {
      {bar.Children.menuHoleCardButtonsVisible, "HoleCardButtonsVisibility"},
      {bar.Children.menuHitCardButtonsVisible, "HitcardButtonsVisibility"},
      {bar.Children.menuTensRatioButtonsVisible, "TensRatioButtonsVisibility"},
      {bar.Children.menuStrongHandButtonsVisible, "DealerStrengthButtonsVisibility"},
  };
  for (const Row& row : rows) {
    for (const std::int32_t state : {-1, 0, -1}) {
      site.ForgetRecords();
      site.ScriptMenu([&row](Menu&) { row.entry.Choose(); });
      bar.Extender().MouseDown({RightButton, 0, 0, 0});
      EXPECT_EQ(row.entry.Checked(), state != 0) << row.saved;
      EXPECT_TRUE(site.Changes().empty()) << row.saved;
      EXPECT_FALSE(bar.Children.DecisionToolBar.Button("HitcardLow").Visible());
      EXPECT_FALSE(bar.Children.DecisionToolBar.Button("HolecardLow").Visible());
      MemoryPropertyBag bag;
      bar.WriteProperties(bag);
      EXPECT_EQ(bag.Read(row.saved), Variant(state)) << row.saved;
    }
  }
  site.ScriptMenu([&bar](Menu&) { bar.Children.menuStatsButtonVisible.Choose(); });
  bar.Extender().MouseDown({RightButton, 0, 0, 0});
  EXPECT_TRUE(bar.Children.menuStatsButtonVisible.Checked());
  MemoryPropertyBag bag;
  bar.WriteProperties(bag);
  EXPECT_EQ(bag.Read("StatusButtonVisibility"), Variant(0)) << "the status is saved as 0 whatever it is";
}

TEST(DecisionBAR2Test, EndingReleasesTheBlock) {
  HeadlessSite site;
  DecisionBAR first(site);
  DecisionBAR2 second(site);
  DecisionBlock block;
  block.HardTotal(12);
  first.HereIsTheDCB(block);
  second.HereIsTheDCB(block);
  first.Terminated();
  second.Terminated();
  EXPECT_EQ(first.DecodedDCB().HardTotal(), 12);
  EXPECT_EQ(second.DecodedDCB().HardTotal(), 0);
}

}  // namespace
}  // namespace tactix::tests
