// What both decision toolbars do, without a user at a window.

#include "tactix/decision/DecisionToolBar.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tactix/decision/DecisionBAR.h"
#include "tactix/decision/DecisionBAR2.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/support/EventRecorder.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;
constexpr auto Shown = ButtonStatusPossibilities::ButtonsArevisible;
constexpr auto Hidden = ButtonStatusPossibilities::ButtonsAreInvisible;

class EditionObject final : public Object {
 public:
  explicit EditionObject(Variant edition) : edition_(std::move(edition)) {}
  Variant Get(std::string_view name) override {
    return SameName(name, "thisKelvoEdition") ? edition_ : Object::Get(name);
  }

 private:
  Variant edition_;
};

template <class Bar>
class DecisionToolBarTest : public testing::Test {
 protected:
  DecisionToolBarTest() {
    DefaultEdition::CreateWith([this] {
      ++editionsMade_;
      return std::make_shared<EditionObject>(std::int16_t{0});
    });
    recorder_.Watch(bar_.Events.All());
  }
  ~DecisionToolBarTest() override { DefaultEdition::CreateWith({}); }

  ToolButton& Button(std::string_view key) { return bar_.Children.DecisionToolBar.Button(key); }
  Texts Pressed() {
    Texts keys;
    for (const auto& button : bar_.Children.DecisionToolBar.Buttons()) {
      if (button->Value()) keys.push_back(button->Key());
    }
    return keys;
  }
  std::array<std::int32_t, 4> Record() {
    const DecisionBARResponseObject record = bar_.GiveMeYourResponseData();
    return {record.HitCardIs.Value(), record.HoleCardIs.Value(), record.TensRatioIs.Value(),
            record.DealerHandIs.Value()};
  }
  static DecisionBlock BlockFor(std::int16_t hard, std::int16_t soft) {
    DecisionBlock block;
    block.PlayerName("Ann");
    block.HardTotal(hard);
    block.SoftTotal(soft);
    return block;
  }

  HeadlessSite site_;
  Bar bar_{site_};
  EventRecorder recorder_;
  int editionsMade_ = 0;
};

using Bars = testing::Types<DecisionBAR, DecisionBAR2>;
TYPED_TEST_SUITE(DecisionToolBarTest, Bars);

TYPED_TEST(DecisionToolBarTest, HasTheseButtonsInThisOrder) {
  struct Row {
    const char* key;
    const char* caption;
    const char* toolTip;
    int picture;
    char style;  // p push, g group, - separator
  };
  constexpr Row Rows[] = {
      {"Hit", "Hit", "HIT: Draw another Card", 1, 'p'},
      {"Stand", "Stand", "STAND: Draw no more Cards", 2, 'p'},
      {"Split", "Split", "SPLIT a PAIR of Cards", 3, 'p'},
      {"Double", "Double", "DOUBLE Your Bet - Receive 1 Card", 4, 'p'},
      {"Surrender", "Surr.", "SURRENDER: Forfeit 1/2 your Wager", 5, 'p'},
      {"Advice", "Advice", "Ask Kelvo for Playing Advice", 6, 'p'},
      {"HitcardSeparator", "", "", 0, '-'},
      {"HitcardLow", "Low", "Hitcard Prediction: LOW", 7, 'g'},
      {"HitcardMid", "Mid", "Hitcard Prediction: MID/Neutral", 7, 'g'},
      {"HitcardHigh", "High", "Hitcard Prediction: HIGH", 7, 'g'},
      {"HitcardUnknown", "? ?", "Hitcard Prediction: Unknown", 7, 'g'},
      {"HolecardSeparator", "", "", 0, '-'},
      {"HolecardLow", "Low", "Holecard Prediction: LOW", 8, 'g'},
      {"HolecardMid", "Mid", "Holecard Prediction: MID/Neutral", 8, 'g'},
      {"HolecardHigh", "High", "Holecard Prediction: HIGH", 8, 'g'},
      {"HolecardUnknown", "? ?", "Holecard Prediction: Unknown", 8, 'g'},
      {"TensRatioSeparator", "", "", 0, '-'},
      {"TensRatioLow", "Low", "Tens-Ratio is Low", 9, 'g'},
      {"TensRatioHigh", "High", "Tens-Ratio is High", 9, 'g'},
      {"DealerHandStrengthSeparator", "", "", 0, '-'},
      {"DealerStrengthWeak", "Dealer", "Dealer hand is Weak!", 10, 'g'},
      {"DealerStrengthStrong", "Dealer", "Dealer hand is Strong!", 11, 'g'},
      {"StatisticsSeparator", "", "", 0, '-'},
      {"ClumpStatistics", "Stats", "POPUP: Clump Statistics", 12, 'p'},
  };
  const auto buttons = this->bar_.Children.DecisionToolBar.Buttons();
  ASSERT_EQ(buttons.size(), std::size(Rows));
  constexpr ToolButtonStyle Styles[] = {ToolButtonStyle::Push, ToolButtonStyle::Group, ToolButtonStyle::Separator};
  for (std::size_t i = 0; i < std::size(Rows); ++i) {
    SCOPED_TRACE(Rows[i].key);
    const ToolButton& button = *buttons[i];
    EXPECT_EQ(button.Key(), Rows[i].key);
    EXPECT_EQ(button.Caption(), Rows[i].caption);
    EXPECT_EQ(button.ToolTipText(), Rows[i].toolTip);
    EXPECT_EQ(button.Picture(), Rows[i].picture);
    EXPECT_EQ(button.Style(), Styles[std::string_view("pg-").find(Rows[i].style)]);
    EXPECT_TRUE(button.Visible());
    EXPECT_TRUE(button.Enabled());
    EXPECT_FALSE(button.Value());
  }
  EXPECT_EQ(this->bar_.Children.ImageList.Count(), 12);
  EXPECT_EQ(&this->bar_.Children.ImageList, this->bar_.Children.DecisionToolBar.Pictures());
}

TYPED_TEST(DecisionToolBarTest, ANewOneHasTheseDefaults) {
  EXPECT_EQ(this->bar_.HitcardButtonsVisibility(), Hidden);
  EXPECT_EQ(this->bar_.HolecardButtonsVisibility(), Hidden);
  EXPECT_EQ(this->bar_.TensRatioButtonVisibility(), Hidden);
  EXPECT_EQ(this->bar_.DealerStrengthButtonsVisibility(), Hidden);
  EXPECT_EQ(this->bar_.StatusButtonButtonVisibility(), Hidden);
  EXPECT_EQ(this->bar_.thisKelvoEdition(), 0);
  EXPECT_FALSE(this->bar_.ResetPredictionButtons());
  EXPECT_EQ(this->Record(), (std::array<std::int32_t, 4>{}));
}

TYPED_TEST(DecisionToolBarTest, ClicksRaiseTheirEventsAndPredictionsNone) {
  struct Row {
    const char* key;
    const char* event;
  };
  constexpr Row Rows[] = {
      {"Hit", "HitButtonWasPressed#1"},
      {"Stand", "StandButtonWasPressed#2"},
      {"Split", "SplitButtonWasPressed#3"},
      {"Double", "DoubleButtonWasPressed#4"},
      {"Surrender", "SurrenderButtonWasPressed#7"},
      {"ClumpStatistics", "StatsButtonWasPressed#5"},
  };
  for (const Row& row : Rows) {
    this->Button(row.key).Click();
    EXPECT_EQ(this->recorder_.Take(), Texts{row.event});
  }
  for (const auto& button : this->bar_.Children.DecisionToolBar.Buttons()) {
    if (button->Style() == ToolButtonStyle::Push) continue;
    button->Click();
    EXPECT_EQ(this->recorder_.Take(), Texts{}) << button->Key();
  }
}

TYPED_TEST(DecisionToolBarTest, APredictionIsRecordedAndStaysPressedAloneInItsGroup) {
  struct Row {
    const char* key;
    std::array<std::int32_t, 4> record;
  };
  constexpr Row Rows[] = {
      {"HitcardLow", {1, 0, 0, 0}},     {"HitcardMid", {2, 0, 0, 0}},          {"HitcardHigh", {3, 0, 0, 0}},
      {"HitcardUnknown", {4, 0, 0, 0}}, {"HolecardLow", {0, 1, 0, 0}},         {"HolecardMid", {0, 2, 0, 0}},
      {"HolecardHigh", {0, 3, 0, 0}},   {"HolecardUnknown", {0, 4, 0, 0}},     {"TensRatioLow", {0, 0, 1, 0}},
      {"TensRatioHigh", {0, 0, 3, 0}},  {"DealerStrengthWeak", {0, 0, 0, -1}}, {"DealerStrengthStrong", {0, 0, 0, 1}},
  };
  for (const Row& row : Rows) {
    TypeParam bar(this->site_);
    ToolButton& button = bar.Children.DecisionToolBar.Button(row.key);
    for (int click = 0; click < 2; ++click) {
      button.Click();
      const DecisionBARResponseObject record = bar.GiveMeYourResponseData();
      EXPECT_EQ((std::array{record.HitCardIs.Value(), record.HoleCardIs.Value(), record.TensRatioIs.Value(),
                            record.DealerHandIs.Value()}),
                row.record)
          << row.key;
      EXPECT_TRUE(button.Value()) << row.key;
    }
  }
  for (const char* key : {"HitcardLow", "HolecardMid", "TensRatioHigh", "DealerStrengthWeak", "HitcardHigh"}) {
    this->Button(key).Click();
  }
  EXPECT_EQ(this->Pressed(), (Texts{"HitcardHigh", "HolecardMid", "TensRatioHigh", "DealerStrengthWeak"}));
  EXPECT_EQ(this->Record(), (std::array<std::int32_t, 4>{3, 2, 3, -1}));
}

TYPED_TEST(DecisionToolBarTest, ResettingLeavesThePressedUnknownButtons) {
  this->Button("HitcardMid").Click();
  this->Button("HitcardUnknown").Click();
  EXPECT_EQ(this->Record()[0], 4);
  this->Button("HolecardUnknown").Click();
  this->Button("TensRatioLow").Click();
  this->bar_.ResetYourResponseData();
  EXPECT_EQ(this->Record(), (std::array<std::int32_t, 4>{}));
  EXPECT_EQ(this->Pressed(), (Texts{"HitcardUnknown", "HolecardUnknown"}));
}

TYPED_TEST(DecisionToolBarTest, GettingReadyClearsOnlyWhenAskedTo) {
  this->Button("TensRatioLow").Click();
  this->bar_.GetReadyForADecision();
  EXPECT_EQ(this->Record()[2], 1);
  EXPECT_EQ(this->Pressed(), Texts{"TensRatioLow"});
  this->bar_.ResetPredictionButtons(true);
  this->bar_.GetReadyForADecision();
  EXPECT_EQ(this->Record()[2], 0);
  EXPECT_EQ(this->Pressed(), Texts{});
}

TYPED_TEST(DecisionToolBarTest, EnablesThePlaysThatTheBlockAllows) {
  struct Row {
    const char* name;
    bool restricted, split, hardDouble, softDouble, surrender;
    const char* enabled;
  };
  constexpr Row Rows[] = {
      {"unrestricted", false, false, false, false, false, "Split Double Surrender"},
      {"nothing legal", true, false, false, false, false, ""},
      {"split", true, true, false, false, false, "Split"},
      {"hard double", true, false, true, false, false, "Double"},
      {"soft double", true, false, false, true, false, "Double"},
      {"surrender", true, false, false, false, true, "Surrender"},
      {"all", true, true, true, true, true, "Split Double Surrender"},
  };
  for (const Row& row : Rows) {
    SCOPED_TRACE(row.name);
    DecisionBlock block;
    block.ManualPlayerRestrictions(row.restricted);
    block.SplitIsValid(row.split);
    block.HardDoubleIsValid(row.hardDouble);
    block.SoftDoubleIsValid(row.softDouble);
    block.SurrenderIsValid(row.surrender);
    this->bar_.SetupTheDecisionBAR(block);
    std::string enabled;
    for (const char* key : {"Split", "Double", "Surrender"}) {
      if (this->Button(key).Enabled()) enabled += (enabled.empty() ? "" : " ") + std::string(key);
    }
    EXPECT_EQ(enabled, row.enabled);
    for (const char* key : {"Hit", "Stand", "Advice", "HitcardLow"}) EXPECT_TRUE(this->Button(key).Enabled());
  }
}

TYPED_TEST(DecisionToolBarTest, RaisesThePromptAtTheEndOfSettingUp) {
  struct Row {
    std::int16_t hard, soft;
    const char* prompt;
  };
  constexpr Row Rows[] = {
      {7, 1, "Ann - You have  7 OR  17  - Make your Selection"},
      {7, 0, "Ann - You have  7  - Make your Selection"},
      {11, 11, "Ann - You have  11  - Make your Selection"},
      {7, 12, "Ann - You have  7  - Make your Selection"},
      {7, -3, "Ann - You have  7 OR  17  - Make your Selection"},
      {-2, 0, "Ann - You have -2  - Make your Selection"},
      {-12, 1, "Ann - You have -12 OR -2  - Make your Selection"},
      {32767, 1, "Ann - You have  32767 OR  32777  - Make your Selection"},
  };
  for (const Row& row : Rows) {
    this->bar_.SetupTheDecisionBAR(this->BlockFor(row.hard, row.soft));
    EXPECT_EQ(this->recorder_.Take(), Texts{std::string("HereIsThePlayersPromptMessage#8(") + row.prompt + ")"});
  }
  EXPECT_EQ(this->bar_.DecodedDCB().HardTotal(), 32767);
  const auto object = std::make_shared<DecisionBlock>(this->BlockFor(9, 0));
  this->bar_.SetupDecisionBAR(Variant(object), nullptr);
  EXPECT_EQ(this->recorder_.Take(), Texts{"HereIsThePlayersPromptMessage#8(Ann - You have  9  - Make your Selection)"});
  EXPECT_EQ(this->bar_.DecodedDCB().HardTotal(), 32767) << "only the whole set-up copies the block";
  this->bar_.HereIsTheDCB(Variant(object));
  EXPECT_EQ(this->bar_.DecodedDCB().HardTotal(), 9);
}

TYPED_TEST(DecisionToolBarTest, MakesAnEditionWhenItNeedsOneAndHasNone) {
  this->bar_.SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->editionsMade_, 1);
  const ObjectRef made = this->bar_.KelvoEdition();
  this->bar_.SetupTheDecisionBAR(this->BlockFor(9, 0));
  EXPECT_EQ(this->editionsMade_, 1);
  EXPECT_EQ(this->bar_.KelvoEdition(), made);
  const auto own = std::make_shared<EditionObject>(std::int16_t{4});
  this->bar_.SetupDecisionBAR(this->BlockFor(9, 0), own);
  EXPECT_EQ(this->bar_.KelvoEdition(), own);
  this->bar_.TheKelvoEditionIs(own);
  EXPECT_EQ(this->bar_.thisKelvoEdition(), 4);
  DefaultEdition::CreateWith({});
  this->bar_.KelvoEdition(nullptr);
  try {
    this->bar_.KelvoEdition();
    FAIL() << "made one of nothing";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), Error::ObjectNotSet);
  }
}

TYPED_TEST(DecisionToolBarTest, AdviceFlashesTheAdvisedButtonAndEndsEnabled) {
  DecisionBlock block = this->BlockFor(9, 0);
  block.ManualPlayerRestrictions(true);
  block.StrategyAdvice(4);
  this->bar_.SetupTheDecisionBAR(block);
  this->recorder_.Take();
  ASSERT_FALSE(this->Button("Double").Enabled());
  Texts states;
  for (int at = 100; at < 1600; at += 200) {
    this->site_.After(at, [this, &states] { states.push_back(this->Button("Double").Enabled() ? "on" : "off"); });
  }
  this->Button("Advice").Click();
  EXPECT_EQ(states, (Texts{"off", "on", "off", "on", "off", "on", "off", "on"}));
  EXPECT_EQ(this->site_.Now(), 1600);
  EXPECT_TRUE(this->Button("Double").Enabled());
  EXPECT_EQ(this->recorder_.Take(), Texts{}) << "advice is no event";
  EXPECT_TRUE(this->bar_.Children.BlinkTimer.Enabled()) << "the tick leaves the timer running";
}

TYPED_TEST(DecisionToolBarTest, AdviceOutsideTheCodesDoesNothing) {
  for (const std::int16_t advice : std::initializer_list<std::int16_t>{0, 6, -1}) {
    DecisionBlock block = this->BlockFor(9, 0);
    block.StrategyAdvice(advice);
    this->bar_.SetupTheDecisionBAR(block);
    this->Button("Advice").Click();
    EXPECT_EQ(this->site_.Now(), 0) << advice;
  }
}

TYPED_TEST(DecisionToolBarTest, AnyNumberButZeroShowsAGroupAndSeparatorsStay) {
  this->bar_.HitcardButtonsVisibility(Hidden);
  for (const char* key : {"HitcardLow", "HitcardMid", "HitcardHigh", "HitcardUnknown"}) {
    EXPECT_FALSE(this->Button(key).Visible()) << key;
  }
  EXPECT_TRUE(this->Button("HitcardSeparator").Visible());
  EXPECT_TRUE(this->Button("HolecardLow").Visible());
  this->bar_.HitcardButtonsVisibility(5);
  EXPECT_TRUE(this->Button("HitcardUnknown").Visible());
  EXPECT_EQ(this->bar_.HitcardButtonsVisibility(), 5);
  this->bar_.PlugHitcardButtons(Hidden);
  EXPECT_FALSE(this->Button("HitcardMid").Visible());
  EXPECT_EQ(this->bar_.HitcardButtonsVisibility(), 5) << "plugging stores nothing";
  EXPECT_EQ(this->site_.Changes(), (Texts{"HitcardButtonsVisibility", "HitcardButtonsVisibility"}));
}

TYPED_TEST(DecisionToolBarTest, TheNoticesNamesAreThoseOfSavedForms) {
  this->bar_.Alignment(DecisionBARAlignment::DBAlignTop);
  this->bar_.HolecardButtonsVisibility(Shown);
  this->bar_.TensRatioButtonVisibility(Shown);
  this->bar_.DealerStrengthButtonsVisibility(Shown);
  this->bar_.StatusButtonButtonVisibility(Shown);
  EXPECT_EQ(this->site_.Changes(), (Texts{"Alignment", "HoleCardButtonsVisibility", "TensRatioButtonsVisibility",
                                          "DealerStrengthButtonsVisibility", "StatusButtonVisibility"}));
}

TYPED_TEST(DecisionToolBarTest, ReadingTheStatusReappliesTheDealerGroupAndGivesZero) {
  this->bar_.StatusButtonButtonVisibility(Shown);
  EXPECT_TRUE(this->Button("ClumpStatistics").Visible());
  ASSERT_TRUE(this->Button("DealerStrengthWeak").Visible());
  this->site_.ForgetRecords();
  EXPECT_EQ(this->bar_.StatusButtonButtonVisibility(), Hidden);
  EXPECT_EQ(this->site_.Changes(), Texts{"DealerStrengthButtonsVisibility"});
  EXPECT_FALSE(this->Button("DealerStrengthWeak").Visible());
  EXPECT_FALSE(this->Button("DealerStrengthStrong").Visible());
}

TYPED_TEST(DecisionToolBarTest, SavesBottomAndNoStatus) {
  this->bar_.Alignment(DecisionBARAlignment::DBAlignTop);
  this->bar_.HitcardButtonsVisibility(Shown);
  this->bar_.TensRatioButtonVisibility(7);
  this->bar_.StatusButtonButtonVisibility(Shown);
  MemoryPropertyBag bag;
  this->bar_.WriteProperties(bag);
  EXPECT_EQ(bag.Names(),
            (Texts{"Alignment", "HitcardButtonsVisibility", "HoleCardButtonsVisibility", "TensRatioButtonsVisibility",
                   "DealerStrengthButtonsVisibility", "StatusButtonVisibility"}));
  EXPECT_EQ(bag.Read("Alignment"), Variant(2));
  EXPECT_EQ(bag.Read("StatusButtonVisibility"), Variant(0));

  TypeParam restored(this->site_);
  restored.Extender().Place(300, 400, 9000, 900);
  restored.ReadProperties(bag);
  EXPECT_EQ(restored.Alignment(), DecisionBARAlignment::DBAlignBottom);
  EXPECT_EQ(restored.HitcardButtonsVisibility(), Shown);
  EXPECT_EQ(restored.HolecardButtonsVisibility(), Hidden);
  EXPECT_EQ(restored.TensRatioButtonVisibility(), 7);
  EXPECT_EQ(restored.Extender().Left(), 0);
  EXPECT_EQ(restored.Extender().Top(), 0);
  for (const auto& button : restored.Children.DecisionToolBar.Buttons()) {
    EXPECT_TRUE(button->Visible()) << "restoring touches no button: " << button->Key();
  }
}

TYPED_TEST(DecisionToolBarTest, ABadSavedValueKeepsTheDefault) {
  MemoryPropertyBag bag;
  bag.Write("HitcardButtonsVisibility", Variant("many"));
  bag.Write("HoleCardButtonsVisibility", Variant(-1));
  bag.Write("Alignment", Variant::Null());
  this->bar_.ReadProperties(bag);
  EXPECT_EQ(this->bar_.HitcardButtonsVisibility(), Hidden);
  EXPECT_EQ(this->bar_.HolecardButtonsVisibility(), Shown);
  EXPECT_EQ(this->bar_.Alignment(), DecisionBARAlignment::DBAlignBottom);
}

TYPED_TEST(DecisionToolBarTest, TheDesignerSeesTheNameAndThePlayerTheToolbar) {
  for (const bool running : {true, false}) {
    this->site_.UserMode(running);
    TypeParam bar(this->site_);
    MemoryPropertyBag bag;
    bar.ReadProperties(bag);
    EXPECT_EQ(bar.Children.DecisionToolBar.Visible(), running);
    EXPECT_EQ(bar.Children.DecisionBAR_ID.Visible(), !running);
  }
}

TYPED_TEST(DecisionToolBarTest, DocksToAnEdge) {
  this->bar_.Extender().Place(0, 0, 6000, 4000);
  struct Row {
    std::int32_t align;
    std::array<float, 4> place;
  };
  constexpr Row Rows[] = {
      {0, {0, 0, 6000, 900}}, {1, {0, 0, 6000, 900}},    {2, {0, 3100, 6000, 900}},
      {3, {0, 0, 900, 4000}}, {4, {5100, 0, 900, 4000}}, {9, {0, 0, 6000, 900}},
  };
  const ToolBar& strip = this->bar_.Children.DecisionToolBar;
  for (const Row& row : Rows) {
    this->bar_.Alignment(row.align);
    EXPECT_EQ(this->bar_.Alignment(), row.align);
    EXPECT_EQ((std::array{strip.Left(), strip.Top(), strip.Width(), strip.Height()}), row.place) << row.align;
  }
}

TYPED_TEST(DecisionToolBarTest, SurvivesBeingDestroyedInItsHandlers) {
  for (const char* key : {"Hit", "Surrender", "ClumpStatistics", "Advice"}) {
    auto bar = std::make_unique<TypeParam>(this->site_);
    DecisionBlock block;
    block.StrategyAdvice(1);
    bar->SetupTheDecisionBAR(block);
    const auto destroy = [&bar] { bar.reset(); };
    bar->Events.HitButtonWasPressed.Connect(destroy);
    bar->Events.SurrenderButtonWasPressed.Connect(destroy);
    bar->Events.StatsButtonWasPressed.Connect(destroy);
    this->site_.After(300, destroy);
    bar->Children.DecisionToolBar.Button(key).Click();
    EXPECT_EQ(bar, nullptr) << key;
    this->site_.Advance(2000);
  }
  auto bar = std::make_unique<TypeParam>(this->site_);
  bar->Events.HereIsThePlayersPromptMessage.Connect([&bar](const std::string&) { bar.reset(); });
  bar->SetupTheDecisionBAR(DecisionBlock());
  EXPECT_EQ(bar, nullptr);
}

}  // namespace
}  // namespace tactix::tests
