#pragma once

#include <string_view>

#include "tactix/shared/Enumerations.h"

namespace tactix {

// What the published enumerations are called in type information.

constexpr std::string_view NameOfEnumeration(AdvicePossibilities) { return "AdvicePossibilities"; }
constexpr std::string_view NameOfEnumeration(BlinkPossibilities) { return "BlinkPossibilities"; }
constexpr std::string_view NameOfEnumeration(TypeOfDecisionBox) { return "TypeOfDecisionBox"; }
constexpr std::string_view NameOfEnumeration(AdviceButtonAppearance) { return "AdviceButtonAppearance"; }
constexpr std::string_view NameOfEnumeration(DecisionRegisterType) { return "DecisionRegisterType"; }
constexpr std::string_view NameOfEnumeration(AfterAdvicePossibilities) { return "AfterAdvicePossibilities"; }
constexpr std::string_view NameOfEnumeration(DecisionBARAlignment) { return "DecisionBARAlignment"; }
constexpr std::string_view NameOfEnumeration(DecisionBARWidthPossibilities) { return "DecisionBARWidthPossibilities"; }
constexpr std::string_view NameOfEnumeration(ButtonStatusPossibilities) { return "ButtonStatusPossibilities"; }
constexpr std::string_view NameOfEnumeration(DecisionBARHitcardPossibilities) {
  return "DecisionBARHitcardPossibilities";
}
constexpr std::string_view NameOfEnumeration(DecisionBARHolecardPossibilities) {
  return "DecisionBARHolecardPossibilities";
}
constexpr std::string_view NameOfEnumeration(DecisionBARTensRatioPossibilities) {
  return "DecisionBARTensRatioPossibilities";
}
constexpr std::string_view NameOfEnumeration(DecisionBARDealerHandPossibilities) {
  return "DecisionBARDealerHandPossibilities";
}
constexpr std::string_view NameOfEnumeration(TypeOfStrategyControl) { return "TypeOfStrategyControl"; }
constexpr std::string_view NameOfEnumeration(TypeOfBettingStrategyControl) { return "TypeOfBettingStrategyControl"; }
constexpr std::string_view NameOfEnumeration(TypeOfStrategyMarquixControl) { return "TypeOfStrategyMarquixControl"; }
constexpr std::string_view NameOfEnumeration(StrategyListFormats) { return "StrategyListFormats"; }
constexpr std::string_view NameOfEnumeration(BettingStrategyListFormats) { return "BettingStrategyListFormats"; }
constexpr std::string_view NameOfEnumeration(CountStrategyPossibilities) { return "CountStrategyPossibilities"; }
constexpr std::string_view NameOfEnumeration(SpinCounterPossibilities) { return "SpinCounterPossibilities"; }
constexpr std::string_view NameOfEnumeration(CardClumpValuePossibilities) { return "CardClumpValuePossibilities"; }
constexpr std::string_view NameOfEnumeration(theClumpCardValuePossibilities) {
  return "theClumpCardValuePossibilities";
}
constexpr std::string_view NameOfEnumeration(theCardValuePossibilities) { return "theCardValuePossibilities"; }
constexpr std::string_view NameOfEnumeration(CardPointValuePossibilities) { return "CardPointValuePossibilities"; }
constexpr std::string_view NameOfEnumeration(UnitsSelectedPosibilities) { return "UnitsSelectedPosibilities"; }
constexpr std::string_view NameOfEnumeration(TypeOfCountBox) { return "TypeOfCountBox"; }
constexpr std::string_view NameOfEnumeration(CountBoxLabelColors) { return "CountBoxLabelColors"; }
constexpr std::string_view NameOfEnumeration(CardCountDisplayValueRanges) { return "CardCountDisplayValueRanges"; }
constexpr std::string_view NameOfEnumeration(ShadowBoxingConstants) { return "ShadowBoxingConstants"; }

}  // namespace tactix
