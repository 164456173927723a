#pragma once

#include <cstdint>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"

namespace tactix {

/// A drop-down list from which the player picks a bet of 1 to 35 units. It has no properties and saves nothing.
class TACTIX_EXPORT UnitSelectionList : public Control {
 public:
  explicit UnitSelectionList(Site& site);
  ~UnitSelectionList() override;

  void Resized() override;

  struct EventSet {
    /// Carries the selected row, which is one less than the number of units: 0 for one unit. What the handler writes to
    /// it is ignored.
    Event<std::int16_t&> UnitSizeSelected{1, "UnitSizeSelected"};

    auto All() { return std::tie(UnitSizeSelected); }
  } Events;

  struct ChildWidgets {
    ListBox comboBettingUnits;
  } Children;

  static constexpr std::int32_t HighestUnits = 35;

 private:
  void ReportTheRow();
};

}  // namespace tactix
