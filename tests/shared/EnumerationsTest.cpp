#include "tactix/shared/Enumerations.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "tactix/platform/Color.h"

namespace tactix {
namespace {

template <class E>
constexpr std::int32_t Number(E row) {
  static_assert(std::is_same_v<std::underlying_type_t<E>, std::int32_t>);
  return static_cast<std::int32_t>(row);
}

TEST(EnumerationsTest, VerdictsFollowTheAdviceAndCorrectDoesNot) {
  const std::pair<AdvicePossibilities, AfterAdvicePossibilities> plays[] = {
      {AdvicePossibilities::HitAdvised, AfterAdvicePossibilities::afterYouShouldaHit},
      {AdvicePossibilities::StandAdvised, AfterAdvicePossibilities::afterYouShouldaStood},
      {AdvicePossibilities::SplitAdvised, AfterAdvicePossibilities::afterYouShouldaSplit},
      {AdvicePossibilities::DoubleAdvised, AfterAdvicePossibilities::afterYouShouldaDoubled},
      {AdvicePossibilities::SurrenderAdvised, AfterAdvicePossibilities::afterYouShouldaSurrendered},
  };
  std::int32_t play = Number(AfterAdvicePossibilities::afterNoAdvice);
  for (const auto& [advice, verdict] : plays) {
    EXPECT_EQ(Number(advice), ++play);
    EXPECT_EQ(Number(verdict), Number(advice));
  }
  EXPECT_GT(Number(AfterAdvicePossibilities::afterYourPlayWasCorrect), play + 1);
}

TEST(EnumerationsTest, PredictionsOfAllKindsShareTheirNumbers) {
  using Hit = DecisionBARHitcardPossibilities;
  using Hole = DecisionBARHolecardPossibilities;
  using Tens = DecisionBARTensRatioPossibilities;
  EXPECT_EQ(Number(Hit::DBHitcardIsLow), Number(Hole::DBHolecardIsLow));
  EXPECT_EQ(Number(Hit::DBHitcardIsMid), Number(Hole::DBHolecardIsMid));
  EXPECT_EQ(Number(Hit::DBHitcardIsHigh), Number(Hole::DBHolecardIsHigh));
  EXPECT_EQ(Number(Hit::DBHitcardIsUnknown), Number(Hole::DBHolecardIsUnknown));
  EXPECT_EQ(Number(Hit::DBHitcardIsLow), Number(Tens::DBTensRatioIsLow));
  EXPECT_EQ(Number(Hit::DBHitcardIsHigh), Number(Tens::DBTensRatioIsHigh)) << "there is no middle";
  EXPECT_EQ(Number(DecisionBARDealerHandPossibilities::DBDealerHandIsWeak),
            -Number(DecisionBARDealerHandPossibilities::DBDealerHandIsStrong));
}

TEST(EnumerationsTest, CardsAreTheirPointsInBothLists) {
  EXPECT_EQ(Number(theCardValuePossibilities::theCardValueIsAnAce), 1);
  EXPECT_EQ(Number(theCardValuePossibilities::theCardValueIsATen), 10);
  EXPECT_EQ(Number(theCardValuePossibilities::theCardValueIsAnEight),
            Number(theClumpCardValuePossibilities::theClumpCardValueIsAnEight));
  EXPECT_EQ(Number(theCardValuePossibilities::theCardValueIsATen),
            Number(theClumpCardValuePossibilities::theClumpCardValueIsATen));
  EXPECT_EQ(Number(CardPointValuePossibilities::NeutralPointValue),
            Number(CardClumpValuePossibilities::NeutralClumpValue));
}

TEST(EnumerationsTest, PointValuesLieRoundTheNeutralOne) {
  using Points = CardPointValuePossibilities;
  const std::pair<Points, Points> pairs[] = {
      {Points::CardIsAPlus1, Points::CardIsAMinus1}, {Points::CardIsAPlus2, Points::CardIsAMinus2},
      {Points::CardIsAPlus3, Points::CardIsAMinus3}, {Points::CardIsAPlus4, Points::CardIsAMinus4},
      {Points::CardIsAPlus5, Points::CardIsAMinus5}, {Points::CardIsAPlus6, Points::CardIsAMinus6},
      {Points::CardIsAPlus7, Points::CardIsAMinus7}, {Points::CardIsAPlus8, Points::CardIsAMinus8},
      {Points::CardIsAPlus9, Points::CardIsAMinus9}, {Points::CardIsAPlus10, Points::CardIsAMinus10},
  };
  std::int32_t distance = Number(Points::NeutralPointValue);
  for (const auto& [plus, minus] : pairs) {
    EXPECT_EQ(Number(plus), ++distance);
    EXPECT_EQ(Number(minus), -distance);
  }
  EXPECT_EQ(Number(Points::LowestPointValue) + Number(Points::PointListConversion), 0) << "the list's first row";
}

TEST(EnumerationsTest, ThereAre28CountSystemsWithoutAGap) {
  using Systems = CountStrategyPossibilities;
  EXPECT_EQ(Number(Systems::HighestCardCountIndex) - Number(Systems::LowestCardCountIndex) + 1, 28);
  EXPECT_LT(Number(Systems::InvalidCountStrategy), Number(Systems::LowestCardCountIndex));
  EXPECT_EQ(Number(Systems::HIOpt1), Number(Systems::LowestCardCountIndex) + 10) << "Hi-Opt I is the eleventh";
}

TEST(EnumerationsTest, TheBettingListsNamesStandForTheSameNumbers) {
  using Strategy = TypeOfStrategyControl;
  using Betting = TypeOfBettingStrategyControl;
  using Marquix = TypeOfStrategyMarquixControl;
  EXPECT_EQ(Number(Strategy::IsNotYetAssigned), Number(Betting::ControlIsNotYetAssigned));
  EXPECT_EQ(Number(Strategy::IsABettingControl), Number(Betting::ControlIsABettingControl));
  EXPECT_EQ(Number(Strategy::IsAPlayingControl), Number(Betting::ControlIsAPlayingControl));
  EXPECT_EQ(Number(Strategy::IsAnEvaluationControl), Number(Betting::ControlIsAnEvaluationControl));
  EXPECT_EQ(Number(Strategy::IsNotYetAssigned), Number(Marquix::IsNotYetAssigned));
  EXPECT_EQ(Number(Strategy::IsABettingControl), Number(Marquix::IsABettingMarquix));
  EXPECT_EQ(Number(Strategy::IsAPlayingControl), Number(Marquix::IsAPlayingMarquix));
  EXPECT_EQ(Number(Strategy::IsAnEvaluationControl), Number(Marquix::IsAnEvaluationMarquix));
  EXPECT_EQ(Number(StrategyListFormats::ShowAllStrategies),
            Number(BettingStrategyListFormats::ShowAllBettingStrategies));
  EXPECT_EQ(Number(StrategyListFormats::ShowPresentStrategiesOnly),
            Number(BettingStrategyListFormats::ShowPresentBettingStrategiesOnly));
}

TEST(EnumerationsTest, BoundsOfACountDisplayAreSymmetric) {
  EXPECT_EQ(Number(CardCountDisplayValueRanges::CardCountDisplayPlus),
            -Number(CardCountDisplayValueRanges::CardCountDisplayMinus));
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
