#include "tactix/shared/Enumerations.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "tactix/platform/Color.h"

namespace tactix {
namespace {

template <class E>
constexpr std::int32_t Number(E row) {
  static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
  return static_cast<std::int32_t>(row);
}

TEST(EnumerationsTest, EveryRowHasItsNumber) {
  struct Row {
    const char* name;
    std::int32_t number;
    std::int32_t expected;
  };
  const Row rows[] = {
      // AdvicePossibilities
      {"HitAdvised", Number(AdvicePossibilities::HitAdvised), 1},
      {"StandAdvised", Number(AdvicePossibilities::StandAdvised), 2},
      {"SplitAdvised", Number(AdvicePossibilities::SplitAdvised), 3},
      {"DoubleAdvised", Number(AdvicePossibilities::DoubleAdvised), 4},
      {"SurrenderAdvised", Number(AdvicePossibilities::SurrenderAdvised), 5},
      // BlinkPossibilities
      {"AdviceButtonNeverBlink", Number(BlinkPossibilities::AdviceButtonNeverBlink), 0},
      {"AdviceButtonBlinkAlways", Number(BlinkPossibilities::AdviceButtonBlinkAlways), 2},
      {"AdviceButtonBlink1stTime", Number(BlinkPossibilities::AdviceButtonBlink1stTime), 4},
      // TypeOfDecisionBox
      {"forUseWithDrills", Number(TypeOfDecisionBox::forUseWithDrills), 0},
      {"forUseWithBlackjackTable", Number(TypeOfDecisionBox::forUseWithBlackjackTable), 1},
      // AdviceButtonAppearance
      {"SmallButton", Number(AdviceButtonAppearance::SmallButton), 1},
      {"MediumButton", Number(AdviceButtonAppearance::MediumButton), 2},
      {"LargeButton", Number(AdviceButtonAppearance::LargeButton), 3},
      // DecisionRegisterType
      {"StandardDecisionRegister", Number(DecisionRegisterType::StandardDecisionRegister), 1},
      {"AfterAdviceDecisionRegister", Number(DecisionRegisterType::AfterAdviceDecisionRegister), 2},
      // AfterAdvicePossibilities
      {"afterNoAdvice", Number(AfterAdvicePossibilities::afterNoAdvice), 0},
      {"afterYouShouldaHit", Number(AfterAdvicePossibilities::afterYouShouldaHit), 1},
      {"afterYouShouldaStood", Number(AfterAdvicePossibilities::afterYouShouldaStood), 2},
      {"afterYouShouldaSplit", Number(AfterAdvicePossibilities::afterYouShouldaSplit), 3},
      {"afterYouShouldaDoubled", Number(AfterAdvicePossibilities::afterYouShouldaDoubled), 4},
      {"afterYouShouldaSurrendered", Number(AfterAdvicePossibilities::afterYouShouldaSurrendered), 5},
      {"afterYourPlayWasCorrect", Number(AfterAdvicePossibilities::afterYourPlayWasCorrect), 100},
      // DecisionBARAlignment
      {"DBAlignNone", Number(DecisionBARAlignment::DBAlignNone), 0},
      {"DBAlignTop", Number(DecisionBARAlignment::DBAlignTop), 1},
      {"DBAlignBottom", Number(DecisionBARAlignment::DBAlignBottom), 2},
      {"DBAlignLeft", Number(DecisionBARAlignment::DBAlignLeft), 3},
      {"DBAlignRight", Number(DecisionBARAlignment::DBAlignRight), 4},
      // DecisionBARWidthPossibilities
      {"stdWidth", Number(DecisionBARWidthPossibilities::stdWidth), 258},
      {"TierAWidth", Number(DecisionBARWidthPossibilities::TierAWidth), 600},
      {"TierBWidth", Number(DecisionBARWidthPossibilities::TierBWidth), 700},
      {"TierCWidth", Number(DecisionBARWidthPossibilities::TierCWidth), 800},
      // ButtonStatusPossibilities
      {"ButtonsArevisible", Number(ButtonStatusPossibilities::ButtonsArevisible), -1},
      {"ButtonsAreInvisible", Number(ButtonStatusPossibilities::ButtonsAreInvisible), 0},
      {"ButtonIsPressed", Number(ButtonStatusPossibilities::ButtonIsPressed), -1},
      {"ButtonIsUnPressed", Number(ButtonStatusPossibilities::ButtonIsUnPressed), 0},
      // DecisionBARHitcardPossibilities
      {"DBHitcardIsLow", Number(DecisionBARHitcardPossibilities::DBHitcardIsLow), 1},
      {"DBHitcardIsMid", Number(DecisionBARHitcardPossibilities::DBHitcardIsMid), 2},
      {"DBHitcardIsHigh", Number(DecisionBARHitcardPossibilities::DBHitcardIsHigh), 3},
      {"DBHitcardIsUnknown", Number(DecisionBARHitcardPossibilities::DBHitcardIsUnknown), 4},
      // DecisionBARHolecardPossibilities
      {"DBHolecardIsLow", Number(DecisionBARHolecardPossibilities::DBHolecardIsLow), 1},
      {"DBHolecardIsMid", Number(DecisionBARHolecardPossibilities::DBHolecardIsMid), 2},
      {"DBHolecardIsHigh", Number(DecisionBARHolecardPossibilities::DBHolecardIsHigh), 3},
      {"DBHolecardIsUnknown", Number(DecisionBARHolecardPossibilities::DBHolecardIsUnknown), 4},
      // DecisionBARTensRatioPossibilities
      {"DBTensRatioIsLow", Number(DecisionBARTensRatioPossibilities::DBTensRatioIsLow), 1},
      {"DBTensRatioIsHigh", Number(DecisionBARTensRatioPossibilities::DBTensRatioIsHigh), 3},
      // DecisionBARDealerHandPossibilities
      {"DBDealerHandIsWeak", Number(DecisionBARDealerHandPossibilities::DBDealerHandIsWeak), -1},
      {"DBDealerHandIsStrong", Number(DecisionBARDealerHandPossibilities::DBDealerHandIsStrong), 1},
      // TypeOfStrategyControl
      {"IsNotYetAssigned", Number(TypeOfStrategyControl::IsNotYetAssigned), 0},
      {"IsABettingControl", Number(TypeOfStrategyControl::IsABettingControl), 1},
      {"IsAPlayingControl", Number(TypeOfStrategyControl::IsAPlayingControl), 2},
      {"IsAnEvaluationControl", Number(TypeOfStrategyControl::IsAnEvaluationControl), 3},
      // TypeOfBettingStrategyControl
      {"ControlIsNotYetAssigned", Number(TypeOfBettingStrategyControl::ControlIsNotYetAssigned), 0},
      {"ControlIsABettingControl", Number(TypeOfBettingStrategyControl::ControlIsABettingControl), 1},
      {"ControlIsAPlayingControl", Number(TypeOfBettingStrategyControl::ControlIsAPlayingControl), 2},
      {"ControlIsAnEvaluationControl", Number(TypeOfBettingStrategyControl::ControlIsAnEvaluationControl), 3},
      // TypeOfStrategyMarquixControl
      {"IsNotYetAssigned", Number(TypeOfStrategyMarquixControl::IsNotYetAssigned), 0},
      {"IsABettingMarquix", Number(TypeOfStrategyMarquixControl::IsABettingMarquix), 1},
      {"IsAPlayingMarquix", Number(TypeOfStrategyMarquixControl::IsAPlayingMarquix), 2},
      {"IsAnEvaluationMarquix", Number(TypeOfStrategyMarquixControl::IsAnEvaluationMarquix), 3},
      {"IsATableSelectionMarquix", Number(TypeOfStrategyMarquixControl::IsATableSelectionMarquix), 4},
      {"IsATableDepartureMarquix", Number(TypeOfStrategyMarquixControl::IsATableDepartureMarquix), 5},
      // StrategyListFormats
      {"ShowAllStrategies", Number(StrategyListFormats::ShowAllStrategies), 0},
      {"ShowPresentStrategiesOnly", Number(StrategyListFormats::ShowPresentStrategiesOnly), 1},
      // BettingStrategyListFormats
      {"ShowAllBettingStrategies", Number(BettingStrategyListFormats::ShowAllBettingStrategies), 0},
      {"ShowPresentBettingStrategiesOnly", Number(BettingStrategyListFormats::ShowPresentBettingStrategiesOnly), 1},
      // CountStrategyPossibilities
      {"InvalidCountStrategy", Number(CountStrategyPossibilities::InvalidCountStrategy), 0},
      {"UstonSPM", Number(CountStrategyPossibilities::UstonSPM), 11},
      {"UstonAPM", Number(CountStrategyPossibilities::UstonAPM), 12},
      {"UstonAPC", Number(CountStrategyPossibilities::UstonAPC), 13},
      {"UstonSS", Number(CountStrategyPossibilities::UstonSS), 14},
      {"KelvoAceFive", Number(CountStrategyPossibilities::KelvoAceFive), 15},
      {"KelvoAPC", Number(CountStrategyPossibilities::KelvoAPC), 16},
      {"KelvoAPC2", Number(CountStrategyPossibilities::KelvoAPC2), 17},
      {"KelvoSS", Number(CountStrategyPossibilities::KelvoSS), 18},
      {"KelvoClumpCount", Number(CountStrategyPossibilities::KelvoClumpCount), 19},
      {"KelvoClumpTrack", Number(CountStrategyPossibilities::KelvoClumpTrack), 20},
      {"HIOpt1", Number(CountStrategyPossibilities::HIOpt1), 21},
      {"Hiopt2", Number(CountStrategyPossibilities::Hiopt2), 22},
      {"ReverePlusMinus", Number(CountStrategyPossibilities::ReverePlusMinus), 23},
      {"ReverePointCount", Number(CountStrategyPossibilities::ReverePointCount), 24},
      {"RevereAPC", Number(CountStrategyPossibilities::RevereAPC), 25},
      {"PattersonPLusMinus", Number(CountStrategyPossibilities::PattersonPLusMinus), 26},
      {"AndersonPointCount", Number(CountStrategyPossibilities::AndersonPointCount), 27},
      {"ScobletePointCount", Number(CountStrategyPossibilities::ScobletePointCount), 28},
      {"UltimateCount", Number(CountStrategyPossibilities::UltimateCount), 29},
      {"CanfieldExpert", Number(CountStrategyPossibilities::CanfieldExpert), 30},
      {"CanfieldMaster", Number(CountStrategyPossibilities::CanfieldMaster), 31},
      {"SnyderRedSeven", Number(CountStrategyPossibilities::SnyderRedSeven), 32},
      {"SnyderZenCount", Number(CountStrategyPossibilities::SnyderZenCount), 33},
      {"WomansCount", Number(CountStrategyPossibilities::WomansCount), 34},
      {"OmegaII", Number(CountStrategyPossibilities::OmegaII), 35},
      {"WilsonPointCount", Number(CountStrategyPossibilities::WilsonPointCount), 36},
      {"AguilarAceSix", Number(CountStrategyPossibilities::AguilarAceSix), 37},
      {"CoreRatioCount", Number(CountStrategyPossibilities::CoreRatioCount), 38},
      {"LowestCardCountIndex", Number(CountStrategyPossibilities::LowestCardCountIndex), 11},
      {"HighestCardCountIndex", Number(CountStrategyPossibilities::HighestCardCountIndex), 38},
      // SpinCounterPossibilities
      {"LeftHandSpinCounter", Number(SpinCounterPossibilities::LeftHandSpinCounter), 1},
      {"RighHandSpinCounter", Number(SpinCounterPossibilities::RighHandSpinCounter), 2},
      {"TopMountSpinCounter", Number(SpinCounterPossibilities::TopMountSpinCounter), 3},
      {"BottomMountSpinCounter", Number(SpinCounterPossibilities::BottomMountSpinCounter), 4},
      // CardClumpValuePossibilities
      {"NeutralClumpValue", Number(CardClumpValuePossibilities::NeutralClumpValue), 0},
      // theClumpCardValuePossibilities
      {"theClumpCardValueIsAnAce", Number(theClumpCardValuePossibilities::theClumpCardValueIsAnAce), 1},
      {"theClumpCardValueIsATwo", Number(theClumpCardValuePossibilities::theClumpCardValueIsATwo), 2},
      {"theClumpCardValueIsAThree", Number(theClumpCardValuePossibilities::theClumpCardValueIsAThree), 3},
      {"theClumpCardValueIsAFour", Number(theClumpCardValuePossibilities::theClumpCardValueIsAFour), 4},
      {"theClumpCardValueIsAFive", Number(theClumpCardValuePossibilities::theClumpCardValueIsAFive), 5},
      {"theClumpCardValueIsASix", Number(theClumpCardValuePossibilities::theClumpCardValueIsASix), 6},
      {"theClumpCardValueIsASeven", Number(theClumpCardValuePossibilities::theClumpCardValueIsASeven), 7},
      {"theClumpCardValueIsAnEight", Number(theClumpCardValuePossibilities::theClumpCardValueIsAnEight), 8},
      {"theClumpCardValueIsANine", Number(theClumpCardValuePossibilities::theClumpCardValueIsANine), 9},
      {"theClumpCardValueIsATen", Number(theClumpCardValuePossibilities::theClumpCardValueIsATen), 10},
      // theCardValuePossibilities
      {"theCardValueIsAnAce", Number(theCardValuePossibilities::theCardValueIsAnAce), 1},
      {"theCardValueIsATwo", Number(theCardValuePossibilities::theCardValueIsATwo), 2},
      {"theCardValueIsAThree", Number(theCardValuePossibilities::theCardValueIsAThree), 3},
      {"theCardValueIsAFour", Number(theCardValuePossibilities::theCardValueIsAFour), 4},
      {"theCardValueIsAFive", Number(theCardValuePossibilities::theCardValueIsAFive), 5},
      {"theCardValueIsASix", Number(theCardValuePossibilities::theCardValueIsASix), 6},
      {"theCardValueIsASeven", Number(theCardValuePossibilities::theCardValueIsASeven), 7},
      {"theCardValueIsAnEight", Number(theCardValuePossibilities::theCardValueIsAnEight), 8},
      {"theCardValueIsANine", Number(theCardValuePossibilities::theCardValueIsANine), 9},
      {"theCardValueIsATen", Number(theCardValuePossibilities::theCardValueIsATen), 10},
      // CardPointValuePossibilities
      {"CardIsAMinus10", Number(CardPointValuePossibilities::CardIsAMinus10), -10},
      {"CardIsAMinus9", Number(CardPointValuePossibilities::CardIsAMinus9), -9},
      {"CardIsAMinus8", Number(CardPointValuePossibilities::CardIsAMinus8), -8},
      {"CardIsAMinus7", Number(CardPointValuePossibilities::CardIsAMinus7), -7},
      {"CardIsAMinus6", Number(CardPointValuePossibilities::CardIsAMinus6), -6},
      {"CardIsAMinus5", Number(CardPointValuePossibilities::CardIsAMinus5), -5},
      {"CardIsAMinus4", Number(CardPointValuePossibilities::CardIsAMinus4), -4},
      {"CardIsAMinus3", Number(CardPointValuePossibilities::CardIsAMinus3), -3},
      {"CardIsAMinus2", Number(CardPointValuePossibilities::CardIsAMinus2), -2},
      {"CardIsAMinus1", Number(CardPointValuePossibilities::CardIsAMinus1), -1},
      {"NeutralPointValue", Number(CardPointValuePossibilities::NeutralPointValue), 0},
      {"CardIsAPlus1", Number(CardPointValuePossibilities::CardIsAPlus1), 1},
      {"CardIsAPlus2", Number(CardPointValuePossibilities::CardIsAPlus2), 2},
      {"CardIsAPlus3", Number(CardPointValuePossibilities::CardIsAPlus3), 3},
      {"CardIsAPlus4", Number(CardPointValuePossibilities::CardIsAPlus4), 4},
      {"CardIsAPlus5", Number(CardPointValuePossibilities::CardIsAPlus5), 5},
      {"CardIsAPlus6", Number(CardPointValuePossibilities::CardIsAPlus6), 6},
      {"CardIsAPlus7", Number(CardPointValuePossibilities::CardIsAPlus7), 7},
      {"CardIsAPlus8", Number(CardPointValuePossibilities::CardIsAPlus8), 8},
      {"CardIsAPlus9", Number(CardPointValuePossibilities::CardIsAPlus9), 9},
      {"CardIsAPlus10", Number(CardPointValuePossibilities::CardIsAPlus10), 10},
      {"LowestPointValue", Number(CardPointValuePossibilities::LowestPointValue), -10},
      {"HighestPointValue", Number(CardPointValuePossibilities::HighestPointValue), 10},
      {"PointListConversion", Number(CardPointValuePossibilities::PointListConversion), 10},
      // UnitsSelectedPosibilities
      {"Selected1Unit", Number(UnitsSelectedPosibilities::Selected1Unit), 1},
      {"Selected2Unit", Number(UnitsSelectedPosibilities::Selected2Unit), 2},
      {"Selected3Unit", Number(UnitsSelectedPosibilities::Selected3Unit), 3},
      {"Selected4Unit", Number(UnitsSelectedPosibilities::Selected4Unit), 4},
      {"Selected5Unit", Number(UnitsSelectedPosibilities::Selected5Unit), 5},
      {"Selected10Units", Number(UnitsSelectedPosibilities::Selected10Units), 10},
      {"Selected15Units", Number(UnitsSelectedPosibilities::Selected15Units), 15},
      {"Selected20Units", Number(UnitsSelectedPosibilities::Selected20Units), 20},
      {"Selected25Units", Number(UnitsSelectedPosibilities::Selected25Units), 25},
      {"Selected30Units", Number(UnitsSelectedPosibilities::Selected30Units), 30},
      {"Selected35Units", Number(UnitsSelectedPosibilities::Selected35Units), 35},
      // TypeOfCountBox
      {"noCountBox", Number(TypeOfCountBox::noCountBox), 0},
      {"CountBoxIsRunningCount", Number(TypeOfCountBox::CountBoxIsRunningCount), 1},
      {"CountBoxIsTrueCount", Number(TypeOfCountBox::CountBoxIsTrueCount), 2},
      // CountBoxLabelColors
      {"noCountBoxLabel", Number(CountBoxLabelColors::noCountBoxLabel), 0},
      {"CountBoxRunningCountColor", Number(CountBoxLabelColors::CountBoxRunningCountColor), 12640511},
      {"CountBoxTrueCountColor", Number(CountBoxLabelColors::CountBoxTrueCountColor), 8438015},
      // CardCountDisplayValueRanges
      {"CardCountDisplayIsZero", Number(CardCountDisplayValueRanges::CardCountDisplayIsZero), 0},
      {"CardCountDisplayPlus", Number(CardCountDisplayValueRanges::CardCountDisplayPlus), 100},
      {"CardCountDisplayMinus", Number(CardCountDisplayValueRanges::CardCountDisplayMinus), -100},
      // ShadowBoxingConstants
      {"ShadowBoxingDisabled", Number(ShadowBoxingConstants::ShadowBoxingDisabled), 0},
      {"ShadowBoxYellowColor", Number(ShadowBoxingConstants::ShadowBoxYellowColor), 65535},
      {"ShadowBoxBlackColor", Number(ShadowBoxingConstants::ShadowBoxBlackColor), 4210752},
      {"ShadowBoxWhiteColor", Number(ShadowBoxingConstants::ShadowBoxWhiteColor), 16777215},
      {"ShadowBoxingEnabled", Number(ShadowBoxingConstants::ShadowBoxingEnabled), 65535},
      {"ShadowBoxingDisEnabled", Number(ShadowBoxingConstants::ShadowBoxingDisEnabled), 16777215},
  };
  for (const Row& row : rows) EXPECT_EQ(row.number, row.expected) << row.name;
}

TEST(EnumerationsTest, RowsOfTwoNamesAreOneNumber) {
  EXPECT_EQ(ButtonStatusPossibilities::ButtonsArevisible, ButtonStatusPossibilities::ButtonIsPressed);
  EXPECT_EQ(ButtonStatusPossibilities::ButtonsAreInvisible, ButtonStatusPossibilities::ButtonIsUnPressed);
  EXPECT_EQ(CountStrategyPossibilities::LowestCardCountIndex, CountStrategyPossibilities::UstonSPM);
  EXPECT_EQ(CountStrategyPossibilities::HighestCardCountIndex, CountStrategyPossibilities::CoreRatioCount);
  EXPECT_EQ(CardPointValuePossibilities::LowestPointValue, CardPointValuePossibilities::CardIsAMinus10);
  EXPECT_EQ(CardPointValuePossibilities::HighestPointValue, CardPointValuePossibilities::PointListConversion);
  EXPECT_EQ(ShadowBoxingConstants::ShadowBoxingEnabled, ShadowBoxingConstants::ShadowBoxYellowColor);
  EXPECT_EQ(ShadowBoxingConstants::ShadowBoxingDisEnabled, ShadowBoxingConstants::ShadowBoxWhiteColor);
  EXPECT_NE(ShadowBoxingConstants::ShadowBoxingDisEnabled, ShadowBoxingConstants::ShadowBoxingDisabled);
}

TEST(EnumerationsTest, ColourRowsAreBlueGreenRed) {
  struct Row {
    const char* name;
    Color color;
    int red;
    int green;
    int blue;
  };
  const Row rows[] = {
      {"running count", Number(CountBoxLabelColors::CountBoxRunningCountColor), 255, 224, 192},
      {"true count", Number(CountBoxLabelColors::CountBoxTrueCountColor), 255, 192, 128},
      {"yellow", Number(ShadowBoxingConstants::ShadowBoxYellowColor), 255, 255, 0},
      {"black", Number(ShadowBoxingConstants::ShadowBoxBlackColor), 64, 64, 64},
      {"white", Number(ShadowBoxingConstants::ShadowBoxWhiteColor), 255, 255, 255},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Red(row.color), row.red);
    EXPECT_EQ(Green(row.color), row.green);
    EXPECT_EQ(Blue(row.color), row.blue);
    EXPECT_FALSE(IsSystemColor(row.color));
  }
}

TEST(EnumerationsTest, SystemColours) {
  EXPECT_EQ(static_cast<std::uint32_t>(WindowColor), 0x80000005U);
  EXPECT_EQ(static_cast<std::uint32_t>(WindowTextColor), 0x80000008U);
  EXPECT_EQ(static_cast<std::uint32_t>(ButtonFaceColor), 0x8000000FU);
  for (const Color color : {WindowColor, WindowTextColor, ButtonFaceColor}) EXPECT_TRUE(IsSystemColor(color));
}

TEST(EnumerationsTest, NewRecordsAreBlank) {
  const DecisionBARResponseObject response;
  EXPECT_EQ(response.HitCardIs, 0);
  EXPECT_EQ(response.HoleCardIs, 0);
  EXPECT_EQ(response.TensRatioIs, 0);
  EXPECT_EQ(response.DealerHandIs, 0);
  const StrategySelectionPacket packet;
  EXPECT_EQ(packet.ControlType, TypeOfStrategyControl::IsNotYetAssigned);
  EXPECT_EQ(packet.StrategyToSelect, 0);
  const BettingStrategySelectionPacket bettingPacket;
  EXPECT_EQ(bettingPacket.ControlType, TypeOfBettingStrategyControl::ControlIsNotYetAssigned);
  EXPECT_EQ(bettingPacket.StrategyToSelect, 0);
}

TEST(EnumerationsTest, RecordsHaveTheirFieldsInOrder) {
  const DecisionBARResponseObject response = {1, 2, 3, -1};
  EXPECT_EQ(response.HitCardIs, DecisionBARHitcardPossibilities::DBHitcardIsLow);
  EXPECT_EQ(response.HoleCardIs, DecisionBARHolecardPossibilities::DBHolecardIsMid);
  EXPECT_EQ(response.TensRatioIs, DecisionBARTensRatioPossibilities::DBTensRatioIsHigh);
  EXPECT_EQ(response.DealerHandIs, DecisionBARDealerHandPossibilities::DBDealerHandIsWeak);
  EXPECT_NE(response, DecisionBARResponseObject{});
  const StrategySelectionPacket packet = {TypeOfStrategyControl::IsAPlayingControl, 7};
  EXPECT_EQ(packet.ControlType, 2);
  EXPECT_EQ(packet.StrategyToSelect, 7);
  const BettingStrategySelectionPacket bettingPacket = {1, -1};
  EXPECT_EQ(bettingPacket.ControlType, TypeOfBettingStrategyControl::ControlIsABettingControl);
  EXPECT_EQ(bettingPacket.StrategyToSelect, -1);
  static_assert(sizeof(DecisionBARResponseObject) == 16);
}

using BoxType = Coded<TypeOfDecisionBox>;

// A property as controls have it, beside an overload for another enumeration.
std::string Overload(BoxType) { return "box"; }
std::string Overload(AdviceButtonAppearance) { return "button"; }

TEST(CodedTest, ConvertsFromRowsAndNumbers) {
  static_assert(BoxType().Value() == 0);
  static_assert(BoxType(5).Value() == 5);
  static_assert(BoxType(TypeOfDecisionBox::forUseWithBlackjackTable).Value() == 1);
  static_assert(std::is_convertible_v<int, BoxType>);
  static_assert(std::is_convertible_v<std::int16_t, BoxType>);
  static_assert(std::is_convertible_v<TypeOfDecisionBox, BoxType>);
  static_assert(!std::is_convertible_v<AdviceButtonAppearance, BoxType>);
  static_assert(!std::is_convertible_v<BoxType, std::int32_t>);
  static_assert(sizeof(BoxType) == 4);
  EXPECT_EQ(Overload(TypeOfDecisionBox::forUseWithDrills), "box");
  EXPECT_EQ(Overload(-12), "box");
  EXPECT_EQ(Overload(AdviceButtonAppearance::LargeButton), "button");
}

TEST(CodedTest, ComparesWithRowsAndNumbers) {
  constexpr BoxType One = TypeOfDecisionBox::forUseWithBlackjackTable;
  static_assert(One == 1 && 1 == One);
  static_assert(One != 0 && 0 != One);
  static_assert(One == TypeOfDecisionBox::forUseWithBlackjackTable);
  static_assert(TypeOfDecisionBox::forUseWithDrills != One);
  static_assert(One == BoxType(1) && One != BoxType(2));
  static_assert(One < 2 && 0 < One && One <= 1 && One > -5 && One >= 1);
  static_assert(One > TypeOfDecisionBox::forUseWithDrills);
  EXPECT_FALSE(One == 2);
  EXPECT_FALSE(One < TypeOfDecisionBox::forUseWithDrills);
  EXPECT_LT(BoxType(-12), BoxType(3));
}

TEST(CodedTest, SwitchesByRowAndKeepsOtherNumbers) {
  const auto describe = [](BoxType type) {
    switch (type.Row()) {
      case TypeOfDecisionBox::forUseWithDrills:
        return "drills";
      case TypeOfDecisionBox::forUseWithBlackjackTable:
        return "table";
    }
    return "neither";
  };
  EXPECT_STREQ(describe(0), "drills");
  EXPECT_STREQ(describe(1), "table");
  EXPECT_STREQ(describe(5), "neither");
  EXPECT_EQ(BoxType(-2147483647 - 1).Value(), -2147483647 - 1);
}

}  // namespace
}  // namespace tactix
