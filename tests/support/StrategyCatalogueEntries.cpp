// The room "strategy" in the catalogue.

#include "tactix/strategy/StrategyList.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

CatalogueEntry StrategyListEntry() {
  CatalogueEntry entry = EntryOf<StrategyList>("StrategyList");
  const Font designFont = {"Comic Sans MS", 8.25F};
  entry.properties = {
      {"BackColor", static_cast<Color>(0x80000005), 0x123456, Saved::Yes},
      {"ForeColor", static_cast<Color>(0x80000008), 0x654321, Saved::Yes},
      {"Enabled", true, false, Saved::Yes},
      {"Font", designFont, Font{"Serif", 11, true}, Saved::Yes},
      {"Text", "Select a Strategy", "a text", Saved::Yes},
      {"ToolTipText", "", "a tip", Saved::Yes},
      {"DefaultContent", "Select a Strategy", "content", Saved::WrittenOnly},
      {"ControlType", 0, 3},
      {"ListIndex", -2, -2},
      {"SelectThisStrategy", -2, -2},
      {"Style", 0, {}},
      {"Visible", true, false},
      {"StrategyCount", 0, {}},
  };
  entry.raisers = {
      RaiserOf<StrategyList>("StrategySelectionChanged",
                             [](HeadlessSite&, StrategyList& list) {
                               list.AddItem("row");
                               list.Children.StrategyListBox.PickRow(0);
                             }),
      RaiserOf<StrategyList>("StrategySelectionChanged",
                             [](HeadlessSite&, StrategyList& list) {
                               list.AddItem("row");
                               list.SelectThisStrategy(-1);
                             }),
  };
  return entry;
}

}  // namespace tactix::tests
