#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/decision/DecisionToolBar.h"
#include "tactix/platform/widgets/ToolButton.h"

namespace tactix {

/// The buttons of a decision toolbar, first to last.
inline constexpr ToolButtonDesign DecisionToolButtons[] = {
    {"Hit", "Hit", "HIT: Draw another Card", 1, ToolButtonStyle::Push},
    {"Stand", "Stand", "STAND: Draw no more Cards", 2, ToolButtonStyle::Push},
    {"Split", "Split", "SPLIT a PAIR of Cards", 3, ToolButtonStyle::Push},
    {"Double", "Double", "DOUBLE Your Bet - Receive 1 Card", 4, ToolButtonStyle::Push},
    {"Surrender", "Surr.", "SURRENDER: Forfeit 1/2 your Wager", 5, ToolButtonStyle::Push},
    {"Advice", "Advice", "Ask Kelvo for Playing Advice", 6, ToolButtonStyle::Push},
    {"HitcardSeparator", "", "", 0, ToolButtonStyle::Separator},
    {"HitcardLow", "Low", "Hitcard Prediction: LOW", 7, ToolButtonStyle::Group},
    {"HitcardMid", "Mid", "Hitcard Prediction: MID/Neutral", 7, ToolButtonStyle::Group},
    {"HitcardHigh", "High", "Hitcard Prediction: HIGH", 7, ToolButtonStyle::Group},
    {"HitcardUnknown", "? ?", "Hitcard Prediction: Unknown", 7, ToolButtonStyle::Group},
    {"HolecardSeparator", "", "", 0, ToolButtonStyle::Separator},
    {"HolecardLow", "Low", "Holecard Prediction: LOW", 8, ToolButtonStyle::Group},
    {"HolecardMid", "Mid", "Holecard Prediction: MID/Neutral", 8, ToolButtonStyle::Group},
    {"HolecardHigh", "High", "Holecard Prediction: HIGH", 8, ToolButtonStyle::Group},
    {"HolecardUnknown", "? ?", "Holecard Prediction: Unknown", 8, ToolButtonStyle::Group},
    {"TensRatioSeparator", "", "", 0, ToolButtonStyle::Separator},
    {"TensRatioLow", "Low", "Tens-Ratio is Low", 9, ToolButtonStyle::Group},
    {"TensRatioHigh", "High", "Tens-Ratio is High", 9, ToolButtonStyle::Group},
    {"DealerHandStrengthSeparator", "", "", 0, ToolButtonStyle::Separator},
    {"DealerStrengthWeak", "Dealer", "Dealer hand is Weak!", 10, ToolButtonStyle::Group},
    {"DealerStrengthStrong", "Dealer", "Dealer hand is Strong!", 11, ToolButtonStyle::Group},
    {"StatisticsSeparator", "", "", 0, ToolButtonStyle::Separator},
    {"ClumpStatistics", "Stats", "POPUP: Clump Statistics", 12, ToolButtonStyle::Push},
};

/// The pictures by their numbers, from 1.
inline constexpr std::string_view DecisionPictures[] = {"hit",        "stand",       "split",         "double",
                                                        "surrender",  "advice",      "hit-card",      "hole-card",
                                                        "tens-ratio", "dealer-weak", "dealer-strong", "statistics"};

/// A play: its code as in AdvicePossibilities, its button's key and its event.
struct ToolBarPlay {
  std::int16_t code;
  std::string_view key;
  Event<> DecisionToolBarControl::EventSet::*event;
};
inline constexpr ToolBarPlay ToolBarPlays[] = {
    {1, "Hit", &DecisionToolBarControl::EventSet::HitButtonWasPressed},
    {2, "Stand", &DecisionToolBarControl::EventSet::StandButtonWasPressed},
    {3, "Split", &DecisionToolBarControl::EventSet::SplitButtonWasPressed},
    {4, "Double", &DecisionToolBarControl::EventSet::DoubleButtonWasPressed},
    {5, "Surrender", &DecisionToolBarControl::EventSet::SurrenderButtonWasPressed},
};

inline constexpr std::string_view AdviceKey = "Advice";
inline constexpr std::string_view StatisticsKey = "ClumpStatistics";

/// A prediction: its group, its button's key and what the record then says. Code never presses or unpresses the two
/// unknown ones.
struct ToolBarPrediction {
  ButtonGroup group;
  std::string_view key;
  std::int32_t value;
  bool followsTheRecord;
};
inline constexpr ToolBarPrediction ToolBarPredictions[] = {
    {ButtonGroup::HitCard, "HitcardLow", 1, true},
    {ButtonGroup::HitCard, "HitcardMid", 2, true},
    {ButtonGroup::HitCard, "HitcardHigh", 3, true},
    {ButtonGroup::HitCard, "HitcardUnknown", 4, false},
    {ButtonGroup::HoleCard, "HolecardLow", 1, true},
    {ButtonGroup::HoleCard, "HolecardMid", 2, true},
    {ButtonGroup::HoleCard, "HolecardHigh", 3, true},
    {ButtonGroup::HoleCard, "HolecardUnknown", 4, false},
    {ButtonGroup::TensRatio, "TensRatioLow", 1, true},
    {ButtonGroup::TensRatio, "TensRatioHigh", 3, true},
    {ButtonGroup::DealerStrength, "DealerStrengthWeak", -1, true},
    {ButtonGroup::DealerStrength, "DealerStrengthStrong", 1, true},
};

}  // namespace tactix
