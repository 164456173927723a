#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix {

/// What the lists of playing and betting strategies have in common. Row r stands for strategy r - 1, row 0 for the
/// empty seat. Where a list leaves a row out, the rows after it stand for lower numbers than those they were filled
/// for.
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
  /// Fills the rows of the empty seat and of all strategies up to the highest.
  void FillUpTo(std::int16_t highest);
  /// The properties of these lists. A saved one that cannot be read or written is passed over.
  static PropertyTable NumberedProperties();
  /// The catalogue's description; empty if the call has destroyed the list.
  std::string DescribePlaying(std::int16_t strategy) const;
  std::string DescribeBetting(std::int16_t strategy) const;
};

}  // namespace tactix
