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
  entry.callsOut = {CallOut::Notice, CallOut::Focus, CallOut::BagRead, CallOut::BagWrite};
  entry.passesOver = {
      {"ReadProperties", {CallOut::Notice, CallOut::BagRead}},
      {"WriteProperties", {CallOut::BagWrite}},
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
  entry.callsOut = {CallOut::Focus};
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
  using Panel = StrategyDataPanel;
  entry.drives = {
      DriveOf<Panel>("HereIsYourStrategyData",
                     [](CallOutHost& host, Panel& panel) { panel.HereIsYourStrategyData(host.DataBlock()); }),
      DriveOf<Panel>("HereIsSomeStrategyDataBlockData",
                     [](CallOutHost& host, Panel& panel) { panel.HereIsSomeStrategyDataBlockData(host.DataBlock()); }),
      DriveOf<Panel>("HereIsSomeStrategyDataBlockData of none",
                     [](CallOutHost&, Panel& panel) { panel.HereIsSomeStrategyDataBlockData(nullptr); }),
      DriveOf<Panel>("StrategyDataBlockData",
                     [](CallOutHost& host, Panel& panel) { panel.StrategyDataBlockData(host.DataBlock()); }),
      DriveOf<Panel>("GetClumpStuff", [](CallOutHost&, Panel& panel) { panel.GetClumpStuff(8); }),
      DriveOf<Panel>("Refresh", [](CallOutHost&, Panel& panel) { panel.Refresh(); }),
      DriveOf<Panel>("TheKelvoEditionIs",
                     [](CallOutHost& host, Panel& panel) { panel.TheKelvoEditionIs(host.Edition()); }),
  };
  entry.callsOut = {CallOut::Event,     CallOut::Focus,   CallOut::Edition,
                    CallOut::DataBlock, CallOut::Factory, CallOut::ObjectEnds};
  return entry;
}

}  // namespace tactix::tests
