// The room "scoring" in the catalogue.

#include "tactix/scoring/DecisionRegiLOG.h"
#include "tactix/scoring/DecisionRegister.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

namespace {

/// A register with a log has the properties of the register inside.
std::vector<CataloguedProperty> RegisterProperties() {
  return {
      {"NumberOfDecisions", 0, 12},
      {"NumberOfCorrectDecisions", 0, 11},
      {"NumberOfBreakDecisions", 0, 10},
      {"TypeOfDecisionRegister", 1, 2},
      {"AfterAdvice", {}, 3},
  };
}

template <class Register>
std::vector<Drive> RegisterDrives() {
  return {
      DriveOf<Register>("DisplayTheDrillResults",
                        [](CallOutHost&, Register& counts) { counts.DisplayTheDrillResults(12, 11); }),
      DriveOf<Register>("ResetDecisionData", [](CallOutHost&, Register& counts) { counts.ResetDecisionData(); }),
      DriveOf<Register>("SetupStatisticsBox", [](CallOutHost&, Register& counts) { counts.SetupStatisticsBox(true); }),
  };
}

}  // namespace

CatalogueEntry DecisionRegisterEntry() {
  CatalogueEntry entry = EntryOf<DecisionRegister>("DecisionRegister");
  entry.properties = RegisterProperties();
  entry.drives = RegisterDrives<DecisionRegister>();
  entry.callsOut = {CallOut::Focus};
  return entry;
}

CatalogueEntry DecisionRegiLOGEntry() {
  CatalogueEntry entry = EntryOf<DecisionRegiLOG>("DecisionRegiLOG");
  entry.properties = RegisterProperties();
  entry.drives = RegisterDrives<DecisionRegiLOG>();
  entry.callsOut = {CallOut::Focus};
  return entry;
}

}  // namespace tactix::tests
