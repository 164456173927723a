#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix {

/// A drop-down list from which the player picks a betting strategy. It leaves out numbers under which the catalogue has
/// no playing strategy. Unlike the playing lists it does not report what SelectThisStrategy selects.
class TACTIX_EXPORT BetStrategyList : public NumberedStrategyList {
 public:
  explicit BetStrategyList(Site& site);
  ~BetStrategyList() override;

  /// Refills the box from the catalogue, strategies -1 to the highest betting strategy loaded. An "object not set" (91)
  /// of the catalogue is ignored. Any other error ends the fill and reaches the caller with its own code, the source
  /// "BettingStrategyList::" and the description "InputBettingStrategyDescriptions". Rows already added stay.
  void InputBettingStrategyDescriptions();
  const MethodTable& Methods() const override;

  /// Whether the next accepted selection raises no event; false by default. SelectThisStrategy sets it, even where the
  /// box then refuses the row, and the next accepted selection clears it.
  bool QuietSelection() const { return quietSelection_; }

  /// Rows past this one are shown, but never reported.
  static constexpr std::int32_t HighestReportedRow = 50;

  struct ChildWidgets {
    ListBox BetStrategyListBox;
  } Children;

 protected:
  ListBox& Box() override { return Children.BetStrategyListBox; }
  const ListBox& Box() const override { return Children.BetStrategyListBox; }
  void InputDescriptions() override { InputBettingStrategyDescriptions(); }
  void SelectionComes() override { quietSelection_ = true; }
  void Report(std::int32_t row) override;
  void FillRow(std::int16_t strategy) override;

 private:
  bool quietSelection_ = false;
};

}  // namespace tactix
