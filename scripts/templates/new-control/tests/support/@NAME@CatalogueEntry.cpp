// @NAME@ in the catalogue.

#include "tactix/@ROOM@/@NAME@.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

CatalogueEntry @NAME@Entry() {
  CatalogueEntry entry = EntryOf<@NAME@>("@NAME@");
  entry.properties = {
      {"Value", 0, 12, Saved::Yes},
  };
  entry.raisers = {
      RaiserOf<@NAME@>("ValueChanged", [](HeadlessSite&, @NAME@& control) { control.Children.ValueButton.Click(); }),
      RaiserOf<@NAME@>("ValueChanged", [](HeadlessSite&, @NAME@& control) { control.Value(5); }),
  };
  entry.callsOut = {CallOut::Event,   CallOut::Notice,   CallOut::Focus,
                    CallOut::BagRead, CallOut::BagWrite, CallOut::ObjectEnds};
  entry.passesOver = {
      {"ReadProperties", {CallOut::BagRead}},
      {"WriteProperties", {CallOut::BagWrite}},
  };
  return entry;
}

}  // namespace tactix::tests
