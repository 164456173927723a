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

}  // namespace

CatalogueEntry DecisionRegisterEntry() {
  CatalogueEntry entry = EntryOf<DecisionRegister>("DecisionRegister");
  entry.properties = RegisterProperties();
  return entry;
}

CatalogueEntry DecisionRegiLOGEntry() {
  CatalogueEntry entry = EntryOf<DecisionRegiLOG>("DecisionRegiLOG");
  entry.properties = RegisterProperties();
  return entry;
}

}  // namespace tactix::tests
