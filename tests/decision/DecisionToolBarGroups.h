#pragma once

#include <string>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"

namespace tactix::tests {

/// A group of buttons: its property, its method and the name of its notice, which is that of saved forms.
struct DecisionBarGroup {
  using Status = Coded<ButtonStatusPossibilities>;

  const char* notice;
  void (DecisionToolBarControl::*set)(Status);
  void (DecisionToolBarControl::*plug)(const Status&);
  Status (DecisionToolBarControl::*get)() const;  // null for the status, whose getter gives nothing away
  std::vector<std::string> keys;
};
inline const DecisionBarGroup DecisionBarGroups[] = {
    {"HitcardButtonsVisibility",
     &DecisionToolBarControl::HitcardButtonsVisibility,
     &DecisionToolBarControl::PlugHitcardButtons,
     &DecisionToolBarControl::HitcardButtonsVisibility,
     {"HitcardLow", "HitcardMid", "HitcardHigh", "HitcardUnknown"}},
    {"HoleCardButtonsVisibility",
     &DecisionToolBarControl::HolecardButtonsVisibility,
     &DecisionToolBarControl::PlugHoleCardButtons,
     &DecisionToolBarControl::HolecardButtonsVisibility,
     {"HolecardLow", "HolecardMid", "HolecardHigh", "HolecardUnknown"}},
    {"TensRatioButtonsVisibility",
     &DecisionToolBarControl::TensRatioButtonVisibility,
     &DecisionToolBarControl::PlugTensRatioButtons,
     &DecisionToolBarControl::TensRatioButtonVisibility,
     {"TensRatioLow", "TensRatioHigh"}},
    {"DealerStrengthButtonsVisibility",
     &DecisionToolBarControl::DealerStrengthButtonsVisibility,
     &DecisionToolBarControl::PlugDealerStrengthButtons,
     &DecisionToolBarControl::DealerStrengthButtonsVisibility,
     {"DealerStrengthWeak", "DealerStrengthStrong"}},
    {"StatusButtonVisibility",
     &DecisionToolBarControl::StatusButtonButtonVisibility,
     &DecisionToolBarControl::PlugStatusButton,
     nullptr,
     {"ClumpStatistics"}},
};

}  // namespace tactix::tests
