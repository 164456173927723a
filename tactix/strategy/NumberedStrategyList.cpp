#include "tactix/strategy/NumberedStrategyList.h"

#include "tactix/strategy/private/RowTexts.h"

namespace tactix {

void NumberedStrategyList::SelectThisStrategy(std::int16_t strategy) {
  // Meant to be ">" and not ">=": the row count itself goes on to the box, which fails with 380.
  if (strategy > Box().ListCount()) return;
  SelectionComes();
  ListIndex(strategy);
}

void NumberedStrategyList::Report(std::int32_t row) {
  std::int32_t newStrategySelected = row - 1;
  Events.StrategySelectionChanged.Raise(newStrategySelected);
}

void NumberedStrategyList::FillUpTo(std::int16_t highest) { Fill(EmptySeat, highest); }

// Both take the number by value, because a catalogue may write to the number that it is asked for.

std::string NumberedStrategyList::DescribePlaying(std::int16_t strategy) const {
  const std::shared_ptr<StrategyCatalogue> catalogue = Catalogue();
  return catalogue ? catalogue->DescribeStrategy(strategy) : std::string();
}

std::string NumberedStrategyList::DescribeBetting(std::int16_t strategy) const {
  const std::shared_ptr<StrategyCatalogue> catalogue = Catalogue();
  return catalogue ? catalogue->DescribeBettingStrategy(strategy) : std::string();
}

PropertyTable NumberedStrategyList::NumberedProperties() {
  PropertyTable table;
  SavedRow::Enabled(table);
  SavedRow::BackColor(table);
  SavedRow::ForeColor(table);
  SavedRow::Text(table);
  SavedRow::ToolTipText(table);
  SavedRow::DefaultContent(table);
  SavedRow::Font(table);
  AddTheOtherProperties(table);
  using Self = NumberedStrategyList;
  return table.Property("SelectThisStrategy", &Self::SelectThisStrategy, &Self::SelectThisStrategy);
}

const PropertyTable& NumberedStrategyList::Properties() const {
  static const PropertyTable table = NumberedProperties();
  return table;
}

}  // namespace tactix
