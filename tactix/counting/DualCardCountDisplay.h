#pragma once

#include <tuple>

#include "tactix/counting/CardCountDisplayBox.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"

namespace tactix {

/// The true count above the running count. Keeps nothing itself, saves nothing and raises no events.
class TACTIX_EXPORT DualCardCountDisplay : public Control {
 public:
  explicit DualCardCountDisplay(Site& site);
  ~DualCardCountDisplay() override;

  void TrueCountValue(Coded<CardCountDisplayValueRanges> value);
  void RunningCountValue(Coded<CardCountDisplayValueRanges> value);
  /// Sets it for both boxes, the running count's first. Each shows it only at its next repaint.
  void ShadowBoxStatus(Coded<ShadowBoxingConstants> status);

  void Resized() override;
  const PropertyTable& Properties() const override;

  struct EventSet {
    std::tuple<> All() { return {}; }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    explicit ChildWidgets(Site& innerSite) : TrueCountDisplay(innerSite), RunningCountDisplay(innerSite) {}

    CardCountDisplayBox TrueCountDisplay;
    CardCountDisplayBox RunningCountDisplay;
  } Children;
};

}  // namespace tactix
