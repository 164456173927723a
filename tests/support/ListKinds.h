#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tactix/strategy/StrategyListControl.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"

namespace tactix::tests {

/// One of the four lists, for tests of what they share: how to handle it, and what about it is different.
struct ListKind {
  std::string name;
  std::unique_ptr<StrategyListControl> (*make)(Site& site);
  ListBox& (*box)(StrategyListControl& list);
  void (*fill)(StrategyListControl& list);
  void (*watch)(EventRecorder& recorder, StrategyListControl& list);
  /// The entry of a recorder for a row that was reported.
  std::string (*reported)(std::int32_t row, const std::string& text);
  /// Has the catalogue describe strategies that give several rows.
  void (*describe)(FakeCatalogue& catalogue);
  /// The catalogue's calls that a load makes, by kind.
  std::vector<std::string> calls;

  std::string boxName = "StrategyListBox";
  std::string text = "Select a Strategy";
  std::string toolTip;
  std::string fontName = "Comic Sans MS";
  std::int32_t highestReportedRow = 50;
  /// As saved; all but "DefaultContent" are read back.
  std::vector<std::string> saved = {"Enabled",     "BackColor",      "ForeColor", "Text",
                                    "ToolTipText", "DefaultContent", "Font"};
  /// What a write of 32767 to ListIndex fails with.
  std::int32_t failureOfTheHighestNumber = 380;
  bool reportsFailedFill = false;
  bool reportsFailedRead = false;
  bool reportsFailedWrite = false;
  bool reportsFailedResize = false;
  bool releasesTheCollection = false;
};

/// Named by its name in reports.
void PrintTo(const ListKind& kind, std::ostream* out);

const std::vector<ListKind>& ListKinds();

}  // namespace tactix::tests
