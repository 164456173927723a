#include "tests/support/ListKinds.h"

#include <ostream>

#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"

namespace tactix::tests {

namespace {

template <class List>
ListKind KindOf(std::string name) {
  ListKind kind;
  kind.name = std::move(name);
  kind.make = [](Site& site) -> std::unique_ptr<StrategyListControl> { return std::make_unique<List>(site); };
  kind.box = [](StrategyListControl& list) -> ListBox& {
    auto& children = static_cast<List&>(list).Children;
    if constexpr (requires { children.BetStrategyListBox; }) {
      return children.BetStrategyListBox;
    } else {
      return children.StrategyListBox;
    }
  };
  kind.fill = [](StrategyListControl& control) {
    auto& list = static_cast<List&>(control);
    if constexpr (requires { list.InputPlayingStrategyDescriptions(); }) {
      list.InputPlayingStrategyDescriptions();
    } else if constexpr (requires { list.InputBettingStrategyDescriptions(); }) {
      list.InputBettingStrategyDescriptions();
    } else {
      list.InputCountStrategyDescriptions();
    }
  };
  kind.watch = [](EventRecorder& recorder, StrategyListControl& list) {
    recorder.Watch(static_cast<List&>(list).Events.All());
  };
  kind.reported = [](std::int32_t row, const std::string&) {
    return "StrategySelectionChanged#1(" + std::to_string(row - 1) + ")";
  };
  kind.describe = [](FakeCatalogue& catalogue) { catalogue.Describe(4); };
  kind.calls = {"Range", "Playing -1", "Playing 2"};
  return kind;
}

std::vector<ListKind> MakeKinds() {
  ListKind playing = KindOf<StrategyList>("StrategyList");
  playing.highestReportedRow = 55;
  playing.reportsFailedFill = true;
  playing.releasesTheCollection = true;

  ListKind compact = KindOf<StrategyListLITE>("StrategyListLITE");
  compact.reportsFailedRead = true;
  compact.reportsFailedWrite = true;
  compact.reportsFailedResize = true;
  compact.releasesTheCollection = true;

  ListKind betting = KindOf<BetStrategyList>("BetStrategyList");
  betting.reportsFailedFill = true;
  betting.boxName = "BetStrategyListBox";
  betting.toolTip = "Click the down-arrow to open the Betting Strategy List";
  betting.describe = [](FakeCatalogue& catalogue) { catalogue.DescribeBetting(4); };
  betting.calls = {"Range", "Playing -1", "Betting -1", "Playing 2", "Betting 2"};

  ListKind count = KindOf<CountStrategyList>("CountStrategyList");
  count.text = "Select a Count Strategy";
  count.fontName = "";
  count.saved = {"CountStrategy", "BackColor", "ForeColor", "ToolTipText", "Font", "DefaultContent", "Text", "Enabled"};
  count.reportsFailedWrite = true;
  count.reportsFailedResize = true;
  count.failureOfTheHighestNumber = 6;
  count.reported = [](std::int32_t row, const std::string& text) {
    return "StrategySelectionChanged#1(" + std::to_string(row + 10) + ", " + text + ")";
  };
  count.describe = [](FakeCatalogue& catalogue) { catalogue.DescribeCounts(); };
  count.calls = {"Range", "Store", "Count 11", "Count 20"};

  return {playing, compact, betting, count};
}

}  // namespace

void PrintTo(const ListKind& kind, std::ostream* out) { *out << kind.name; }

const std::vector<ListKind>& ListKinds() {
  static const std::vector<ListKind> kinds = MakeKinds();
  return kinds;
}

}  // namespace tactix::tests
