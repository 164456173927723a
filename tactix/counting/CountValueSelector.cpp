#include "tactix/counting/CountValueSelector.h"

#include "tactix/platform/PropertyTable.h"

namespace tactix {

CountValueSelector::CountValueSelector(Site& site)
    : CardValueSelector(
          site, {"PointValue", "panelPointValue", "fraPointValue", " Point-Value", "cmbPointValue"},
          {Children.panelPointValue, Children.fraPointValue, Children.cmbPointValue, Children.lblCardValue},
          Events.CountValueSelected) {
  Build();
}

CountValueSelector::~CountValueSelector() { MarkAsGone(); }

const PropertyTable& CountValueSelector::Properties() const {
  using Self = CountValueSelector;
  static const PropertyTable table = PropertyTable()
                                         .Property<Self>("CardValue", &Self::CardValue, &Self::CardValue)
                                         .Property<Self>("PointValue", &Self::PointValue, &Self::PointValue);
  return table;
}

}  // namespace tactix
