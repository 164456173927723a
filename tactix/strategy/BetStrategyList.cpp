#include "tactix/strategy/BetStrategyList.h"

#include <utility>

#include "tactix/platform/Tolerance.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/BettingDescription.h"
#include "tactix/strategy/private/StrategyListRules.h"

namespace tactix {

namespace {

constexpr StrategyListRules Rules = {
    .boxName = "BetStrategyListBox",
    .toolTip = "Click the down-arrow to open the Betting Strategy List",
    .highestReportedRow = BetStrategyList::HighestReportedRow,
};

}  // namespace

BetStrategyList::BetStrategyList(Site& site) : NumberedStrategyList(site, Rules) { SetUpBox(); }

BetStrategyList::~BetStrategyList() { MarkAsGone(); }

void BetStrategyList::InputBettingStrategyDescriptions() {
  try {
    FillUpTo(Range().HighestBettingStrategy);
  } catch (const Error& error) {
    throw Error(error.Code(), "InputBettingStrategyDescriptions", "BettingStrategyList::");
  }
}

void BetStrategyList::FillRow(std::int16_t strategy) {
  const Weak<BetStrategyList> self(this);
  DescriptionBuffer& buffer = StrategyListData::Buffer();
  // Asks about the playing strategy of this number, not the betting strategy, deliberately.
  bool isEmpty = false;  // stays false where there is no catalogue
  PassingOverObjectNotSet([&] { isEmpty = DescribePlaying(strategy).empty(); });
  if (isEmpty || !self) return;
  PassingOverObjectNotSet([&] { buffer.Write(DescribeBetting(strategy)); });
  if (!self) return;
  if (auto text = BettingRowText(buffer.Text(), strategy)) Box().Append(std::move(*text));
}

void BetStrategyList::Report(std::int32_t row) {
  const Weak<BetStrategyList> self(this);
  if (!quietSelection_) NumberedStrategyList::Report(row);
  if (self) quietSelection_ = false;
}

const MethodTable& BetStrategyList::Methods() const {
  static const MethodTable table =
      CommonMethods().Method("InputBettingStrategyDescriptions", &BetStrategyList::InputBettingStrategyDescriptions);
  return table;
}

}  // namespace tactix
