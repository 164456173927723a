#include "tactix/strategy/StrategyListLITE.h"

#include "tactix/platform/Tolerance.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/PlayingDescription.h"
#include "tactix/strategy/private/StrategyListRules.h"

namespace tactix {

namespace {

constexpr StrategyListRules Rules = {
    .highestReportedRow = StrategyListLITE::HighestReportedRow,
    .failedResize = OnFailure::Report,
    .atTheEnd = AtTheEnd::ReleaseTheCollection,
};

}  // namespace

StrategyListLITE::StrategyListLITE(Site& site) : NumberedStrategyList(site, Rules) { SetUpBox(); }

StrategyListLITE::~StrategyListLITE() { MarkAsGone(); }

void StrategyListLITE::InputPlayingStrategyDescriptions() {
  IgnoringErrors([this] { FillUpTo(Range().HighestPlayingStrategy); });
}

void StrategyListLITE::FillRow(std::int16_t strategy) {
  const Weak<StrategyListLITE> self(this);
  DescriptionBuffer& buffer = StrategyListData::Buffer();
  bool isEmpty = false;  // stays false where there is no catalogue
  PassingOverObjectNotSet([&] { isEmpty = DescribePlaying(strategy).empty(); });
  if (isEmpty || !self) return;
  PassingOverObjectNotSet([&] { buffer.Write(DescribePlaying(strategy)); });
  if (self) Box().Append(CompactRowText(buffer.Text(), strategy));
}

const PropertyTable& StrategyListLITE::Properties() const {
  static const PropertyTable table =
      NumberedProperties().FailedReads(OnFailedRead::Report).FailedWrites(OnFailure::Report);
  return table;
}

const MethodTable& StrategyListLITE::Methods() const {
  static const MethodTable table =
      CommonMethods().Method("InputPlayingStrategyDescriptions", &StrategyListLITE::InputPlayingStrategyDescriptions);
  return table;
}

}  // namespace tactix
