// The room "strategy" in the catalogue.

#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"
#include "tests/support/Catalogue.h"
#include "tests/support/FakeCatalogue.h"

namespace tactix::tests {

namespace {

/// What all lists have but the names and texts of their design.
std::vector<CataloguedProperty> ListProperties(const std::string& text, const Font& font, const std::string& toolTip) {
  return {
      {"BackColor", static_cast<Color>(0x80000005), 0x123456, Saved::Yes},
      {"ForeColor", static_cast<Color>(0x80000008), 0x654321, Saved::Yes},
      {"Enabled", true, false, Saved::Yes},
      {"Font", font, Font{"Serif", 11, true}, Saved::Yes},
      {"Text", text, "a text", Saved::Yes},
      {"ToolTipText", toolTip, "a tip", Saved::Yes},
      {"DefaultContent", text, "content", Saved::WrittenOnly},
      {"ControlType", 0, 3},
      {"ListIndex", -2, -2},
      {"Style", 0, {}},
      {"Visible", true, false},
      {"StrategyCount", 0, {}},
  };
}

const std::set<CallOut> CalledByLists = {CallOut::Event,   CallOut::Notice,    CallOut::Beep,      CallOut::Focus,
                                         CallOut::BagRead, CallOut::BagWrite,  CallOut::Catalogue, CallOut::Collection,
                                         CallOut::Factory, CallOut::ObjectEnds};
const std::map<std::string, std::set<CallOut>> PassedOverBags = {{"ReadProperties", {CallOut::BagRead}},
                                                                 {"WriteProperties", {CallOut::BagWrite}}};
/// A list that fills quietly; what the range fails with reaches the host.
const std::map<std::string, std::set<CallOut>> PassedOverInFills = {
    {"InputPlayingStrategyDescriptions", {CallOut::Catalogue, CallOut::Factory}},
    {"LoadStrategiesFromIniFile", {CallOut::Catalogue}},
};

/// What hosts do with all lists.
template <class List>
std::vector<Drive> ListDrives() {
  return {
      DriveOf<List>("AddItem", [](CallOutHost&, List& list) { list.AddItem("row", 0); }),
      DriveOf<List>("LoadStrategiesFromIniFile", [](CallOutHost&, List& list) { list.LoadStrategiesFromIniFile(); }),
      DriveOf<List>("UseThisStrategyList",
                    [](CallOutHost& host, List& list) { list.UseThisStrategyList(host.Collection()); }),
      DriveOf<List>("pick of a row that is not present",
                    [](CallOutHost&, List& list) {
                      list.AddItem("Not Present", 0);
                      static_cast<ListBox&>(*list.Extender().Children()[0]).PickRow(0);
                    }),
      DriveOf<List>("Enabled, with the focus",
                    [](CallOutHost&, List& list) {
                      const Weak<List> self(list);
                      list.Enabled(true);
                      if (self) list.Extender().Children()[0]->SetFocus();
                      if (self) list.Enabled(false);
                    }),
  };
}

template <class List>
CatalogueEntry NumberedListEntry(std::string name, const std::string& toolTip = {}) {
  CatalogueEntry entry = EntryOf<List>(std::move(name));
  entry.properties = ListProperties("Select a Strategy", {"Comic Sans MS", 8.25F}, toolTip);
  entry.properties.push_back({"SelectThisStrategy", -2, -2});
  entry.raisers = {
      RaiserOf<List>("StrategySelectionChanged",
                     [](HeadlessSite&, List& list) {
                       list.AddItem("row");
                       static_cast<ListBox&>(*list.Extender().Children()[0]).PickRow(0);
                     }),
      RaiserOf<List>("StrategySelectionChanged",
                     [](HeadlessSite&, List& list) {
                       list.AddItem("row");
                       list.ListIndex(-1);
                     }),
  };
  entry.drives = ListDrives<List>();
  entry.callsOut = CalledByLists;
  entry.passesOver = PassedOverBags;
  return entry;
}

/// A count list together with a catalogue that all lists of its kind share while there are any.
class DescribedCountList final : public CountStrategyList {
 public:
  explicit DescribedCountList(Site& site) : CountStrategyList(site) {}
  ~DescribedCountList() override { MarkAsGone(); }

 private:
  static std::shared_ptr<InstalledCatalogue> Shared() {
    static std::weak_ptr<InstalledCatalogue> live;
    std::shared_ptr<InstalledCatalogue> catalogue = live.lock();
    if (!catalogue) {
      live = catalogue = std::make_shared<InstalledCatalogue>();
      (*catalogue)->DescribeCounts();
      // The one that a load selects by default: the text stays as designed.
      (*catalogue)->Counts[16] = "note,Select a Count Strategy,False True 0 0 0 0 ";
    }
    return catalogue;
  }

  std::shared_ptr<InstalledCatalogue> catalogue_ = Shared();
};

}  // namespace

CatalogueEntry StrategyListEntry() {
  CatalogueEntry entry = NumberedListEntry<StrategyList>("StrategyList");
  entry.raisers.push_back(RaiserOf<StrategyList>("StrategySelectionChanged", [](HeadlessSite&, StrategyList& list) {
    list.AddItem("row");
    list.SelectThisStrategy(-1);
  }));
  entry.drives.push_back(
      DriveOf<StrategyList>("InputPlayingStrategyDescriptions",
                            [](CallOutHost&, StrategyList& list) { list.InputPlayingStrategyDescriptions(); }));
  return entry;
}

CatalogueEntry StrategyListLITEEntry() {
  CatalogueEntry entry = NumberedListEntry<StrategyListLITE>("StrategyListLITE");
  entry.failedRead = FailedRead::Reported;
  entry.failedWrite = FailedWrite::Reported;
  entry.drives.push_back(
      DriveOf<StrategyListLITE>("InputPlayingStrategyDescriptions",
                                [](CallOutHost&, StrategyListLITE& list) { list.InputPlayingStrategyDescriptions(); }));
  entry.passesOver = PassedOverInFills;
  return entry;
}

CatalogueEntry BetStrategyListEntry() {
  CatalogueEntry entry =
      NumberedListEntry<BetStrategyList>("BetStrategyList", "Click the down-arrow to open the Betting Strategy List");
  entry.drives.push_back(
      DriveOf<BetStrategyList>("InputBettingStrategyDescriptions",
                               [](CallOutHost&, BetStrategyList& list) { list.InputBettingStrategyDescriptions(); }));
  return entry;
}

CatalogueEntry CountStrategyListEntry() {
  CatalogueEntry entry = EntryOf<CountStrategyList>("CountStrategyList");
  entry.make = [](Site& site) { return std::make_unique<DescribedCountList>(site); };
  entry.properties = ListProperties("Select a Count Strategy", {}, "");
  // What it reads is not what was written, so what is saved does not select the same system again.
  entry.properties.push_back({"CountStrategy", -2, 16, Saved::WrittenOnly, 4});
  entry.failedWrite = FailedWrite::Reported;
  entry.raisers = {
      RaiserOf<CountStrategyList>(
          "StrategySelectionChanged",
          [](HeadlessSite&, CountStrategyList& list) { list.Children.StrategyListBox.PickRow(0); }),
      RaiserOf<CountStrategyList>("StrategySelectionChanged",
                                  [](HeadlessSite&, CountStrategyList& list) { list.CountStrategy(38); }),
  };
  entry.drives = ListDrives<CountStrategyList>();
  entry.drives.insert(
      entry.drives.end(),
      {
          DriveOf<CountStrategyList>("CountValue",
                                     [](CallOutHost&, CountStrategyList& list) { list.CountValue(38, 4); }),
          DriveOf<CountStrategyList>("Record", [](CallOutHost&, CountStrategyList& list) { list.Record(38); }),
          DriveOf<CountStrategyList>(
              "InputCountStrategyDescriptions",
              [](CallOutHost&, CountStrategyList& list) { list.InputCountStrategyDescriptions(); }),
      });
  entry.callsOut = CalledByLists;
  const std::set<CallOut> fill = {CallOut::Catalogue, CallOut::Factory};
  entry.passesOver = {
      {"ReadProperties", {CallOut::Event, CallOut::BagRead, CallOut::Catalogue, CallOut::Factory}},
      {"InputCountStrategyDescriptions", fill},
      {"LoadStrategiesFromIniFile", {CallOut::Catalogue}},
      {"set CountStrategy", fill},
      {"raise StrategySelectionChanged 2", fill},
  };
  return entry;
}

CatalogueEntry StrategyMarquixEntry() {
  CatalogueEntry entry = EntryOf<StrategyMarquix>("StrategyMarquix");
  entry.properties = {
      {"Caption", "Strategy Un-defined", "a caption", Saved::Yes},
      {"ControlType", 0, 2},
      {"Enabled", true, false},
      {"ListIndex", -2, -2},
      {"ourStrategyListFormats", 0, 1},
  };
  entry.failedRead = FailedRead::Reported;
  entry.failedWrite = FailedWrite::Reported;
  entry.neverRaised = {"BettingStrategySelected", "PlayingStrategySelected"};
  entry.raisers = {
      RaiserOf<StrategyMarquix>("StrategySelectionChanged",
                                [](HeadlessSite&, StrategyMarquix& marquee) {
                                  marquee.AddItem("row");
                                  marquee.Children.StrategyListBox.Children.StrategyListBox.PickRow(0);
                                }),
      RaiserOf<StrategyMarquix>("StrategySelectionChanged",
                                [](HeadlessSite&, StrategyMarquix& marquee) {
                                  marquee.AddItem("row");
                                  marquee.ListIndex(-1);
                                }),
  };
  using Marquee = StrategyMarquix;
  entry.drives = {
      DriveOf<Marquee>("AddItem", [](CallOutHost&, Marquee& marquee) { marquee.AddItem("row"); }),
      DriveOf<Marquee>("aStrategyExists", [](CallOutHost&, Marquee& marquee) { marquee.aStrategyExists(); }),
      DriveOf<Marquee>("InputPlayingStrategyDescriptions",
                       [](CallOutHost&, Marquee& marquee) { marquee.InputPlayingStrategyDescriptions(); }),
      DriveOf<Marquee>("LoadStrategiesFromIniFile",
                       [](CallOutHost&, Marquee& marquee) { marquee.LoadStrategiesFromIniFile(); }),
      DriveOf<Marquee>("SelectThisStrategy", [](CallOutHost&, Marquee& marquee) { marquee.SelectThisStrategy(true); }),
      DriveOf<Marquee>("SetFocus", [](CallOutHost&, Marquee& marquee) { marquee.SetFocus(); }),
      DriveOf<Marquee>("UseThisStrategyList",
                       [](CallOutHost& host, Marquee& marquee) { marquee.UseThisStrategyList(host.Collection()); }),
      DriveOf<Marquee>("pick of a row that is not present",
                       [](CallOutHost&, Marquee& marquee) {
                         marquee.Children.StrategyListBox.AddItem("Not Present", 0);
                         marquee.Children.StrategyListBox.Children.StrategyListBox.PickRow(0);
                       }),
  };
  entry.callsOut = CalledByLists;
  entry.passesOver = PassedOverInFills;
  return entry;
}

}  // namespace tactix::tests
