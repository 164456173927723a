#include "tactix/counting/ClumpCardList.h"

#include "tactix/platform/PropertyTable.h"
#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

constexpr std::string_view ValueName = "ClumpValue";

}  // namespace

ClumpCardList::ClumpCardList(Site& site)
    : CardValueSelector(
          site, {ValueName, "panelClumpValue", "fraClumpValue", " Clump-Value", "cmbClumpValue"},
          {Children.panelClumpValue, Children.fraClumpValue, Children.cmbClumpValue, Children.lblCardValue},
          Events.ClumpValueSelected) {
  Build();
}

ClumpCardList::~ClumpCardList() { MarkAsGone(); }

const PropertyTable& ClumpCardList::Properties() const {
  using Self = ClumpCardList;
  static const PropertyTable table = PropertyTable()
                                         .Property(ValueName, &Self::ClumpValue, &Self::ClumpValue)
                                         .Saved(DefaultValue, {.restore = PropertyTable::SetBy(&Self::RestoreValue)})
                                         .Property(CardValueName, &Self::CardValue, &Self::CardValue)
                                         .Saved(DefaultCard, {.restore = PropertyTable::SetBy(&Self::RestoreCard)});
  return table;
}

}  // namespace tactix
