#include "tactix/counting/CountValueSelector.h"

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

constexpr std::string_view ValueName = "PointValue";

}  // namespace

CountValueSelector::CountValueSelector(Site& site)
    : CardValueSelector(
          site, {ValueName, "panelPointValue", "fraPointValue", " Point-Value", "cmbPointValue"},
          {Children.panelPointValue, Children.fraPointValue, Children.cmbPointValue, Children.lblCardValue},
          Events.CountValueSelected) {
  Build();
}

CountValueSelector::~CountValueSelector() { MarkAsGone(); }

const PropertyTable& CountValueSelector::Properties() const {
  using Self = CountValueSelector;
  static const PropertyTable table = PropertyTable()
                                         .Property(ValueName, &Self::PointValue, &Self::PointValue)
                                         .Saved(DefaultValue, {.restore = PropertyTable::SetBy(&Self::RestoreValue)})
                                         .Property(CardValueName, &Self::CardValue, &Self::CardValue)
                                         .Saved(DefaultCard, {.restore = PropertyTable::SetBy(&Self::RestoreCard)});
  return table;
}

}  // namespace tactix
