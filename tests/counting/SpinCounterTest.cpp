// The number, the other properties and the places of the child widgets.

#include "tactix/counting/SpinCounter.h"

#include <string>
#include <vector>

#include "tests/counting/SpinCounterFixture.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

class SpinCounterTest : public SpinCounterFixture {};

std::string PlaceOf(const Widget& widget) {
  return std::to_string(static_cast<int>(widget.Left())) + " " + std::to_string(static_cast<int>(widget.Top())) + " " +
         std::to_string(static_cast<int>(widget.Width())) + " " + std::to_string(static_cast<int>(widget.Height()));
}

TEST_F(SpinCounterTest, HasItsDesign) {
  const SpinCounter designed(*site_);
  const auto children = designed.Extender().Children();
  ASSERT_EQ(children.size(), 2U);
  EXPECT_EQ(children[0]->Name(), "SpinButton");
  EXPECT_EQ(children[1]->Name(), "labelCardsInStack") << "in front: mounted at the bottom, the two overlap";
  EXPECT_EQ(designed.Children.labelCardsInStack.Caption(), "(###)");
  EXPECT_EQ(designed.Children.labelCardsInStack.Font().Name, "Comic Sans MS");
  EXPECT_EQ(designed.Extender().Width(), 1500);
  EXPECT_EQ(designed.Extender().Height(), 360);
  EXPECT_EQ(designed.Extender().ScaleWidth(), 100) << "its places are in pixels";
  EXPECT_EQ(PlaceOf(designed.Children.labelCardsInStack), "0 0 67 24");
  EXPECT_EQ(PlaceOf(designed.Children.SpinButton), "67 0 33 24");
}

TEST_F(SpinCounterTest, ANewOneTakesTheAmbientAndAnnouncesItsLimit) {
  site_->AmbientForeColor(0x112233);
  site_->AmbientBackColor(0x445566);
  SpinCounter fresh(*site_);
  recorder_.Watch(fresh.Events.All());
  fresh.InitProperties();
  EXPECT_EQ(recorder_.Take(), Texts{"notice MaximumLimit"});
  EXPECT_EQ(fresh.Extender().ForeColor(), 0x112233);
  EXPECT_EQ(fresh.Extender().BackColor(), 0x445566);
  EXPECT_EQ(fresh.Children.labelCardsInStack.Caption(), "(###)");
}

TEST_F(SpinCounterTest, FollowsTheAmbientColours) {
  site_->AmbientForeColor(0x112233);
  site_->AmbientBackColor(0x445566);
  counter_->AmbientChanged();
  EXPECT_EQ(counter_->Extender().ForeColor(), 0x112233);
  EXPECT_EQ(counter_->Extender().BackColor(), 0x445566);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

struct SetRow {
  const char* name;
  std::int16_t limit;
  bool negatives;
  std::int16_t value;
  bool accepted;
};

class SpinCounterSetTest : public SpinCounterTest, public testing::WithParamInterface<SetRow> {};

TEST_P(SpinCounterSetTest, TakesOrIgnores) {
  const SetRow& row = GetParam();
  counter_->MaximumLimit(row.limit);
  counter_->AllowNegNumbers(row.negatives);
  recorder_.Forget();
  counter_->CounterValue(row.value);
  EXPECT_EQ(recorder_.Take(), row.accepted ? Change(row.value) : Texts{});
  EXPECT_EQ(counter_->CounterValue(), row.accepted ? row.value : 0);
  EXPECT_EQ(TheLabel().Caption() == "(###)", !row.accepted);
  EXPECT_EQ(site_->Beeps(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SpinCounterSetTest,
    testing::Values(SetRow{"Zero", 999, false, 0, true}, SetRow{"One", 999, false, 1, true},
                    SetRow{"TheLimit", 999, false, 999, true}, SetRow{"AboveTheLimit", 999, false, 1000, false},
                    SetRow{"HighestThereIs", 999, true, 32767, false}, SetRow{"OtherLimit", 52, false, 52, true},
                    SetRow{"AboveTheOtherLimit", 52, true, 53, false}, SetRow{"Negative", 999, false, -1, false},
                    SetRow{"NegativeAllowed", 999, true, -1, true}, SetRow{"FarBelowZero", 999, false, -1000, false},
                    SetRow{"FarBelowZeroAllowed", 999, true, -1000, true},
                    SetRow{"LowestThereIs", 1, true, -32768, true}),
    RowName());

TEST_F(SpinCounterTest, SettingTheSameNumberIsReportedAgain) {
  for (int time = 0; time < 2; ++time) {
    counter_->CounterValue(7);
    EXPECT_EQ(recorder_.Take(), Change(7));
  }
}

struct CaptionOfRow {
  const char* name;
  std::int16_t value;
  const char* caption;
};

class SpinCounterCaptionTest : public SpinCounterTest, public testing::WithParamInterface<CaptionOfRow> {};

TEST_P(SpinCounterCaptionTest, ShowsTheNumberBeforeItTells) {
  onNotice_ = [this](std::string_view) { recorder_.Note(TheLabel().Caption()); };
  counter_->AllowNegNumbers(true);
  recorder_.Forget();
  counter_->CounterValue(GetParam().value);
  EXPECT_EQ(recorder_.Entries()[1], GetParam().caption);
  EXPECT_EQ(TheLabel().Caption(), GetParam().caption);
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterCaptionTest,
                         testing::Values(CaptionOfRow{"Zero", 0, "(000)"}, CaptionOfRow{"OneDigit", 7, "(007)"},
                                         CaptionOfRow{"TwoDigits", 52, "(052)"},
                                         CaptionOfRow{"ThreeDigits", 123, "(123)"},
                                         CaptionOfRow{"TheLimit", 999, "(999)"}, CaptionOfRow{"Negative", -5, "(-005)"},
                                         CaptionOfRow{"NegativeThreeDigits", -999, "(-999)"},
                                         CaptionOfRow{"LowestThereIs", -32768, "(-32768)"}),
                         RowName());

TEST_F(SpinCounterTest, TheLimitIsOneToNineHundredAndNinetyNine) {
  const struct {
    std::int16_t limit;
    bool accepted;
  } rows[] = {{1, true},   {0, false},  {999, true},    {1000, false},  {-1, false},
              {500, true}, {500, true}, {32767, false}, {-32768, false}};
  std::int16_t last = 999;
  for (const auto& [limit, accepted] : rows) {
    counter_->MaximumLimit(limit);
    if (accepted) last = limit;
    EXPECT_EQ(counter_->MaximumLimit(), last);
    EXPECT_EQ(recorder_.Take(), accepted ? Texts{"notice MaximumLimit"} : Texts{}) << limit;
  }
  EXPECT_EQ(site_->Beeps(), 0);
}

TEST_F(SpinCounterTest, ALowerLimitLeavesTheNumber) {
  counter_->CounterValue(500);
  counter_->MaximumLimit(10);
  EXPECT_EQ(counter_->CounterValue(), 500);
  EXPECT_EQ(TheLabel().Caption(), "(500)");
}

TEST_F(SpinCounterTest, AnnouncesNegativesEachTimeAndWrappingNever) {
  for (const bool on : {true, true, false}) {
    counter_->AllowNegNumbers(on);
    EXPECT_EQ(counter_->AllowNegNumbers(), on);
    EXPECT_EQ(recorder_.Take(), Texts{"notice AllowNegNumbers"});
    counter_->NumberWrap(on);
    EXPECT_EQ(counter_->NumberWrap(), on);
    EXPECT_EQ(recorder_.Take(), Texts{});
  }
}

TEST_F(SpinCounterTest, TheFontIsTheLabels) {
  counter_->Font({"Serif", 9, true});
  EXPECT_EQ(TheLabel().Font(), (Font{"Serif", 9, true}));
  EXPECT_EQ(counter_->Font(), (Font{"Serif", 9, true}));
  EXPECT_EQ(recorder_.Take(), Texts{"notice Font"});
}

struct HandednessRow {
  const char* name;
  std::int32_t handedness;
  const char* label;
  const char* spin;
};

class SpinCounterLayoutTest : public SpinCounterTest, public testing::WithParamInterface<HandednessRow> {};

TEST_P(SpinCounterLayoutTest, StandsLikeThis) {
  counter_->Extender().Height(615);  // 41 pixels, of which the half is 20
  counter_->ControlHandedness(GetParam().handedness);
  EXPECT_EQ(counter_->ControlHandedness(), GetParam().handedness);
  EXPECT_EQ(PlaceOf(TheLabel()), GetParam().label);
  EXPECT_EQ(PlaceOf(Spin()), GetParam().spin);
  EXPECT_EQ(recorder_.Take(), Texts{"notice ControlHandedness"});
  EXPECT_EQ(site_->Beeps(), 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, SpinCounterLayoutTest,
                         testing::Values(HandednessRow{"LeftHand", 1, "35 0 67 41", "0 0 33 41"},
                                         HandednessRow{"RightHand", 2, "0 0 67 41", "67 0 33 41"},
                                         HandednessRow{"TopMount", 3, "0 0 67 20", "0 360 67 41"},
                                         HandednessRow{"BottomMount", 4, "0 360 67 41", "0 0 67 41"}),
                         RowName());

TEST_F(SpinCounterTest, AHandednessThatIsNoneBeepsAndChangesNothing) {
  counter_->ControlHandedness(SpinCounterPossibilities::LeftHandSpinCounter);
  recorder_.Forget();
  int beeps = 0;
  for (const std::int32_t none : {0, 5, -1, 2147483647, -2147483647 - 1}) {
    counter_->ControlHandedness(none);
    EXPECT_EQ(site_->Beeps(), ++beeps);
    EXPECT_EQ(counter_->ControlHandedness(), SpinCounterPossibilities::LeftHandSpinCounter);
  }
  EXPECT_EQ(PlaceOf(Spin()), "0 0 33 24");
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(SpinCounterTest, IsLaidOutAfterTheNoticeOfItsHandedness) {
  onNotice_ = [this](std::string_view) { recorder_.Note(PlaceOf(Spin())); };
  counter_->ControlHandedness(1);
  EXPECT_EQ(recorder_.Take(), (Texts{"notice ControlHandedness", "67 0 33 24"}));
  EXPECT_EQ(PlaceOf(Spin()), "0 0 33 24");
}

TEST_F(SpinCounterTest, EveryResizeRestoresTheWidthAndTheHeightsOfBothParts) {
  counter_->ControlHandedness(3);
  counter_->Extender().Place(15, 30, 4500, 6000);
  EXPECT_EQ(counter_->Extender().Width(), 1500);
  EXPECT_EQ(counter_->Extender().Left(), 15);
  EXPECT_EQ(PlaceOf(TheLabel()), "0 0 67 400");
  EXPECT_EQ(PlaceOf(Spin()), "0 360 67 400");
  counter_->Extender().Width(0);
  EXPECT_EQ(counter_->Extender().Width(), 1500);
}

TEST_F(SpinCounterTest, TheDefaultSizeIsASwitchThatDoesNotStay) {
  counter_->Extender().Height(900);
  counter_->UseDefaultSize(false);
  EXPECT_EQ(counter_->Extender().Height(), 900);
  counter_->UseDefaultSize(true);
  EXPECT_FALSE(counter_->UseDefaultSize());
  EXPECT_EQ(counter_->Extender().Height(), 360);
  EXPECT_EQ(Spin().Height(), 24);
  EXPECT_EQ(recorder_.Take(), Texts{});
}

TEST_F(SpinCounterTest, ResettingTheSizeRunsTheResizeRuleWhateverTheHeightWas) {
  counter_->ControlHandedness(3);
  EXPECT_EQ(TheLabel().Height(), 12);
  counter_->ResetSizeToDefault();
  EXPECT_EQ(counter_->Extender().Height(), 360);
  EXPECT_EQ(TheLabel().Height(), 24);
}

TEST_F(SpinCounterTest, ANewOneRemembersTheHeightThatItHasAsTheBottomMountsTop) {
  SpinCounter tall(*site_);
  tall.Extender().Height(600);
  tall.InitProperties();
  tall.ControlHandedness(4);
  EXPECT_EQ(tall.Children.labelCardsInStack.Top(), 600);
  tall.ResetSizeToDefault();
  tall.ControlHandedness(4);
  EXPECT_EQ(tall.Children.labelCardsInStack.Top(), 360);
}

TEST_F(SpinCounterTest, AHeightThatIsNo16BitNumberIsNotRemembered) {
  SpinCounter tall(*site_);
  tall.Extender().Height(40000);
  tall.InitProperties();
  tall.ControlHandedness(4);
  EXPECT_EQ(tall.Children.labelCardsInStack.Top(), 360);
}

TEST_F(SpinCounterTest, TheHalfOfAHeightIsWholeNumberDivision) {
  const struct {
    float height;  // pixels
    float half;
  } rows[] = {{24, 12}, {25, 12}, {24.4F, 12}, {24.6F, 12}, {25.5F, 13}, {24.5F, 12}, {1, 0}, {0, 0}, {-3, -1}};
  for (const auto& [height, half] : rows) {
    counter_->Extender().Height(height * 15);
    counter_->ControlHandedness(3);
    EXPECT_EQ(TheLabel().Height(), half) << height;
  }
}

}  // namespace
}  // namespace tactix::tests
