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
  return entry;
}

/// A count list together with a catalogue that all lists of its kind share while there are any.
class DescribedCountList final : public CountStrategyList {
 public:
  explicit DescribedCountList(Site& site) : CountStrategyList(site) {}

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
  return entry;
}

CatalogueEntry StrategyListLITEEntry() {
  CatalogueEntry entry = NumberedListEntry<StrategyListLITE>("StrategyListLITE");
  entry.failedRead = FailedRead::Reported;
  entry.failedWrite = FailedWrite::Reported;
  return entry;
}

CatalogueEntry BetStrategyListEntry() {
  return NumberedListEntry<BetStrategyList>("BetStrategyList",
                                            "Click the down-arrow to open the Betting Strategy List");
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
  return entry;
}

}  // namespace tactix::tests
