#include "tactix/counting/DualCardCountDisplay.h"

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

DualCardCountDisplay::DualCardCountDisplay(Site& site) : Control(site), innerSite_(site), Children(innerSite_) {
  CardCountDisplayBox& trueCount = Children.TrueCountDisplay;
  CardCountDisplayBox& runningCount = Children.RunningCountDisplay;
  Extender().DesignSize(trueCount.Extender().Width(), 2 * trueCount.Extender().Height());
  Extender().Add(trueCount.Extender(), "TrueCountDisplay");
  Extender().Add(runningCount.Extender(), "RunningCountDisplay");
  trueCount.CountBoxType(TypeOfCountBox::CountBoxIsTrueCount);
  runningCount.CountBoxType(TypeOfCountBox::CountBoxIsRunningCount);
  Resized();
}

DualCardCountDisplay::~DualCardCountDisplay() { MarkAsGone(); }

void DualCardCountDisplay::TrueCountValue(Coded<CardCountDisplayValueRanges> value) {
  Children.TrueCountDisplay.CountValue(value);
}

void DualCardCountDisplay::RunningCountValue(Coded<CardCountDisplayValueRanges> value) {
  Children.RunningCountDisplay.CountValue(value);
}

void DualCardCountDisplay::ShadowBoxStatus(Coded<ShadowBoxingConstants> status) {
  Children.RunningCountDisplay.ShadowBoxStatus(status);
  Children.TrueCountDisplay.ShadowBoxStatus(status);
}

void DualCardCountDisplay::Resized() {
  const float width = Extender().ScaleWidth();
  const float half = Extender().ScaleHeight() / 2;
  Children.TrueCountDisplay.Extender().Place(0, 0, width, half);
  Children.RunningCountDisplay.Extender().Place(0, half, width, half);
}

const PropertyTable& DualCardCountDisplay::Properties() const {
  using Self = DualCardCountDisplay;
  static const PropertyTable table = PropertyTable()
                                         .SetOnly("TrueCountValue", &Self::TrueCountValue)
                                         .SetOnly("RunningCountValue", &Self::RunningCountValue)
                                         .SetOnly("ShadowBoxStatus", &Self::ShadowBoxStatus);
  return table;
}

}  // namespace tactix
