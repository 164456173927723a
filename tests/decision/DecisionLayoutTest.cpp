// Box types, sizes of the advice button, and the place on the screen.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/platform/PropertyBag.h"
#include "tests/decision/DecisionFixture.h"
#include "tests/decision/DecisionStates.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Texts = std::vector<std::string>;

class DecisionLayoutTest : public DecisionFixture {};

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

TEST_F(DecisionLayoutTest, ABoxTypeLaysOutTheLowerRow) {
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

TEST_F(DecisionLayoutTest, ANewBoxIsForDrills) {
  box_->DecisionBoxType(TypeOfDecisionBox::forUseWithBlackjackTable);
  box_->InitProperties();
  EXPECT_EQ(box_->DecisionBoxType(), TypeOfDecisionBox::forUseWithDrills);
  EXPECT_EQ(LayoutOf(*box_).shown, "----");
}

TEST_F(DecisionLayoutTest, ALoadedBoxAppliesItsTypeAndReadsNothing) {
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

class DecisionAllowAdviceTest : public DecisionFixture, public testing::WithParamInterface<AdviceSizeRow> {};

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

TEST_F(DecisionLayoutTest, ResizingKeepsTheAdviceButtonsPlace) {
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

class DecisionCenterTest : public DecisionFixture, public testing::WithParamInterface<CenterRow> {};

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

}  // namespace
}  // namespace tactix::tests
