// Whether the catalogue is complete: the list for hosts names all controls, too.

#include "tests/support/Catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace tactix::tests {
namespace {

using Names = std::set<std::string>;

TEST(CatalogueTest, HasTheControlsOfTheReadme) {
  std::ifstream readme(std::string(TACTIX_SOURCE_DIR) + "/README.md");
  ASSERT_TRUE(readme);
  Names listed;
  const std::regex row(R"(^\| `(\w+)` \|.*)");
  std::smatch match;
  for (std::string line; std::getline(readme, line);) {
    if (std::regex_match(line, match, row)) listed.insert(match[1]);
  }
  Names controls = {"DecisionBlock"};  // a record: listed beside them
  for (const CatalogueEntry& entry : Catalogue()) controls.insert(entry.name);
  EXPECT_EQ(controls, listed);
}

}  // namespace
}  // namespace tactix::tests
