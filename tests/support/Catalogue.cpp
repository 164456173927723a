#include "tests/support/Catalogue.h"

#include <ostream>

namespace tactix::tests {

void PrintTo(const CatalogueEntry& entry, std::ostream* out) { *out << entry.name; }

const std::vector<CatalogueEntry>& Catalogue() {
  static const std::vector<CatalogueEntry> entries = {
#define CONTROL(name) name##Entry(),
#include "tests/support/Controls.inc"
#undef CONTROL
  };
  return entries;
}

}  // namespace tactix::tests
