#pragma once

#include <array>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/Panel.h"

namespace tactix {

/// A panel that lists the five decisions with their letters; the player clicks a line or types its letter. It holds no
/// hand and no advice, has no properties and saves nothing.
class TACTIX_EXPORT HitStandLegend : public Control {
 public:
  explicit HitStandLegend(Site& site);
  ~HitStandLegend() override;

  void Resized() override;

  struct EventSet {
    Event<> HitWasSelected{1, "HitWasSelected"};
    Event<> StandWasSelected{2, "StandWasSelected"};
    Event<> SplitWasSelected{3, "SplitWasSelected"};
    Event<> DoubleWasSelected{4, "DoubleWasSelected"};
    Event<> SurrenderWasSelected{5, "SurrenderWasSelected"};

    auto All() {
      return std::tie(HitWasSelected, StandWasSelected, SplitWasSelected, DoubleWasSelected, SurrenderWasSelected);
    }
  } Events;

  /// Each decision has a letter label and a word label.
  using Option = std::array<Label, 2>;

  struct ChildWidgets {
    Panel panelLegend;
    Option LegendOptionHit;
    Option LegendOptionStand;
    Option LegendOptionSplit;
    Option LegendOptionDouble;
    Option LegendOptionSurrender;
  } Children;
};

}  // namespace tactix
