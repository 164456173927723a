#pragma once

#include <cstdint>

#include "tactix/shared/Coded.h"

namespace tactix {

// Saved forms and hosts know every row by its name and its number: the spellings, the misspelled ones too, and the rows
// that repeat a number under another name are meant to stay.

/// The play decisions, as advice codes.
enum class AdvicePossibilities : std::int32_t {
  HitAdvised = 1,
  StandAdvised = 2,
  SplitAdvised = 3,
  DoubleAdvised = 4,
  SurrenderAdvised = 5,
};

/// When an advice button blinks.
enum class BlinkPossibilities : std::int32_t {
  AdviceButtonNeverBlink = 0,
  AdviceButtonBlinkAlways = 2,
  AdviceButtonBlink1stTime = 4,
};

/// The layouts of a decision box.
enum class TypeOfDecisionBox : std::int32_t {
  forUseWithDrills = 0,
  forUseWithBlackjackTable = 1,
};

/// The sizes of a decision box's advice button.
enum class AdviceButtonAppearance : std::int32_t {
  SmallButton = 1,
  MediumButton = 2,
  LargeButton = 3,
};

/// The forms of a decision register.
enum class DecisionRegisterType : std::int32_t {
  StandardDecisionRegister = 1,
  AfterAdviceDecisionRegister = 2,
};

/// The verdicts on the last play. The five plays follow AdvicePossibilities; "correct" is 100, not 6.
enum class AfterAdvicePossibilities : std::int32_t {
  afterNoAdvice = 0,
  afterYouShouldaHit = 1,
  afterYouShouldaStood = 2,
  afterYouShouldaSplit = 3,
  afterYouShouldaDoubled = 4,
  afterYouShouldaSurrendered = 5,
  afterYourPlayWasCorrect = 100,
};

/// Where a decision toolbar docks.
enum class DecisionBARAlignment : std::int32_t {
  DBAlignNone = 0,
  DBAlignTop = 1,
  DBAlignBottom = 2,
  DBAlignLeft = 3,
  DBAlignRight = 4,
};

/// The widths by which hosts size a decision toolbar; the toolbars do not read them.
enum class DecisionBARWidthPossibilities : std::int32_t {
  stdWidth = 258,
  TierAWidth = 600,
  TierBWidth = 700,
  TierCWidth = 800,
};

/// Shown or hidden, pressed or not: true (−1) and false (0) under two pairs of names.
enum class ButtonStatusPossibilities : std::int32_t {
  ButtonsArevisible = -1,
  ButtonsAreInvisible = 0,
  ButtonIsPressed = -1,
  ButtonIsUnPressed = 0,
};

/// The player's prediction of the hit card.
enum class DecisionBARHitcardPossibilities : std::int32_t {
  DBHitcardIsLow = 1,
  DBHitcardIsMid = 2,
  DBHitcardIsHigh = 3,
  DBHitcardIsUnknown = 4,
};

/// The player's prediction of the hole card.
enum class DecisionBARHolecardPossibilities : std::int32_t {
  DBHolecardIsLow = 1,
  DBHolecardIsMid = 2,
  DBHolecardIsHigh = 3,
  DBHolecardIsUnknown = 4,
};

/// The player's prediction of the tens ratio. There is no middle: high is 3, as with the cards.
enum class DecisionBARTensRatioPossibilities : std::int32_t {
  DBTensRatioIsLow = 1,
  DBTensRatioIsHigh = 3,
};

/// The player's prediction of the dealer's hand.
enum class DecisionBARDealerHandPossibilities : std::int32_t {
  DBDealerHandIsWeak = -1,
  DBDealerHandIsStrong = 1,
};

/// The player's predictions. A field that the player has not set is 0, which no row has.
struct DecisionBARResponseObject {
  Coded<DecisionBARHitcardPossibilities> HitCardIs;
  Coded<DecisionBARHolecardPossibilities> HoleCardIs;
  Coded<DecisionBARTensRatioPossibilities> TensRatioIs;
  Coded<DecisionBARDealerHandPossibilities> DealerHandIs;

  bool operator==(const DecisionBARResponseObject&) const = default;
};

/// What a strategy list or marquee chooses.
enum class TypeOfStrategyControl : std::int32_t {
  IsNotYetAssigned = 0,
  IsABettingControl = 1,
  IsAPlayingControl = 2,
  IsAnEvaluationControl = 3,
};

/// The betting list's names for what a control chooses.
enum class TypeOfBettingStrategyControl : std::int32_t {
  ControlIsNotYetAssigned = 0,
  ControlIsABettingControl = 1,
  ControlIsAPlayingControl = 2,
  ControlIsAnEvaluationControl = 3,
};

/// The kinds of strategy marquee.
enum class TypeOfStrategyMarquixControl : std::int32_t {
  IsNotYetAssigned = 0,
  IsABettingMarquix = 1,
  IsAPlayingMarquix = 2,
  IsAnEvaluationMarquix = 3,
  IsATableSelectionMarquix = 4,
  IsATableDepartureMarquix = 5,
};

/// Which strategies a list shows.
enum class StrategyListFormats : std::int32_t {
  ShowAllStrategies = 0,
  ShowPresentStrategiesOnly = 1,
};

/// The betting list's names for which strategies a list shows.
enum class BettingStrategyListFormats : std::int32_t {
  ShowAllBettingStrategies = 0,
  ShowPresentBettingStrategiesOnly = 1,
};

struct StrategySelectionPacket {
  Coded<TypeOfStrategyControl> ControlType;
  std::int16_t StrategyToSelect = 0;  ///< list index

  bool operator==(const StrategySelectionPacket&) const = default;
};

struct BettingStrategySelectionPacket {
  Coded<TypeOfBettingStrategyControl> ControlType;
  std::int16_t StrategyToSelect = 0;  ///< list index

  bool operator==(const BettingStrategySelectionPacket&) const = default;
};

/// The count systems. The last two rows are the bounds of the valid ones.
enum class CountStrategyPossibilities : std::int32_t {
  InvalidCountStrategy = 0,
  UstonSPM = 11,
  UstonAPM = 12,
  UstonAPC = 13,
  UstonSS = 14,
  KelvoAceFive = 15,
  KelvoAPC = 16,
  KelvoAPC2 = 17,
  KelvoSS = 18,
  KelvoClumpCount = 19,
  KelvoClumpTrack = 20,
  HIOpt1 = 21,
  Hiopt2 = 22,
  ReverePlusMinus = 23,
  ReverePointCount = 24,
  RevereAPC = 25,
  PattersonPLusMinus = 26,
  AndersonPointCount = 27,
  ScobletePointCount = 28,
  UltimateCount = 29,
  CanfieldExpert = 30,
  CanfieldMaster = 31,
  SnyderRedSeven = 32,
  SnyderZenCount = 33,
  WomansCount = 34,
  OmegaII = 35,
  WilsonPointCount = 36,
  AguilarAceSix = 37,
  CoreRatioCount = 38,
  LowestCardCountIndex = 11,
  HighestCardCountIndex = 38,
};

/// Where a spin counter's buttons stand.
enum class SpinCounterPossibilities : std::int32_t {
  LeftHandSpinCounter = 1,
  RighHandSpinCounter = 2,
  TopMountSpinCounter = 3,
  BottomMountSpinCounter = 4,
};

/// Clump values. Any number is one; only the neutral value has a name.
enum class CardClumpValuePossibilities : std::int32_t {
  NeutralClumpValue = 0,
};

/// The card of a clump value list.
enum class theClumpCardValuePossibilities : std::int32_t {
  theClumpCardValueIsAnAce = 1,
  theClumpCardValueIsATwo = 2,
  theClumpCardValueIsAThree = 3,
  theClumpCardValueIsAFour = 4,
  theClumpCardValueIsAFive = 5,
  theClumpCardValueIsASix = 6,
  theClumpCardValueIsASeven = 7,
  theClumpCardValueIsAnEight = 8,
  theClumpCardValueIsANine = 9,
  theClumpCardValueIsATen = 10,
};

/// The card of a count value selector.
enum class theCardValuePossibilities : std::int32_t {
  theCardValueIsAnAce = 1,
  theCardValueIsATwo = 2,
  theCardValueIsAThree = 3,
  theCardValueIsAFour = 4,
  theCardValueIsAFive = 5,
  theCardValueIsASix = 6,
  theCardValueIsASeven = 7,
  theCardValueIsAnEight = 8,
  theCardValueIsANine = 9,
  theCardValueIsATen = 10,
};

/// Point values of a card. The last three rows are the bounds and the distance from a value to its list row.
enum class CardPointValuePossibilities : std::int32_t {
  CardIsAMinus10 = -10,
  CardIsAMinus9 = -9,
  CardIsAMinus8 = -8,
  CardIsAMinus7 = -7,
  CardIsAMinus6 = -6,
  CardIsAMinus5 = -5,
  CardIsAMinus4 = -4,
  CardIsAMinus3 = -3,
  CardIsAMinus2 = -2,
  CardIsAMinus1 = -1,
  NeutralPointValue = 0,
  CardIsAPlus1 = 1,
  CardIsAPlus2 = 2,
  CardIsAPlus3 = 3,
  CardIsAPlus4 = 4,
  CardIsAPlus5 = 5,
  CardIsAPlus6 = 6,
  CardIsAPlus7 = 7,
  CardIsAPlus8 = 8,
  CardIsAPlus9 = 9,
  CardIsAPlus10 = 10,
  LowestPointValue = -10,
  HighestPointValue = 10,
  PointListConversion = 10,
};

/// Numbers of betting units.
enum class UnitsSelectedPosibilities : std::int32_t {
  Selected1Unit = 1,
  Selected2Unit = 2,
  Selected3Unit = 3,
  Selected4Unit = 4,
  Selected5Unit = 5,
  Selected10Units = 10,
  Selected15Units = 15,
  Selected20Units = 20,
  Selected25Units = 25,
  Selected30Units = 30,
  Selected35Units = 35,
};

/// Which count a display box shows.
enum class TypeOfCountBox : std::int32_t {
  noCountBox = 0,
  CountBoxIsRunningCount = 1,
  CountBoxIsTrueCount = 2,
};

/// Label colours of the count boxes, 0x00BBGGRR.
enum class CountBoxLabelColors : std::int32_t {
  noCountBoxLabel = 0,
  CountBoxRunningCountColor = 12640511,
  CountBoxTrueCountColor = 8438015,
};

/// The bounds of a count display.
enum class CardCountDisplayValueRanges : std::int32_t {
  CardCountDisplayIsZero = 0,
  CardCountDisplayPlus = 100,
  CardCountDisplayMinus = -100,
};

/// Shadow box colours, 0x00BBGGRR, and on and off. There are two different "off" values: 0 and white.
enum class ShadowBoxingConstants : std::int32_t {
  ShadowBoxingDisabled = 0,
  ShadowBoxYellowColor = 65535,
  ShadowBoxBlackColor = 4210752,
  ShadowBoxWhiteColor = 16777215,
  ShadowBoxingEnabled = 65535,
  ShadowBoxingDisEnabled = 16777215,
};

}  // namespace tactix
