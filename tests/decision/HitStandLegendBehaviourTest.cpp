// A player at the legend.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "tactix/decision/HitStandLegend.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/Robot.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
using Widgets = HitStandLegend::ChildWidgets;

struct LegendRow {
  const char* name;
  char letter;
  HitStandLegend::Option Widgets::*option;
  const char* event;
};
constexpr LegendRow LegendRows[] = {
    {"Hit", 'H', &Widgets::LegendOptionHit, "HitWasSelected#1"},
    {"Stand", 'S', &Widgets::LegendOptionStand, "StandWasSelected#2"},
    {"Split", 'P', &Widgets::LegendOptionSplit, "SplitWasSelected#3"},
    {"Double", 'D', &Widgets::LegendOptionDouble, "DoubleWasSelected#4"},
    {"Surrender", 'G', &Widgets::LegendOptionSurrender, "SurrenderWasSelected#5"},
};

class HitStandLegendBehaviourTest : public testing::Test {
 protected:
  HitStandLegendBehaviourTest() { Begin(); }

  void Begin() {
    legend_.reset();
    robot_ = Robot::Make();
    legend_ = std::make_unique<HitStandLegend>(robot_->NewSite());
    legend_->InitProperties();
    recorder_.Forget();
    recorder_.Watch(legend_->Events.All());
    robot_->Show(*legend_);
  }
  Label& LabelOf(const LegendRow& row, std::size_t label) { return (legend_->Children.*row.option)[label]; }
  Texts Press(std::int32_t code, std::int16_t shift = 0) {
    robot_->PressKey(code, shift);
    return recorder_.Take();
  }
  Texts ClickAll() {
    for (const LegendRow& row : LegendRows) {
      for (const std::size_t label : {0U, 1U}) robot_->Click(LabelOf(row, label));
    }
    return recorder_.Take();
  }
  void Destroy(bool withWindow) {
    if (withWindow) {
      robot_->DestroyWindow([this] { legend_.reset(); });
    } else {
      legend_.reset();
    }
  }

  std::unique_ptr<Robot> robot_;
  std::unique_ptr<HitStandLegend> legend_;
  EventRecorder recorder_;
};

TEST_F(HitStandLegendBehaviourTest, ShowsLettersAndWords) {
  const char* const letters[] = {"H -", "S -", "P -", "D -", "G -"};
  for (std::size_t i = 0; i < std::size(LegendRows); ++i) {
    for (const std::size_t label : {0U, 1U}) EXPECT_TRUE(robot_->SeesShown(LabelOf(LegendRows[i], label)));
    EXPECT_EQ(robot_->SeesText(LabelOf(LegendRows[i], 0)), letters[i]);
    EXPECT_EQ(robot_->SeesText(LabelOf(LegendRows[i], 1)), LegendRows[i].name);
  }
}

TEST_F(HitStandLegendBehaviourTest, EitherLabelOfALineRaisesItsEventOnce) {
  for (const LegendRow& row : LegendRows) {
    for (const std::size_t label : {0U, 1U}) {
      robot_->Click(LabelOf(row, label));
      EXPECT_EQ(recorder_.Take(), Texts{row.event}) << row.name;
    }
  }
}

TEST_F(HitStandLegendBehaviourTest, LabelsThatCannotBeReachedDoNotClick) {
  Widget* const widgets[] = {&legend_->Extender(), &legend_->Children.panelLegend};
  for (Widget* widget : widgets) {
    widget->Enabled(false);
    EXPECT_EQ(ClickAll(), Texts{}) << widget->Name();
    widget->Enabled(true);
    widget->Visible(false);
    EXPECT_EQ(ClickAll(), Texts{}) << widget->Name();
    widget->Visible(true);
    EXPECT_EQ(ClickAll().size(), 10U) << widget->Name();
  }
  LabelOf(LegendRows[1], 0).Enabled(false);
  LabelOf(LegendRows[2], 1).Visible(false);
  EXPECT_EQ(ClickAll().size(), 8U);
}

TEST_F(HitStandLegendBehaviourTest, LettersDecideInEitherCaseAndWithShiftOrAlt) {
  Widget* const focusable[] = {&legend_->Extender(), &legend_->Children.panelLegend};
  for (Widget* focused : focusable) {
    focused->SetFocus();
    for (const LegendRow& row : LegendRows) {
      const std::int32_t lower = row.letter - 'A' + 'a';
      for (const std::int16_t shift : std::initializer_list<std::int16_t>{0, ShiftKey, AltKey, ShiftKey + AltKey}) {
        EXPECT_EQ(Press(row.letter, shift), Texts{row.event}) << row.name << " shift " << shift;
        EXPECT_EQ(Press(lower, shift), Texts{row.event}) << row.name << " shift " << shift;
      }
      for (const std::int16_t shift :
           std::initializer_list<std::int16_t>{CtrlKey, CtrlKey + ShiftKey, CtrlKey + AltKey}) {
        EXPECT_EQ(Press(row.letter, shift), Texts{}) << row.name << " shift " << shift;
      }
    }
  }
}

TEST_F(HitStandLegendBehaviourTest, OtherKeysDoNothing) {
  legend_->Extender().SetFocus();
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if (std::string("HSPDG").find(letter) != std::string::npos) continue;
    EXPECT_EQ(Press(letter), Texts{}) << letter;
  }
  for (const std::int32_t code : {std::int32_t{'1'}, std::int32_t{' '}, std::int32_t{ReturnKey},
                                  std::int32_t{EscapeKey}, std::int32_t{FunctionKey1}, FunctionKey1 + 3}) {
    EXPECT_EQ(Press(code), Texts{}) << code;
  }
}

TEST_F(HitStandLegendBehaviourTest, KeysNeedTheFocusOnAUsableLegend) {
  legend_->Extender().SetFocus();
  legend_->Extender().Enabled(false);
  EXPECT_EQ(Press('h'), Texts{});
  legend_->Extender().Enabled(true);
  legend_->Extender().SetFocus();
  EXPECT_EQ(Press('h'), Texts{"HitWasSelected#1"});
}

TEST_F(HitStandLegendBehaviourTest, AHandlerMayDestroyIt) {
  enum class By { LetterLabel, WordLabel, Key };
  for (const LegendRow& row : LegendRows) {
    for (const By by : {By::LetterLabel, By::WordLabel, By::Key}) {
      for (const bool withWindow : {false, true}) {
        Begin();
        const auto destroy = [this, withWindow] { Destroy(withWindow); };
        std::apply([&](auto&... each) { (each.Connect(destroy), ...); }, legend_->Events.All());
        if (by == By::Key) {
          legend_->Extender().SetFocus();
          robot_->PressKey(row.letter);
        } else {
          robot_->Click(LabelOf(row, by == By::LetterLabel ? 0 : 1));
        }
        EXPECT_EQ(legend_, nullptr) << row.name;
        robot_->Wait(20);
        EXPECT_EQ(recorder_.Take(), Texts{row.event});
        EXPECT_TRUE(robot_->Errors().empty());
      }
    }
  }
}

}  // namespace
}  // namespace tactix::tests
