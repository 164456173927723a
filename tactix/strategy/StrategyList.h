#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix {

/// A drop-down list from which the player picks a playing strategy. Every strategy number has a row, which reads "Not
/// Present" where there is no strategy that can be used; only a description without a comma gets no row.
class TACTIX_EXPORT StrategyList : public NumberedStrategyList {
 public:
  explicit StrategyList(Site& site);
  ~StrategyList() override;

  /// Refills the box from the catalogue, strategies -1 to the highest loaded. Fails with the catalogue's errors, and
  /// with those of a description that cannot be read (5 or 13); rows already added stay.
  void InputPlayingStrategyDescriptions();
  const MethodTable& Methods() const override;

  /// Rows past this one are shown, but never reported.
  static constexpr std::int32_t HighestReportedRow = 55;

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
