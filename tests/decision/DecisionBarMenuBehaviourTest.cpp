// The settings menu of the decision toolbar, which its first form lacks.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/decision/DecisionBarAtWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Widgets = DecisionBAR2::ChildWidgets;

/// Where a user presses the mouse.
enum class Place { Surface, Strip, PlayButton, PredictionButton, DisabledButton };
constexpr Place Places[] = {Place::Surface, Place::Strip, Place::PlayButton, Place::PredictionButton,
                            Place::DisabledButton};

template <class Bar>
class DecisionBarMenuFixture : public DecisionBarAtWindow<Bar> {
 protected:
  void Press(Place place, std::int16_t button, std::int16_t shift = 0) {
    switch (place) {
      case Place::Surface:
        return this->robot_->MouseDown(this->bar_->Extender(), button, shift);
      case Place::Strip:
        return this->robot_->MouseDown(this->Strip(), button, shift);
      case Place::PlayButton:
        return this->robot_->MouseDown(this->Button("Stand"), button, shift);
      case Place::PredictionButton:
        return this->robot_->MouseDown(this->Button("TensRatioLow"), button, shift);
      case Place::DisabledButton:
        this->Button("Split").Enabled(false);
        return this->robot_->MouseDown(this->Button("Split"), button, shift);
    }
  }
};

using DecisionBARMenuBehaviourTest = DecisionBarMenuFixture<DecisionBAR>;
class DecisionBAR2MenuBehaviourTest : public DecisionBarMenuFixture<DecisionBAR2> {
 protected:
  void Choose(MenuEntry& entry) {
    robot_->OnNextMenu([this, &entry](Menu& menu) { robot_->Choose(menu, entry); });
    Press(Place::Strip, RightButton);
  }
};

TEST_F(DecisionBARMenuBehaviourTest, ItHasNone) {
  int opened = 0;
  robot_->OnNextMenu([&opened](Menu&) { ++opened; });
  for (const Place place : Places) Press(place, RightButton);
  EXPECT_EQ(opened, 0);
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_EQ(Strip().ToolTipText(), "Right-Click to bring up DecisionBAR Settings Menu");
}

TEST_F(DecisionBAR2MenuBehaviourTest, ARightPressOpensItEverywhere) {
  for (const Place place : Places) {
    for (const std::int16_t shift : std::initializer_list<std::int16_t>{0, ShiftKey, CtrlKey}) {
      Texts opened;
      robot_->OnNextMenu([&opened](Menu& menu) { opened.push_back(menu.Caption()); });
      Press(place, RightButton, shift);
      EXPECT_EQ(opened, Texts{"&Decision Bar Settings"}) << static_cast<int>(place);
    }
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
  EXPECT_FALSE(bar_->Children.menuDecisionBarSettings.IsOpen());
}

TEST_F(DecisionBAR2MenuBehaviourTest, OtherPressesDoNotOpenIt) {
  int opened = 0;
  robot_->OnNextMenu([&opened](Menu&) { ++opened; });
  for (const Place place : {Place::Surface, Place::Strip, Place::PlayButton}) {
    Press(place, LeftButton);
    Press(place, MiddleButton);
  }
  EXPECT_EQ(opened, 0);
}

TEST_F(DecisionBAR2MenuBehaviourTest, AnEntryTurnsItsMarkOverAndShowsNothing) {
  struct Row {
    MenuEntry Widgets::*entry;
    Coded<ButtonStatusPossibilities> (DecisionToolBarControl::*stored)() const;
    const char* key;
  };
  using Base = DecisionToolBarControl;
  constexpr Row Rows[] = {
      {&Widgets::menuHoleCardButtonsVisible, &Base::HolecardButtonsVisibility, "HolecardLow"},
      {&Widgets::menuHitCardButtonsVisible, &Base::HitcardButtonsVisibility, "HitcardHigh"},
      {&Widgets::menuTensRatioButtonsVisible, &Base::TensRatioButtonVisibility, "TensRatioLow"},
      {&Widgets::menuStrongHandButtonsVisible, &Base::DealerStrengthButtonsVisibility, "DealerStrengthStrong"},
      {&Widgets::menuStatsButtonVisible, nullptr, "ClumpStatistics"},
  };
  for (const Row& row : Rows) {
    MenuEntry& entry = bar_->Children.*row.entry;
    for (const bool checked : {true, false, true}) {
      Choose(entry);
      robot_->OnNextMenu([&](Menu& menu) {
        for (const Row& other : Rows) {
          const bool isChecked = &other < &row || (&other == &row && checked);
          EXPECT_EQ(robot_->SeesChecked(menu, bar_->Children.*other.entry), isChecked) << other.key;
        }
      });
      Press(Place::Surface, RightButton);
      EXPECT_TRUE(robot_->SeesShown(Button(row.key))) << "buttons stay as they are";
      if (row.stored) {
        EXPECT_EQ((bar_.get()->*row.stored)(), checked ? -1 : 0) << row.key;
      }
    }
  }
  EXPECT_EQ(robot_->Changes(), Texts{});
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(DecisionBAR2MenuBehaviourTest, AMarkAndWhatIsShownMayDisagree) {
  bar_->HitcardButtonsVisibility(ButtonsHidden);
  Choose(bar_->Children.menuHitCardButtonsVisible);
  EXPECT_EQ(bar_->HitcardButtonsVisibility(), ButtonsShown);
  EXPECT_FALSE(robot_->SeesShown(Button("HitcardLow")));
  bar_->HitcardButtonsVisibility(ButtonsShown);
  bar_->HitcardButtonsVisibility(ButtonsHidden);
  robot_->OnNextMenu(
      [this](Menu& menu) { EXPECT_TRUE(robot_->SeesChecked(menu, bar_->Children.menuHitCardButtonsVisible)); });
  Press(Place::Strip, RightButton);
}

TEST_F(DecisionBAR2MenuBehaviourTest, TheDealersSettingShowsWithTheNextLookAtTheStatus) {
  bar_->DealerStrengthButtonsVisibility(ButtonsHidden);
  Choose(bar_->Children.menuStrongHandButtonsVisible);
  EXPECT_FALSE(robot_->SeesShown(Button("DealerStrengthWeak")));
  EXPECT_EQ(bar_->StatusButtonButtonVisibility(), 0);
  EXPECT_TRUE(robot_->SeesShown(Button("DealerStrengthWeak")));
  EXPECT_EQ(robot_->Changes(), (Texts{"DealerStrengthButtonsVisibility", "DealerStrengthButtonsVisibility"}));
}

TEST_F(DecisionBAR2MenuBehaviourTest, SeparatorsCannotBeChosen) {
  Choose(bar_->Children.menuSEP1);
  EXPECT_FALSE(bar_->Children.menuSEP1.Checked());
  EXPECT_EQ(bar_->HolecardButtonsVisibility(), 0);
  EXPECT_EQ(bar_->HitcardButtonsVisibility(), 0);
}

TEST_F(DecisionBAR2MenuBehaviourTest, OpensDuringAFlash) {
  Advise(1);
  WhenOff("Hit", [this] { Choose(bar_->Children.menuTensRatioButtonsVisible); });
  Click("Advice");
  EXPECT_EQ(bar_->TensRatioButtonVisibility(), ButtonsShown);
  EXPECT_TRUE(Button("Hit").Enabled());
}

}  // namespace
}  // namespace tactix::tests
