#include "tactix/decision/Decision.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tests/decision/DecisionStates.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/PropertyObject.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class DecisionTest : public testing::Test {
 protected:
  DecisionTest() { recorder_.Watch(box_->Events.All()); }

  HeadlessSite site_;
  std::unique_ptr<Decision> box_ = std::make_unique<Decision>(site_);
  Decision::ChildWidgets& children_ = box_->Children;
  EventRecorder recorder_;
};

TEST_F(DecisionTest, NumbersAndNamesItsEvents) {
  Texts events;
  const auto note = [&](auto&... each) {
    (events.push_back(std::to_string(each.Number()) + " " + std::string(each.Name())), ...);
  };
  std::apply(note, box_->Events.All());
  EXPECT_EQ(events, (Texts{"1 AdviceRequested",
                           "2 BurnACardRequested",
                           "3 EvaluationStrategySelected",
                           "4 HitCardHiPrediction",
                           "5 HitCardLoPrediction",
                           "6 HitCardNeutralPrediction",
                           "7 HitCardUnknownPrediction",
                           "8 PlayerDoublesDown",
                           "9 PlayerHits",
                           "10 PlayerSplits",
                           "11 PlayerStands",
                           "12 PlayerSurrenders",
                           "13 PlugHandCardsInClipboard",
                           "14 PlugPromptPlayHands",
                           "15 TensRatioHiPrediction",
                           "16 TensRatioLoPrediction",
                           "17 WholeCardHiPrediction",
                           "18 WholeCardLoPrediction",
                           "19 WholeCardNeutralPrediction",
                           "20 WholeCardUnknownPrediction",
                           "21 Show"}));
}

TEST_F(DecisionTest, HasItsDesign) {
  const struct {
    const Captioned& widget;
    const char* name;
    const char* caption;
    const char* toolTip;
  } rows[] = {
      {children_.HitButton, "HitButton", "HIT", ""},
      {children_.StandButton, "StandButton", "Stand", ""},
      {children_.SplitButton, "SplitButton", "SPLIT", ""},
      {children_.DoubleButton, "DoubleButton", "DOUBLE", ""},
      {children_.SurrenderButton, "SurrenderButton", "Surrender", ""},
      {children_.cmdHoleCard, "cmdHoleCard", "&HoleCard", ""},
      {children_.cmdTensRatio, "cmdTensRatio", "&Tens-Ratio", ""},
      {children_.cmdOptions, "cmdOptions", "&Options", ""},
      {children_.lblUserControlCaption, "lblUserControlCaption", "  Make Your Selection",
       "for Predictions: [Shift]=High, [Ctrl]=Low, [Alt]=Mid, [Ctrl+Shift]=Unknown"},
      {children_.lblDecision, "lblDecision", "", ""},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.widget.Name(), row.name);
    EXPECT_EQ(row.widget.Caption(), row.caption);
    EXPECT_EQ(row.widget.ToolTipText(), row.toolTip) << row.name;
  }
  EXPECT_EQ(children_.ManualPlayButtons.ToolTipText(), "H=Hit, S=Stand, P=Split, D=Double, G=Surrender");
  EXPECT_EQ(children_.ManualPlayButtons.Name(), "ManualPlayButtons");
  EXPECT_EQ(children_.AdviceButton.Extender().Name(), "AdviceButton");
  EXPECT_EQ(children_.picDecision.Name(), "picDecision");
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(children_.lblDecision.Parent(), &children_.picDecision);
  for (const DecisionPlay& play : DecisionPlays) {
    EXPECT_EQ((children_.*play.button).Parent(), &children_.ManualPlayButtons);
  }
  EXPECT_FALSE(children_.BlinkTimer.Enabled());
}

TEST_F(DecisionTest, HasItsMenus) {
  const struct {
    const Menu& menu;
    const char* caption;
    Texts entries;
  } rows[] = {
      {children_.mnuHoleCard, "&Hole Card", {"is &High", "-", "is &Low", "-", "is &Mid", "-", "is &Unknown"}},
      {children_.mnuTensRatio, "&Tens Ratio", {"is &High", "-", "is &Low"}},
      {children_.mnuOptions,
       "&Options",
       {"&Prompts", "Prompt &On", "Prompt O&ff", "-", "&Adjust Bet", "&Backup a Seat", "Burn A &Card",
        "&Plug Hand in Clipboard"}},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.menu.Caption(), row.caption);
    Texts entries;
    for (const MenuEntry* entry : row.menu.Entries()) entries.push_back(entry->Caption());
    EXPECT_EQ(entries, row.entries);
  }
  EXPECT_TRUE(PromptOffIsChecked(*box_));
}

TEST_F(DecisionTest, AMenuPopsUpBelowItsButtonsTop) {
  const struct {
    PushButton& button;
    const char* caption;
  } rows[] = {{children_.cmdHoleCard, "&Hole Card"},
              {children_.cmdTensRatio, "&Tens Ratio"},
              {children_.cmdOptions, "&Options"}};
  for (const auto& row : rows) {
    site_.ForgetRecords();
    row.button.Click();
    ASSERT_EQ(site_.PopUps().size(), 1U);
    EXPECT_EQ(site_.PopUps()[0].caption, row.caption);
    EXPECT_EQ(site_.PopUps()[0].x, row.button.Left());
    EXPECT_EQ(site_.PopUps()[0].y, row.button.Top() + 21);
  }
  EXPECT_NE(children_.cmdHoleCard.Left(), children_.cmdTensRatio.Left());
  EXPECT_NE(children_.cmdTensRatio.Left(), children_.cmdOptions.Left());
}

TEST_F(DecisionTest, HasItsDefaults) {
  EXPECT_EQ(box_->AllowAdvice(), 0);
  EXPECT_EQ(box_->DecisionBoxType(), TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(box_->thisKelvoEdition(), 0);
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_FALSE(box_->PlayButtonPromptStatus());
  EXPECT_EQ(box_->ToolTip(), "");
  EXPECT_EQ(box_->Qualifier(), "07-08-2001 - 21:00");
}

// Layout.

/// Which of the elements beside the play area are shown and which are enabled: hole card, tens ratio, advice (its
/// default-button flag), options.
struct LayoutState {
  std::string shown, enabled;
  bool operator==(const LayoutState&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const LayoutState& state) {
    return out << "shown " << state.shown << ", enabled " << state.enabled;
  }
};

LayoutState LayoutOf(const Decision& box) {
  const Decision::ChildWidgets& w = box.Children;
  LayoutState state;
  const auto note = [](std::string& text, char letter, bool yes) { text += yes ? letter : '-'; };
  note(state.shown, 'H', w.cmdHoleCard.Visible());
  note(state.shown, 'T', w.cmdTensRatio.Visible());
  note(state.shown, 'A', w.AdviceButton.Extender().Visible());
  note(state.shown, 'O', w.cmdOptions.Visible());
  note(state.enabled, 'H', w.cmdHoleCard.Enabled());
  note(state.enabled, 'T', w.cmdTensRatio.Enabled());
  note(state.enabled, 'A', w.AdviceButton.Enabled());
  note(state.enabled, 'O', w.cmdOptions.Enabled());
  return state;
}

TEST_F(DecisionTest, ABoxTypeLaysOutTheLowerRow) {
  const LayoutState drills = {"----", "HT-O"};
  const LayoutState table = {"HTAO", "HT--"};
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(LayoutOf(*box_), drills);
  children_.cmdHoleCard.Enabled(false);
  children_.cmdTensRatio.Enabled(false);
  children_.AdviceButton.Enabled(true);
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
  EXPECT_EQ(LayoutOf(*box_), table);
  EXPECT_EQ(box_->DecisionBoxType(), 1);
  for (const std::int32_t other : {5, 2, -1, 0x7FFFFFFF}) {
    box_->DecisionBoxType(other);
    EXPECT_EQ(LayoutOf(*box_), table) << other;
    EXPECT_EQ(box_->DecisionBoxType(), other);
  }
  box_->SetupTheDecisionBox(DecisionBlock());
  EXPECT_EQ(LayoutOf(*box_), (LayoutState{"HTAO", "HTAO"}));
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(LayoutOf(*box_), (LayoutState{"----", "HTAO"})) << "hiding disables nothing";
}

TEST_F(DecisionTest, ANewBoxIsForDrills) {
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
  box_->InitProperties();
  EXPECT_EQ(box_->DecisionBoxType(), TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(LayoutOf(*box_).shown, "----");
}

TEST_F(DecisionTest, ALoadedBoxAppliesItsTypeAndReadsNothing) {
  class NoBag final : public PropertyBag {
   public:
    Variant Read(std::string_view, const Variant&) override { throw Error(1); }
    void Write(std::string_view, const Variant&) override { throw Error(1); }
    void Write(std::string_view, const Variant&, const Variant&) override { throw Error(1); }
  } bag;
  EXPECT_EQ(LayoutOf(*box_).shown, "HTAO") << "the design";
  box_->ReadProperties(bag);
  EXPECT_EQ(LayoutOf(*box_).shown, "----");
  box_->DecisionBoxType(1);
  children_.cmdOptions.Visible(false);
  box_->ReadProperties(bag);
  EXPECT_EQ(LayoutOf(*box_).shown, "HTAO");
  box_->WriteProperties(bag);
  EXPECT_EQ(site_.Changes(), Texts{});
}

struct AdviceSizeRow {
  const char* name;
  std::int32_t appearance;
  float left, width;
};

class DecisionAllowAdviceTest : public DecisionTest, public testing::WithParamInterface<AdviceSizeRow> {};

TEST_P(DecisionAllowAdviceTest, SizesAndStacksTheAdviceButton) {
  Extender& advice = children_.AdviceButton.Extender();
  for (const bool fromTheTop : {false, true}) {
    advice.Place(77, advice.Top(), 777, advice.Height());
    children_.AdviceButton.Enabled(false);
    children_.lblUserControlCaption.SendToBack();
    if (fromTheTop) advice.BringToFront();
    box_->AllowAdvice(GetParam().appearance);
    EXPECT_EQ(box_->AllowAdvice(), GetParam().appearance);
    EXPECT_EQ(advice.Left(), GetParam().left);
    EXPECT_EQ(advice.Width(), GetParam().width);
    EXPECT_EQ(children_.AdviceButton.Children.cmdAdviceButton.Width(), GetParam().width);
    EXPECT_TRUE(children_.AdviceButton.Enabled());
    EXPECT_EQ(FromTheTop(box_->Extender()), (Texts{"ManualPlayButtons", "lblUserControlCaption", "AdviceButton",
                                                  "cmdHoleCard", "cmdTensRatio", "cmdOptions"}));
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionAllowAdviceTest,
                         testing::Values(AdviceSizeRow{"Small", 1, 256, 1416}, AdviceSizeRow{"Medium", 2, 180, 2076},
                                         AdviceSizeRow{"Large", 3, 1, 3720}, AdviceSizeRow{"None", 0, 77, 777},
                                         AdviceSizeRow{"Seven", 7, 77, 777}, AdviceSizeRow{"Negative", -1, 77, 777}),
                         RowName());

TEST_F(DecisionTest, ResizingKeepsTheAdviceButtonsPlace) {
  box_->AllowAdvice(AdviceButtonAppearance::MediumButton);
  box_->DecisionBoxType(1);
  box_->Extender().Width(9000);
  EXPECT_EQ(children_.AdviceButton.Extender().Left(), 180);
  EXPECT_EQ(children_.AdviceButton.Extender().Width(), 2076);
  EXPECT_GT(children_.HitButton.Width(), 0);
  float right = 0;
  for (const DecisionPlay& play : DecisionPlays) {
    const PushButton& button = children_.*play.button;
    EXPECT_GE(button.Left(), right) << play.name;
    right = button.Left() + button.Width();
  }
  EXPECT_LE(right, children_.ManualPlayButtons.Width());
}

struct CenterRow {
  const char* name;
  float width, height, left, top;
};

class DecisionCenterTest : public DecisionTest, public testing::WithParamInterface<CenterRow> {};

TEST_P(DecisionCenterTest, CentersItself) {
  const auto& [name, width, height, left, top] = GetParam();
  site_.ScreenSize(15360, 11520);
  box_->Extender().Place(5, 6, width, height);
  box_->CenterYourSelf();
  EXPECT_EQ(box_->Extender().Left(), left);
  EXPECT_EQ(box_->Extender().Top(), top);
  EXPECT_EQ(box_->Extender().Width(), width);
  EXPECT_EQ(box_->Extender().Height(), height);
}

INSTANTIATE_TEST_SUITE_P(Rows, DecisionCenterTest,
                         testing::Values(CenterRow{"Smaller", 7360, 2520, 4000, 4500},
                                         CenterRow{"AsLarge", 15360, 11520, 0, 0},
                                         CenterRow{"Larger", 15361, 11530, -0.5F, -5}),
                         RowName());

// Conversions.

struct ConversionRow {
  const char* name;
  Variant value;
  int toTwips;
  int toPixels;
};

constexpr int Code(int code) { return 100'000 + code; }

class DecisionConversionTest : public DecisionTest, public testing::WithParamInterface<ConversionRow> {};

TEST_P(DecisionConversionTest, Converts) {
  const auto& [name, value, toTwips, toPixels] = GetParam();
  const auto outcome = [&](std::int16_t (Decision::*convert)(const Variant&) const) {
    int result = 0;
    const int code = ErrorCodeOf([&, v = value] { result = (box_.get()->*convert)(v); });
    return code == 0 ? result : Code(code);
  };
  EXPECT_EQ(outcome(&Decision::ConvertFromPixelsToTwipsX), toTwips);
  EXPECT_EQ(outcome(&Decision::ConvertFromPixelsToTwipsY), toTwips);
  EXPECT_EQ(outcome(&Decision::ConvertFromTwipsToPixelsX), toPixels);
  EXPECT_EQ(outcome(&Decision::ConvertFromTwipsToPixelsY), toPixels);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionConversionTest,
    testing::Values(ConversionRow{"Zero", 0, 0, 0}, ConversionRow{"One", 1, 12, 0}, ConversionRow{"Half", 6, 72, 0},
                    ConversionRow{"MoreThanHalf", 7, 84, 1}, ConversionRow{"OneAndAHalf", 18, 216, 2},
                    ConversionRow{"TwoAndAHalf", 30, 360, 2}, ConversionRow{"MinusHalf", -6, -72, 0},
                    ConversionRow{"MinusOneAndAHalf", -18, -216, -2}, ConversionRow{"HalfATwip", 0.125, 2, 0},
                    ConversionRow{"FourAndAHalfTwips", 0.375, 4, 0}, ConversionRow{"HighestTwips", 2730, 32760, 228},
                    ConversionRow{"TooManyTwips", 2731, Code(6), 228},
                    ConversionRow{"LowestTwips", -2730, -32760, -228},
                    ConversionRow{"TooFewTwips", -2731, Code(6), -228},
                    ConversionRow{"HighestPixels", 393209, Code(6), 32767},
                    ConversionRow{"TooManyPixels", 393210, Code(6), Code(6)},
                    ConversionRow{"LowestPixels", -393222, Code(6), -32768},
                    ConversionRow{"TooFewPixels", -393223, Code(6), Code(6)}, ConversionRow{"Text", "10", 120, 1},
                    ConversionRow{"Word", "ten", Code(13), Code(13)}, ConversionRow{"Empty", {}, 0, 0},
                    ConversionRow{"Null", Variant::Null(), Code(94), Code(94)}, ConversionRow{"True", true, -12, 0},
                    ConversionRow{"Infinite", std::numeric_limits<double>::infinity(), Code(6), Code(6)}),
    RowName());

// The edition.

TEST_F(DecisionTest, ReadsTheEditionsNumber) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", "7");
  box_->TheKelvoEditionIs(edition);
  EXPECT_EQ(box_->thisKelvoEdition(), 7);
  EXPECT_TRUE(PromptOnIsChecked(*box_));
  EXPECT_FALSE(box_->PromptThePlayButtons()) << "only the menu is checked";
  EXPECT_EQ(edition->Log, Texts{"Get thisKelvoEdition"});
  EXPECT_EQ(edition.use_count(), 1) << "the edition is not kept";
  std::int16_t flag = 0;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
}

TEST_F(DecisionTest, AnEditionThatFailsChangesNothing) {
  const struct {
    Variant edition;
    int code;
  } rows[] = {
      {std::make_shared<PropertyObject>("thisKelvoEdition", 32768), 6},
      {std::make_shared<PropertyObject>("thisKelvoEdition", "gold"), 13},
      {std::make_shared<PropertyObject>("thisKelvoEdition", Variant::Null()), 94},
      {std::make_shared<PropertyObject>("Edition", 3), 438},
      {ObjectRef(), 91},
      {5, 424},
      {{}, 424},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ErrorCodeOf([&] { box_->TheKelvoEditionIs(row.edition); }), row.code);
    EXPECT_EQ(box_->thisKelvoEdition(), 0);
    EXPECT_TRUE(PromptOffIsChecked(*box_));
  }
}

TEST_F(DecisionTest, AnEditionMayDestroyTheBoxWhenItIsRead) {
  const auto edition = std::make_shared<PropertyObject>("thisKelvoEdition", 7);
  edition->OnUse = [&](const std::string&) { box_.reset(); };
  box_->TheKelvoEditionIs(edition);
  EXPECT_EQ(box_, nullptr);
}

TEST_F(DecisionTest, ShowNeedsAnEdition) {
  std::int16_t flag = 5;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
  box_->SetupDecisionBox(DecisionBlock(), nullptr);
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 91);
  EXPECT_EQ(flag, 5);
}

TEST_F(DecisionTest, ShowIsTheEditionsAndMayWriteToTheFlag) {
  const auto edition = std::make_shared<PropertyObject>();
  edition->OnCall = [](std::string_view, std::span<Variant> arguments) { arguments[0] = 9; };
  box_->SetupDecisionBox(DecisionBlock(), edition);
  box_->SetupTheDecisionBox(FullBlock());  // keeps it
  std::int16_t flag = 1;
  box_->Show(flag);
  EXPECT_EQ(flag, 9);
  EXPECT_EQ(edition->Log, Texts{"Call Show(1)"});
  EXPECT_EQ(recorder_.Take(), Texts{}) << "the event of that name is the host's";
}

TEST_F(DecisionTest, ShowFailsAsTheEditionDoes) {
  const auto edition = std::make_shared<PropertyObject>();
  box_->SetupDecisionBox(DecisionBlock(), edition);
  std::int16_t flag = 1;
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 438);
  for (const auto& [written, code] : {std::pair<Variant, int>{40000, 6}, {"x", 13}, {Variant::Null(), 94}}) {
    edition->OnCall = [&value = written](std::string_view, std::span<Variant> arguments) { arguments[0] = value; };
    EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), code);
    EXPECT_EQ(flag, 1);
  }
  edition->OnCall = [](std::string_view, std::span<Variant>) { throw Error(1234); };
  EXPECT_EQ(ErrorCodeOf([&] { box_->Show(flag); }), 1234);
}

TEST_F(DecisionTest, AnEditionMayDestroyTheBoxOrReplaceItselfInShow) {
  auto edition = std::make_shared<PropertyObject>();
  edition->OnCall = [&](std::string_view, std::span<Variant> arguments) {
    box_->SetupDecisionBox(DecisionBlock(), nullptr);
    box_.reset();
    arguments[0] = 3;
  };
  box_->SetupDecisionBox(DecisionBlock(), std::move(edition));
  std::int16_t flag = 1;
  box_->Show(flag);
  EXPECT_EQ(flag, 3);
}

// Small operations.

TEST_F(DecisionTest, TheQualifierIsFixed) {
  box_->Qualifier("now");
  EXPECT_EQ(box_->Qualifier(), "07-08-2001 - 21:00");
}

TEST_F(DecisionTest, TheToolTipIsTheBoxes) {
  box_->ToolTip("tip");
  EXPECT_EQ(box_->ToolTip(), "tip");
  EXPECT_EQ(box_->Extender().ToolTipText(), "tip");
  EXPECT_EQ(children_.AdviceButton.Extender().ToolTipText(), "");
}

TEST_F(DecisionTest, TheToolTipMessageNamesTheStrategyInUpperCase) {
  box_->ToolTipMessage("Basic play, no. 3z");
  EXPECT_EQ(children_.AdviceButton.Extender().ToolTipText(),
            "Click this to see Kelvo' recommendation based on: BASIC PLAY, NO. 3Z");
  EXPECT_EQ(box_->ToolTip(), "");
}

TEST_F(DecisionTest, PromptingReadsTheStateAndWritesTheCopy) {
  box_->PromptThePlayButtons(true);
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_TRUE(box_->PlayButtonPromptStatus());
  EXPECT_TRUE(box_->DecodedDCB().PromptPlayButtons());
  EXPECT_TRUE(PromptOffIsChecked(*box_));
  box_->DiddleThePromptShit();
  EXPECT_TRUE(box_->PromptThePlayButtons());
  EXPECT_TRUE(PromptOnIsChecked(*box_));
  box_->PromptThePlayButtons(false);
  EXPECT_TRUE(box_->PromptThePlayButtons());
  EXPECT_FALSE(box_->PlayButtonPromptStatus());
  box_->DiddleThePromptShit();
  EXPECT_FALSE(box_->PromptThePlayButtons());
  EXPECT_TRUE(PromptOffIsChecked(*box_));
}

TEST_F(DecisionTest, ADecisionClearsPromptAndDescription) {
  box_->SetupTheDecisionBox(FullBlock());
  box_->SetDescriptionBoxState(1, 0, 10, "Hit");
  box_->DecisionMade();
  EXPECT_EQ(children_.lblUserControlCaption.Caption(), "");
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

struct KeysRow {
  const char* name;
  std::int16_t keys;
  Texts events;
  std::string text;
};

class DecisionPredictionTest : public DecisionTest, public testing::WithParamInterface<KeysRow> {};

TEST_P(DecisionPredictionTest, PredictsAndDescribes) {
  const auto& [name, keys, events, text] = GetParam();
  children_.lblDecision.Caption("before");
  box_->PredictTheHitCard(keys);
  EXPECT_EQ(recorder_.Take(), events);
  EXPECT_EQ(children_.lblDecision.Caption(), "before");
  box_->DisplayHitcardSetting(keys);
  EXPECT_EQ(children_.lblDecision.Caption(), text.empty() ? "before" : text);
  EXPECT_FALSE(children_.picDecision.Visible());
  box_->SetDescriptionBoxState(99, keys, -20, "Button");
  EXPECT_EQ(children_.lblDecision.Caption(), text.empty() ? "Button" : text);
  EXPECT_EQ(children_.picDecision.Left(), -20);
  EXPECT_TRUE(children_.picDecision.Visible());
  box_->ClearButtonDescriptionBox();
  EXPECT_FALSE(children_.picDecision.Visible());
  EXPECT_EQ(recorder_.Take(), Texts{});
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DecisionPredictionTest,
    testing::Values(KeysRow{"None", 0, {}, ""}, KeysRow{"Shift", 1, {"HitCardHiPrediction#4"}, "High Hitcard"},
                    KeysRow{"Ctrl", 2, {"HitCardLoPrediction#5"}, " Low Hitcard"},
                    KeysRow{"CtrlShift", 3, {"HitCardUnknownPrediction#7"}, "Unknown Hitcard"},
                    KeysRow{"Alt", 4, {"HitCardNeutralPrediction#6"}, "Neutral Hitcard"},
                    KeysRow{"ShiftAlt", 5, {}, ""}, KeysRow{"CtrlAlt", 6, {}, ""}, KeysRow{"All", 7, {}, ""},
                    KeysRow{"Eight", 8, {}, ""}, KeysRow{"Negative", -1, {}, ""}),
    RowName());

TEST_F(DecisionTest, TheDescriptionComesToTheFrontOfItsBox) {
  Label other;
  children_.picDecision.Add(other, "other");
  box_->SetDescriptionBoxState(1, 0, 0, "Hit");
  EXPECT_EQ(FromTheTop(children_.picDecision), (Texts{"lblDecision", "other"}));
}

TEST_F(DecisionTest, ItsHandleKnowsItsPropertiesAndItsPlace) {
  const ObjectRef handle = box_->Handle();
  handle->Put("giveadvice", 3);
  handle->Put("DecisionBoxType", 1);
  EXPECT_EQ(handle->Get("DECISIONBOXTYPE"), Variant(1));
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("GiveAdvice"); }), 438);
  EXPECT_EQ(ErrorCodeOf([&] { handle->Put("thisKelvoEdition", 1); }), 438);
  EXPECT_EQ(handle->Get("Width"), Variant(box_->Extender().Width()));
  box_.reset();
  EXPECT_EQ(ErrorCodeOf([&] { handle->Get("AllowAdvice"); }), 91);
}

}  // namespace
}  // namespace tactix::tests
