// The count displays of the room "counting" in the catalogue.

#include <memory>

#include "tactix/companion/StrategyDataBlock.h"
#include "tactix/counting/CardCountDisplayBox.h"
#include "tactix/counting/DefaultStrategyData.h"
#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/counting/StrategyDataPanel.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

CatalogueEntry CardCountDisplayBoxEntry() {
  CatalogueEntry entry = EntryOf<CardCountDisplayBox>("CardCountDisplayBox");
  entry.properties = {
      {"CountBoxType", 0, 2, Saved::Yes},
      {"CountValue", {}, -12},
      {"ShadowBoxStatus", {}, 65535},
      {"BackColor", static_cast<Color>(0x80000005), 0x123456},
      {"ForeColor", static_cast<Color>(0x80000008), 0x654321},
  };
  return entry;
}

CatalogueEntry DualCardCountDisplayEntry() {
  CatalogueEntry entry = EntryOf<DualCardCountDisplay>("DualCardCountDisplay");
  entry.properties = {
      {"TrueCountValue", {}, 3},
      {"RunningCountValue", {}, -4},
      {"ShadowBoxStatus", {}, 65535},
  };
  return entry;
}

CatalogueEntry StrategyDataPanelEntry() {
  CatalogueEntry entry = EntryOf<StrategyDataPanel>("StrategyDataPanel");
  entry.make = [make = entry.make](Site& site) {
    DefaultStrategyData::CreateWith([] { return std::make_shared<companion::StrategyDataBlock>(); });
    return make(site);
  };
  entry.properties = {
      {"StrategyDataBlockData", {}, std::make_shared<companion::StrategyDataBlock>()},
      {"ShadowBoxStatus", {}, 65535},
  };
  entry.raisers = {
      RaiserOf<StrategyDataPanel>("PanelClick",
                                  [](HeadlessSite&, StrategyDataPanel& panel) {
                                    panel.Extender().MouseDown({LeftButton, 0, 0, 0});
                                  }),
      RaiserOf<StrategyDataPanel>("PanelClick",
                                  [](HeadlessSite&, StrategyDataPanel& panel) {
                                    panel.Children.panelStrategyInformation.MouseDown({RightButton, 0, 0, 0});
                                  }),
      RaiserOf<StrategyDataPanel>("PanelClick",
                                  [](HeadlessSite&, StrategyDataPanel& panel) {
                                    panel.Children.datAces.MouseDown({LeftButton, 0, 0, 0});
                                  }),
  };
  return entry;
}

}  // namespace tactix::tests
