#pragma once

#include <cstdint>
#include <string_view>

#include "tactix/decision/DecisionToolBar.h"
#include "tactix/platform/widgets/ToolButton.h"
#include "tactix/shared/Plays.h"

namespace tactix {

// Short for what the plays' rows below say.
constexpr std::string_view KeyOf(AdvicePossibilities play) { return PlayOf(play).name; }
constexpr std::string_view CaptionOf(AdvicePossibilities play) { return PlayOf(play).shortName; }

/// The buttons of a decision toolbar, first to last.
inline constexpr ToolButtonDesign DecisionToolButtons[] = {
    {KeyOf(AdvicePossibilities::HitAdvised), CaptionOf(AdvicePossibilities::HitAdvised), "HIT: Draw another Card", 1,
     ToolButtonStyle::Push},
    {KeyOf(AdvicePossibilities::StandAdvised), CaptionOf(AdvicePossibilities::StandAdvised),
     "STAND: Draw no more Cards", 2, ToolButtonStyle::Push},
    {KeyOf(AdvicePossibilities::SplitAdvised), CaptionOf(AdvicePossibilities::SplitAdvised), "SPLIT a PAIR of Cards", 3,
     ToolButtonStyle::Push},
    {KeyOf(AdvicePossibilities::DoubleAdvised), CaptionOf(AdvicePossibilities::DoubleAdvised),
     "DOUBLE Your Bet - Receive 1 Card", 4, ToolButtonStyle::Push},
    {KeyOf(AdvicePossibilities::SurrenderAdvised), CaptionOf(AdvicePossibilities::SurrenderAdvised),
     "SURRENDER: Forfeit 1/2 your Wager", 5, ToolButtonStyle::Push},
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

/// A play's event on a toolbar. The key of its button is the play's name.
struct ToolBarPlay : Play {
  Event<> DecisionToolBarControl::EventSet::*event;
};
inline constexpr ToolBarPlay ToolBarPlays[] = {
    {PlayOf(AdvicePossibilities::HitAdvised), &DecisionToolBarControl::EventSet::HitButtonWasPressed},
    {PlayOf(AdvicePossibilities::StandAdvised), &DecisionToolBarControl::EventSet::StandButtonWasPressed},
    {PlayOf(AdvicePossibilities::SplitAdvised), &DecisionToolBarControl::EventSet::SplitButtonWasPressed},
    {PlayOf(AdvicePossibilities::DoubleAdvised), &DecisionToolBarControl::EventSet::DoubleButtonWasPressed},
    {PlayOf(AdvicePossibilities::SurrenderAdvised), &DecisionToolBarControl::EventSet::SurrenderButtonWasPressed},
};

inline constexpr std::string_view AdviceKey = "Advice";
inline constexpr std::string_view StatisticsKey = "ClumpStatistics";

/// A prediction button: its group, its key and the value that it records. The two "unknown" ones do not follow the
/// record: code never presses or unpresses them.
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
