#include "tactix/counting/ClumpCardList.h"

#include "tactix/platform/PropertyTable.h"

namespace tactix {

ClumpCardList::ClumpCardList(Site& site)
    : CardValueSelector(
          site, {"ClumpValue", "panelClumpValue", "fraClumpValue", " Clump-Value", "cmbClumpValue"},
          {Children.panelClumpValue, Children.fraClumpValue, Children.cmbClumpValue, Children.lblCardValue},
          Events.ClumpValueSelected) {
  Build();
}

ClumpCardList::~ClumpCardList() { MarkAsGone(); }

const PropertyTable& ClumpCardList::Properties() const {
  using Self = ClumpCardList;
  static const PropertyTable table = PropertyTable()
                                         .Property<Self>("CardValue", &Self::CardValue, &Self::CardValue)
                                         .Property<Self>("ClumpValue", &Self::ClumpValue, &Self::ClumpValue);
  return table;
}

}  // namespace tactix
