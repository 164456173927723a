#include "tests/support/Catalogue.h"

#include <ostream>

namespace tactix::tests {

void PrintTo(const CatalogueEntry& entry, std::ostream* out) { *out << entry.name; }

const std::vector<CatalogueEntry>& Catalogue() {
  static const std::vector<CatalogueEntry> entries = {
      StrategyListEntry(),        StrategyListLITEEntry(),     BetStrategyListEntry(),   CountStrategyListEntry(),
      StrategyMarquixEntry(),     AdviceButtonEntry(),         DecisionEntry(),          DecisionBAREntry(),
      DecisionBAR2Entry(),        HitStandLegendEntry(),       DecisionRegisterEntry(),  DecisionRegiLOGEntry(),
      CardCountDisplayBoxEntry(), DualCardCountDisplayEntry(), StrategyDataPanelEntry(), SpinCounterEntry(),
      CountValueSelectorEntry(),  ClumpCardListEntry(),        UnitSelectionListEntry(),
  };
  return entries;
}

}  // namespace tactix::tests
