// A method that no drive calls is one that the sweep over the call-outs does not see. The headers say which there are.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "tactix/platform/PropertyTable.h"
#include "tests/support/Catalogue.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

namespace fs = std::filesystem;

/// What containers call, and every drive of a container covers.
const std::set<std::string> Notifications = {
    "InitProperties", "ReadProperties", "WriteProperties", "Resized", "Displayed", "GotFocus",
    "AmbientChanged", "Terminated",     "Properties",      "Methods", "All"};

/// What gives something that no variant can hold.
const std::set<std::string> NotForLateBinding = {"InnerAdviceButton", "InnerList", "Record"};

std::string HeaderOf(const std::string& className) {
  for (const fs::directory_entry& file : fs::recursive_directory_iterator(fs::path(TACTIX_SOURCE_DIR) / "tactix")) {
    if (file.path().extension() != ".h") continue;
    std::ostringstream text;
    text << std::ifstream(file.path()).rdbuf();
    if (text.str().find("class TACTIX_EXPORT " + className + " : public") != std::string::npos) return text.str();
  }
  return {};
}

/// The methods that a class and its bases offer to hosts, constant ones without arguments apart: they call nobody.
std::set<std::string> MethodsOf(const std::string& className) {
  std::set<std::string> methods;
  const std::string header = HeaderOf(className);
  EXPECT_FALSE(header.empty()) << className;
  std::smatch base;
  const std::regex heading("class TACTIX_EXPORT " + className + " : public (\\w+)");
  if (std::regex_search(header, base, heading) && base[1] != "Control") methods = MethodsOf(base[1]);

  std::istringstream lines(header.substr(header.find("class TACTIX_EXPORT " + className)));
  const std::regex method(R"(^  (?:[\w:<>&*]+ )+(?:&|\*)?(\w+)\(.*)");
  bool isPublic = false;
  for (std::string line; std::getline(lines, line) && line != "};";) {
    if (line == " public:" || line == " protected:" || line == " private:") isPublic = line == " public:";
    std::smatch match;
    const bool calls = isPublic && std::regex_match(line, match, method) && line.find("explicit ") == std::string::npos;
    if (calls && line.find("() const") == std::string::npos) methods.insert(match[1]);
  }
  return methods;
}

class MethodsDrivenTest : public testing::TestWithParam<CatalogueEntry> {};

TEST_P(MethodsDrivenTest, EveryMethodIsDriven) {
  std::set<std::string> driven = Notifications;
  driven.insert(NotForLateBinding.begin(), NotForLateBinding.end());
  for (const CataloguedProperty& property : GetParam().properties) driven.insert(property.name);
  for (const Drive& drive : GetParam().drives) driven.insert(drive.name.substr(0, drive.name.find_first_of(" ,")));
  for (const std::string& method : MethodsOf(GetParam().name)) EXPECT_TRUE(driven.contains(method)) << method;
}

TEST_P(MethodsDrivenTest, EveryMethodCanBeCalledByName) {
  HeadlessSite site;
  const std::unique_ptr<Control> control = GetParam().make(site);
  std::set<std::string> known = NotForLateBinding;
  known.insert(Notifications.begin(), Notifications.end());
  for (const PropertyTable::Row& row : control->Properties().Rows()) known.insert(row.name);
  for (const MethodTable::Row& row : control->Methods().Rows()) EXPECT_TRUE(known.insert(row.name).second) << row.name;
  for (const std::string& method : MethodsOf(GetParam().name)) EXPECT_TRUE(known.contains(method)) << method;
}

INSTANTIATE_TEST_SUITE_P(Controls, MethodsDrivenTest, testing::ValuesIn(Catalogue()), RowName());

TEST(MethodsOfTest, FindsThem) {
  const std::set<std::string> counter = MethodsOf("SpinCounter");
  EXPECT_TRUE(counter.contains("ResetSizeToDefault"));
  EXPECT_TRUE(counter.contains("CounterValue"));
  EXPECT_FALSE(counter.contains("StepUp"));
  const std::set<std::string> bar = MethodsOf("DecisionBAR2");
  EXPECT_TRUE(bar.contains("ResetTheHitcardPredictionButtons"));
  EXPECT_TRUE(bar.contains("FlashObject"));
}

}  // namespace
}  // namespace tactix::tests
