#include "tactix/counting/UnitSelectionList.h"

#include <string>

namespace tactix {

namespace {

// Twips.
constexpr float DesignWidth = 1575;
constexpr float DesignHeight = 390;
constexpr float SizeOfFont = 9.75F;

std::string RowText(std::int32_t units) {
  return (units < 10 ? " " : "") + std::to_string(units) + (units == 1 ? "-Unit" : "-Units");
}

}  // namespace

UnitSelectionList::UnitSelectionList(Site& site) : Control(site) {
  ListBox& list = Children.comboBettingUnits;
  Extender().DesignSize(DesignWidth, DesignHeight);
  Extender().Add(list, "comboBettingUnits");
  list.Font({"Comic Sans MS", SizeOfFont});
  list.Reserve(HighestUnits);
  for (std::int32_t units = 1; units <= HighestUnits; ++units) list.AddItem(RowText(units));
  list.Text("UNITS");
  list.Clicked.Connect([this] { ReportTheRow(); });
  list.Changed.Connect([this] { ReportTheRow(); });
  Resized();
}

UnitSelectionList::~UnitSelectionList() { MarkAsGone(); }

void UnitSelectionList::Resized() {
  Children.comboBettingUnits.Place(0, 0, Extender().ScaleWidth(), Extender().ScaleHeight());
}

void UnitSelectionList::ReportTheRow() {
  auto unitsSelected = static_cast<std::int16_t>(Children.comboBettingUnits.ListIndex());
  Events.UnitSizeSelected.Raise(unitsSelected);
}

}  // namespace tactix
