#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix {

/// What the lists of playing and betting strategies have in common. Row r stands for strategy r - 1, row 0 for the
/// empty seat. Where a list leaves rows out, those behind them stand for lower numbers than they were filled from.
class TACTIX_EXPORT NumberedStrategyList : public StrategyListControl {
 public:
  /// The selected row's strategy, as ListIndex. Setting a number above the row count does nothing; any other selects
  /// its row, and one that the box does not have, the row count itself included, fails with 380.
  std::int16_t SelectThisStrategy() const { return ListIndex(); }
  void SelectThisStrategy(std::int16_t strategy);

  /// The strategy being filled; after a fill, the last one visited.
  std::int16_t CurrentStrategy() const { return FilledNumber(); }

  const PropertyTable& Properties() const override;

  struct EventSet {
    /// A row was accepted; carries the row - 1. What the handler writes to it is ignored.
    Event<std::int32_t&> StrategySelectionChanged{1, "StrategySelectionChanged"};

    auto All() { return std::tie(StrategySelectionChanged); }
  } Events;

 protected:
  using StrategyListControl::StrategyListControl;

  /// SelectThisStrategy is about to select a row.
  virtual void SelectionComes() {}
  void Report(std::int32_t row) override;
  /// Fills the rows of the seat and of all strategies up to the highest.
  void FillUpTo(std::int16_t highest);
  /// The properties of these lists; they pass over what cannot be read or written.
  static PropertyTable NumberedProperties();
  /// Empty also where the list is gone.
  std::string DescribePlaying(std::int16_t strategy) const;
  std::string DescribeBetting(std::int16_t strategy) const;
};

}  // namespace tactix
