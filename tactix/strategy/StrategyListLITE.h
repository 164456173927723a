#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix {

/// The light-weight list of playing strategies, to stand inside other controls: as StrategyList, but without rows for
/// empty descriptions, with "Empty Seat" for a seat that is described, with fewer rows reported, and quiet when a fill
/// or a description fails. What fails when its properties are loaded or saved, and when it is resized, reaches the
/// container.
class TACTIX_EXPORT StrategyListLITE : public NumberedStrategyList {
 public:
  explicit StrategyListLITE(Site& site);
  ~StrategyListLITE() override;

  /// Refills the box from the catalogue, strategies -1 to the highest loaded. Passes over what is not set (91); any
  /// other error ends it quietly, so that the rows added so far and the old text stay.
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
