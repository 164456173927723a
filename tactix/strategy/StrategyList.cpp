#include "tactix/strategy/StrategyList.h"

#include <charconv>
#include <utility>

#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/PlayingDescription.h"
#include "tactix/strategy/private/StrategyListRules.h"

namespace tactix {

namespace {

constexpr StrategyListRules Rules = {
    .highestReportedRow = StrategyList::HighestReportedRow,
    .atTheEnd = AtTheEnd::ReleaseTheCollection,
};

/// A number with two digits at least.
class TwoDigits {
 public:
  explicit TwoDigits(std::int16_t number) {
    char* at = text_;
    if (number < 0) *at++ = '-';
    const int magnitude = number < 0 ? -number : number;
    if (magnitude < 10) *at++ = '0';
    end_ = std::to_chars(at, text_ + sizeof(text_), magnitude).ptr;
  }
  std::string_view Text() const { return {text_, static_cast<std::size_t>(end_ - text_)}; }

 private:
  char text_[8];
  char* end_;
};

}  // namespace

StrategyList::StrategyList(Site& site) : NumberedStrategyList(site, Rules) { SetUpBox(); }

StrategyList::~StrategyList() { MarkAsGone(); }

void StrategyList::InputPlayingStrategyDescriptions() { FillUpTo(Range().HighestPlayingStrategy); }

void StrategyList::FillRow(std::int16_t strategy) {
  const Weak<StrategyList> self(this);
  DescriptionBuffer& buffer = StrategyListData::Buffer();
  buffer.Write(TwoDigits(strategy).Text());
  buffer.Write(DescribePlaying(strategy));
  if (!self) return;
  // Asked again: the first answer gives the text, the second one says whether it is empty. Meant; a catalogue may count
  // its calls.
  const bool isEmpty = DescribePlaying(strategy).empty();
  if (!self) return;
  if (isEmpty) {
    Box().Append(std::string(UnusableRowText(strategy)));
  } else if (auto text = PlayingRowText(buffer.Text(), strategy)) {
    Box().Append(std::move(*text));
  }
}

const MethodTable& StrategyList::Methods() const {
  static const MethodTable table =
      CommonMethods().Method("InputPlayingStrategyDescriptions", &StrategyList::InputPlayingStrategyDescriptions);
  return table;
}

}  // namespace tactix
