// The value entry controls of the room "counting" in the catalogue.

#include <memory>

#include "tactix/counting/ClumpCardList.h"
#include "tactix/counting/CountValueSelector.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/counting/UnitSelectionList.h"
#include "tests/support/Catalogue.h"
#include "tests/support/InstalledCounterValues.h"

namespace tactix::tests {

namespace {

/// What the selectors of a card's value share.
void AddTheSelectorsCallOuts(CatalogueEntry& entry) {
  entry.callsOut = {CallOut::Event,   CallOut::Notice,   CallOut::Focus,
                    CallOut::BagRead, CallOut::BagWrite, CallOut::ObjectEnds};
  entry.passesOver = {
      {"ReadProperties", {CallOut::Event, CallOut::Notice, CallOut::BagRead}},
      {"WriteProperties", {CallOut::BagWrite}},
  };
}

}  // namespace

CatalogueEntry SpinCounterEntry() {
  CatalogueEntry entry = EntryOf<SpinCounter>("SpinCounter");
  entry.make = [](Site& site) {
    InstallCounterValues();
    return std::make_unique<SpinCounter>(site);
  };
  entry.properties = {
      {"CounterValue", 0, 12, Saved::Yes},
      {"MaximumLimit", 999, 50, Saved::Yes},
      {"NumberWrap", false, true},
      {"AllowNegNumbers", false, true, Saved::Yes},
      {"ControlHandedness", 2, 1, Saved::Yes},
      {"Font", Font{"Comic Sans MS", 12}, Font{"Serif", 11, true}, Saved::Yes},
      {"UseDefaultSize", false, true, Saved::No, false},
  };
  entry.alsoSaved = {"Height"};
  entry.announcedAtFirst = {"MaximumLimit"};
  entry.raisers = {
      RaiserOf<SpinCounter>("CounterValueHasChanged",
                            [](HeadlessSite&, SpinCounter& counter) { counter.Children.SpinButton.SpinUp(); }),
      RaiserOf<SpinCounter>("CounterValueHasChanged",
                            [](HeadlessSite&, SpinCounter& counter) { counter.Children.SpinButton.SpinDown(); }),
      RaiserOf<SpinCounter>("CounterValueHasChanged",
                            [](HeadlessSite&, SpinCounter& counter) { counter.CounterValue(5); }),
  };
  entry.drives = {
      DriveOf<SpinCounter>("ResetSizeToDefault",
                           [](CallOutHost&, SpinCounter& counter) { counter.ResetSizeToDefault(); }),
      DriveOf<SpinCounter>("ControlHandedness of none",
                           [](CallOutHost&, SpinCounter& counter) { counter.ControlHandedness(5); }),
  };
  entry.callsOut = {CallOut::Event,    CallOut::Notice,       CallOut::Beep,    CallOut::Focus,     CallOut::BagRead,
                    CallOut::BagWrite, CallOut::CounterValue, CallOut::Factory, CallOut::ObjectEnds};
  entry.passesOver = {
      {"ReadProperties", {CallOut::Notice, CallOut::BagRead, CallOut::CounterValue, CallOut::Factory}},
      {"WriteProperties", {CallOut::BagWrite, CallOut::CounterValue, CallOut::Factory}},
  };
  return entry;
}

CatalogueEntry CountValueSelectorEntry() {
  CatalogueEntry entry = EntryOf<CountValueSelector>("CountValueSelector");
  entry.properties = {
      {"CardValue", 1, 10, Saved::Yes},
      // Without a row to pick, which is saved as -11 and does not come back.
      {"PointValue", 0, 3, Saved::WrittenOnly, -11},
  };
  entry.raisers = {
      RaiserOf<CountValueSelector>(
          "CountValueSelected",
          [](HeadlessSite&, CountValueSelector& selector) { selector.Children.cmbPointValue.PickRow(20); }),
      RaiserOf<CountValueSelector>("CountValueSelected",
                                   [](HeadlessSite&, CountValueSelector& selector) { selector.PointValue(1); }),
  };
  AddTheSelectorsCallOuts(entry);
  return entry;
}

CatalogueEntry ClumpCardListEntry() {
  CatalogueEntry entry = EntryOf<ClumpCardList>("ClumpCardList");
  entry.properties = {
      {"CardValue", 1, 10, Saved::Yes},
      {"ClumpValue", 0, 3, Saved::WrittenOnly, -11},
  };
  entry.raisers = {
      RaiserOf<ClumpCardList>("ClumpValueSelected",
                              [](HeadlessSite&, ClumpCardList& list) { list.Children.cmbClumpValue.PickRow(20); }),
      RaiserOf<ClumpCardList>("ClumpValueSelected", [](HeadlessSite&, ClumpCardList& list) { list.ClumpValue(1); }),
  };
  AddTheSelectorsCallOuts(entry);
  return entry;
}

CatalogueEntry UnitSelectionListEntry() {
  CatalogueEntry entry = EntryOf<UnitSelectionList>("UnitSelectionList");
  entry.raisers = {
      RaiserOf<UnitSelectionList>(
          "UnitSizeSelected",
          [](HeadlessSite&, UnitSelectionList& list) { list.Children.comboBettingUnits.PickRow(0); }),
  };
  entry.callsOut = {CallOut::Event, CallOut::Focus, CallOut::ObjectEnds};
  return entry;
}

}  // namespace tactix::tests
