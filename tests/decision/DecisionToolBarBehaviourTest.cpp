// A player at the two decision toolbars.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/decision/DecisionBarAtWindow.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

struct PlayRow {
  const char* key;
  const char* event;
};
constexpr PlayRow PlayRows[] = {
    {"Hit", "HitButtonWasPressed#1"},
    {"Stand", "StandButtonWasPressed#2"},
    {"Split", "SplitButtonWasPressed#3"},
    {"Double", "DoubleButtonWasPressed#4"},
    {"Surrender", "SurrenderButtonWasPressed#7"},
    {"ClumpStatistics", "StatsButtonWasPressed#5"},
};

struct PredictionRow {
  const char* key;
  PredictionRecord record;
};
constexpr PredictionRow PredictionRows[] = {
    {"HitcardLow", {1, 0, 0, 0}},     {"HitcardMid", {2, 0, 0, 0}},          {"HitcardHigh", {3, 0, 0, 0}},
    {"HitcardUnknown", {4, 0, 0, 0}}, {"HolecardLow", {0, 1, 0, 0}},         {"HolecardMid", {0, 2, 0, 0}},
    {"HolecardHigh", {0, 3, 0, 0}},   {"HolecardUnknown", {0, 4, 0, 0}},     {"TensRatioLow", {0, 0, 1, 0}},
    {"TensRatioHigh", {0, 0, 3, 0}},  {"DealerStrengthWeak", {0, 0, 0, -1}}, {"DealerStrengthStrong", {0, 0, 0, 1}},
};

template <class Bar>
class DecisionToolBarBehaviourTest : public DecisionBarAtWindow<Bar> {
 protected:
  /// Clicks, or presses by key, every play; what they report.
  Texts UseThePlays(bool byKey) {
    for (const PlayRow& row : PlayRows) Use(row.key, byKey);
    return this->recorder_.Take();
  }
  void Use(std::string_view key, bool byKey) { byKey ? this->robot_->PressByKey(this->Button(key)) : this->Click(key); }
  static Texts AllPlayEvents() {
    Texts events;
    for (const PlayRow& row : PlayRows) events.emplace_back(row.event);
    return events;
  }
};
TYPED_TEST_SUITE(DecisionToolBarBehaviourTest, BothDecisionBars);

TYPED_TEST(DecisionToolBarBehaviourTest, ShowsItsButtons) {
  for (const auto& button : this->Strip().Buttons()) {
    if (button->Style() == ToolButtonStyle::Separator) continue;
    EXPECT_TRUE(this->robot_->SeesShown(*button)) << button->Key();
    EXPECT_TRUE(this->robot_->SeesEnabled(*button)) << button->Key();
    EXPECT_EQ(this->robot_->SeesText(*button), button->Caption()) << button->Key();
  }
  EXPECT_EQ(this->LooksPressed(), Texts{});
}

TYPED_TEST(DecisionToolBarBehaviourTest, EveryPlayReportsByMouseAndByKey) {
  for (const bool byKey : {false, true}) {
    EXPECT_EQ(this->UseThePlays(byKey), this->AllPlayEvents());
    EXPECT_EQ(this->LooksPressed(), Texts{}) << "a play button does not stay pressed";
  }
  EXPECT_EQ(RecordOf(*this->bar_), PredictionRecord{});
}

TYPED_TEST(DecisionToolBarBehaviourTest, EveryPredictionStaysPressedAndReportsNothing) {
  for (const bool byKey : {false, true}) {
    for (const PredictionRow& row : PredictionRows) {
      this->bar_->ResetYourResponseData();
      for (const char* unknown : {"HitcardUnknown", "HolecardUnknown"}) this->Button(unknown).Value(false);
      for (int time = 0; time < 2; ++time) {
        this->Use(row.key, byKey);
        EXPECT_EQ(this->LooksPressed(), Texts{row.key});
        EXPECT_EQ(RecordOf(*this->bar_), row.record) << row.key;
      }
    }
  }
  EXPECT_EQ(this->recorder_.Take(), Texts{});
}

TYPED_TEST(DecisionToolBarBehaviourTest, EachGroupHasOnePressedButton) {
  const struct {
    const char* click;
    Texts pressed;
    PredictionRecord record;
  } rows[] = {
      {"HitcardLow", {"HitcardLow"}, {1, 0, 0, 0}},
      {"HitcardUnknown", {"HitcardUnknown"}, {4, 0, 0, 0}},
      {"HolecardLow", {"HitcardUnknown", "HolecardLow"}, {4, 1, 0, 0}},
      {"HitcardMid", {"HitcardMid", "HolecardLow"}, {2, 1, 0, 0}},
      {"TensRatioHigh", {"HitcardMid", "HolecardLow", "TensRatioHigh"}, {2, 1, 3, 0}},
      {"DealerStrengthWeak", {"HitcardMid", "HolecardLow", "TensRatioHigh", "DealerStrengthWeak"}, {2, 1, 3, -1}},
      {"TensRatioLow", {"HitcardMid", "HolecardLow", "TensRatioLow", "DealerStrengthWeak"}, {2, 1, 1, -1}},
      {"DealerStrengthStrong", {"HitcardMid", "HolecardLow", "TensRatioLow", "DealerStrengthStrong"}, {2, 1, 1, 1}},
      {"Stand", {"HitcardMid", "HolecardLow", "TensRatioLow", "DealerStrengthStrong"}, {2, 1, 1, 1}},
  };
  for (const auto& row : rows) {
    this->Click(row.click);
    EXPECT_EQ(this->LooksPressed(), row.pressed) << "after " << row.click;
    EXPECT_EQ(RecordOf(*this->bar_), row.record) << "after " << row.click;
  }
}

TYPED_TEST(DecisionToolBarBehaviourTest, ResettingIsSeenAndTheUnknownButtonsStayPressed) {
  for (const char* key : {"HitcardUnknown", "HolecardHigh", "TensRatioLow", "DealerStrengthStrong"}) this->Click(key);
  this->bar_->ResetYourResponseData();
  EXPECT_EQ(this->LooksPressed(), Texts{"HitcardUnknown"});
  this->Click("HitcardHigh");
  EXPECT_EQ(this->LooksPressed(), Texts{"HitcardHigh"});
  EXPECT_EQ(RecordOf(*this->bar_), (PredictionRecord{3, 0, 0, 0}));
  this->bar_->GetReadyForADecision();
  EXPECT_EQ(this->LooksPressed(), Texts{"HitcardHigh"});
  this->bar_->ResetPredictionButtons(true);
  this->bar_->GetReadyForADecision();
  EXPECT_EQ(this->LooksPressed(), Texts{});
}

// What cannot be reached.

TYPED_TEST(DecisionToolBarBehaviourTest, AHiddenGroupIsNotSeenAndDoesNotClick) {
  this->Click("HitcardLow");
  this->bar_->HitcardButtonsVisibility(ButtonsHidden);
  for (const char* key : {"HitcardLow", "HitcardMid", "HitcardHigh", "HitcardUnknown"}) {
    EXPECT_FALSE(this->robot_->SeesShown(this->Button(key))) << key;
    this->Click(key);
    this->robot_->PressByKey(this->Button(key));
  }
  EXPECT_TRUE(this->robot_->SeesShown(this->Button("HolecardLow")));
  EXPECT_EQ(RecordOf(*this->bar_), (PredictionRecord{1, 0, 0, 0}));
  this->bar_->HitcardButtonsVisibility(5);
  EXPECT_TRUE(this->robot_->SeesShown(this->Button("HitcardLow")));
  EXPECT_EQ(this->LooksPressed(), Texts{"HitcardLow"}) << "as before";
  this->Click("HitcardMid");
  EXPECT_EQ(RecordOf(*this->bar_), (PredictionRecord{2, 0, 0, 0}));
}

TYPED_TEST(DecisionToolBarBehaviourTest, APlayThatIsNotLegalLooksDisabledAndDoesNotClick) {
  DecisionBlock block;
  block.ManualPlayerRestrictions(true);
  block.SurrenderIsValid(true);
  this->bar_->SetupTheDecisionBAR(block);
  this->recorder_.Forget();
  for (const bool byKey : {false, true}) {
    EXPECT_EQ(this->UseThePlays(byKey), (Texts{"HitButtonWasPressed#1", "StandButtonWasPressed#2",
                                               "SurrenderButtonWasPressed#7", "StatsButtonWasPressed#5"}));
  }
  for (const char* key : {"Split", "Double"}) EXPECT_FALSE(this->robot_->SeesEnabled(this->Button(key))) << key;
  EXPECT_TRUE(this->robot_->SeesEnabled(this->Button("Surrender")));
  this->bar_->SetupTheDecisionBAR(DecisionBlock());
  this->recorder_.Forget();
  EXPECT_EQ(this->UseThePlays(false), this->AllPlayEvents());
}

TYPED_TEST(DecisionToolBarBehaviourTest, AHiddenOrDisabledControlDoesNotClick) {
  Widget* const widgets[] = {&this->bar_->Extender(), &this->Strip()};
  for (Widget* widget : widgets) {
    widget->Enabled(false);
    EXPECT_EQ(this->UseThePlays(false), Texts{});
    EXPECT_FALSE(this->robot_->SeesEnabled(this->Button("Hit")));
    widget->Enabled(true);
    widget->Visible(false);
    EXPECT_EQ(this->UseThePlays(false), Texts{});
    EXPECT_FALSE(this->robot_->SeesShown(this->Button("Hit")));
    widget->Visible(true);
    EXPECT_EQ(this->UseThePlays(false), this->AllPlayEvents());
  }
}

// The flash.

TYPED_TEST(DecisionToolBarBehaviourTest, TheAdvisedPlayIsSeenFlashing) {
  this->Advise(4);
  Texts seen;
  for (int at = FlashStep / 2; at < FlashDuration; at += FlashStep) {
    this->robot_->After(at, [&] { seen.push_back(this->robot_->SeesEnabled(this->Button("Double")) ? "on" : "off"); });
  }
  this->Click("Advice");
  EXPECT_EQ(seen, (Texts{"off", "on", "off", "on", "off", "on", "off", "on"}));
  EXPECT_TRUE(this->robot_->SeesEnabled(this->Button("Double")));
  EXPECT_EQ(this->recorder_.Take(), Texts{});
}

TYPED_TEST(DecisionToolBarBehaviourTest, TheAdviceAnswersToTheKeyboard) {
  this->Advise(2);
  bool wasOff = false;
  this->WhenOff("Stand", [&wasOff] { wasOff = true; });
  this->robot_->PressByKey(this->Button("Advice"));
  this->robot_->Wait(FlashDuration);
  EXPECT_TRUE(wasOff);
}

TYPED_TEST(DecisionToolBarBehaviourTest, ThePlayerMayActDuringAFlash) {
  this->Advise(1);
  this->WhenOff("Hit", [this] {
    for (const char* key : {"Hit", "Stand", "TensRatioLow"}) this->Click(key);
    this->WhenOn("Hit", [this] { this->Click("Hit"); });
  });
  this->Click("Advice");
  EXPECT_EQ(this->recorder_.Take(), (Texts{"StandButtonWasPressed#2", "HitButtonWasPressed#1"}));
  EXPECT_EQ(this->LooksPressed(), Texts{"TensRatioLow"});
}

TYPED_TEST(DecisionToolBarBehaviourTest, ASecondAdviceFlashesInsideTheFirst) {
  this->Advise(1);
  this->WhenOff("Hit", [this] {
    this->Click("Advice");
    this->recorder_.Note("inner ended");
  });
  this->Click("Advice");
  this->recorder_.Note("outer ended");
  EXPECT_EQ(this->recorder_.Take(), (Texts{"inner ended", "outer ended"}));
  EXPECT_TRUE(this->robot_->SeesEnabled(this->Button("Hit")));
}

TYPED_TEST(DecisionToolBarBehaviourTest, AnErrorOfAHandlerEndsAtTheSite) {
  this->bar_->Events.HitButtonWasPressed.Connect([] { throw Error(4711); });
  this->Click("Hit");
  ASSERT_EQ(this->robot_->Errors().size(), 1U);
  EXPECT_EQ(this->robot_->Errors()[0].Code(), 4711);
  this->Click("Stand");
  EXPECT_EQ(this->recorder_.Take(), (Texts{"HitButtonWasPressed#1", "StandButtonWasPressed#2"}));
}

}  // namespace
}  // namespace tactix::tests
