#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix {

/// The light-weight list of playing strategies, for use inside other controls. It differs from StrategyList: empty
/// descriptions get no row, a described seat reads "Empty Seat", fewer rows are reported, and errors of a fill are
/// ignored. Errors of loading, saving and resizing reach the container.
class TACTIX_EXPORT StrategyListLITE : public NumberedStrategyList {
 public:
  explicit StrategyListLITE(Site& site);
  ~StrategyListLITE() override;

  /// Refills the box from the catalogue, strategies -1 to the highest loaded. An "object not set" (91) of the catalogue
  /// is ignored; any other error ends the fill without a failure, and the rows added so far and the old text stay.
  void InputPlayingStrategyDescriptions();
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  /// Rows past this one are shown, but never reported.
  static constexpr std::int32_t HighestReportedRow = 50;

  struct ChildWidgets {
    ListBox StrategyListBox;
  } Children;

 protected:
  ListBox& Box() override { return Children.StrategyListBox; }
  const ListBox& Box() const override { return Children.StrategyListBox; }
  void InputDescriptions() override { InputPlayingStrategyDescriptions(); }
  void FillRow(std::int16_t strategy) override;
};

}  // namespace tactix
