#include "tactix/decision/HitStandLegend.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

struct Row {
  char letter;
  const char* letterCaption;
  const char* word;
  HitStandLegend::Option HitStandLegend::ChildWidgets::*option;
  const char* event;
};
using Widgets = HitStandLegend::ChildWidgets;
constexpr Row Rows[] = {
    {'H', "H -", "Hit", &Widgets::LegendOptionHit, "HitWasSelected#1"},
    {'S', "S -", "Stand", &Widgets::LegendOptionStand, "StandWasSelected#2"},
    {'P', "P -", "Split", &Widgets::LegendOptionSplit, "SplitWasSelected#3"},
    {'D', "D -", "Double", &Widgets::LegendOptionDouble, "DoubleWasSelected#4"},
    {'G', "G -", "Surrender", &Widgets::LegendOptionSurrender, "SurrenderWasSelected#5"},
};

class HitStandLegendTest : public testing::Test {
 protected:
  HitStandLegendTest() { recorder_.Watch(legend_.Events.All()); }

  HeadlessSite site_;
  HitStandLegend legend_{site_};
  EventRecorder recorder_;
};

TEST_F(HitStandLegendTest, ListsTheDecisionsWithTheirLetters) {
  EXPECT_EQ(legend_.Children.panelLegend.ToolTipText(), "Click Letters or Use Keyboard to make your Decisions");
  for (const Row& row : Rows) {
    const HitStandLegend::Option& option = legend_.Children.*row.option;
    EXPECT_EQ(option[0].Caption(), row.letterCaption);
    EXPECT_EQ(option[1].Caption(), row.word);
    for (const Label& label : option) EXPECT_EQ(label.Font().Name, "Comic Sans MS");
  }
}

TEST_F(HitStandLegendTest, AClickOnEitherLabelRaisesTheEventOnce) {
  for (const Row& row : Rows) {
    for (Label& label : legend_.Children.*row.option) {
      label.Click();
      EXPECT_EQ(recorder_.Take(), Texts{row.event});
    }
  }
}

TEST_F(HitStandLegendTest, LettersDecideWhateverShiftAndAltButNotWithCtrl) {
  legend_.Extender().SetFocus();
  for (const Row& row : Rows) {
    const std::int32_t lower = row.letter - 'A' + 'a';
    for (const std::int16_t shift : std::initializer_list<std::int16_t>{0, 1, 4, 5}) {
      for (const std::int32_t code : {std::int32_t{row.letter}, lower}) {
        EXPECT_TRUE(site_.PressKey({code, shift}));
        EXPECT_EQ(recorder_.Take(), Texts{row.event}) << code << " shift " << shift;
      }
    }
    for (const std::int16_t shift : std::initializer_list<std::int16_t>{2, 3, 6, 7})
      site_.PressKey({row.letter, shift});
    EXPECT_EQ(recorder_.Take(), Texts{}) << row.letter;
  }
  for (const std::int32_t code : {std::int32_t{'X'}, std::int32_t{'1'}, std::int32_t{FunctionKey1}}) {
    site_.PressKey({code, 0});
  }
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(HitStandLegendTest, ThePanelFillsTheControlAndTheLabelsStay) {
  const Label& word = legend_.Children.LegendOptionSurrender[1];
  const float left = word.Left();
  const float top = word.Top();
  legend_.Extender().Place(10, 20, 5000, 4000);
  const Panel& panel = legend_.Children.panelLegend;
  EXPECT_EQ(panel.Left(), 0);
  EXPECT_EQ(panel.Top(), 0);
  EXPECT_EQ(panel.Width(), 5000);
  EXPECT_EQ(panel.Height(), 4000);
  EXPECT_EQ(word.Left(), left);
  EXPECT_EQ(word.Top(), top);
}

TEST_F(HitStandLegendTest, SurvivesBeingDestroyedInItsHandlers) {
  for (const Row& row : Rows) {
    for (const bool byKey : {false, true}) {
      auto legend = std::make_unique<HitStandLegend>(site_);
      const auto destroy = [&legend] { legend.reset(); };
      std::apply([&](auto&... events) { (events.Connect(destroy), ...); }, legend->Events.All());
      if (byKey) {
        legend->Extender().SetFocus();
        site_.PressKey({row.letter, 0});
      } else {
        (legend->Children.*row.option)[1].Click();
      }
      EXPECT_EQ(legend, nullptr) << row.word;
    }
  }
}

}  // namespace
}  // namespace tactix::tests
