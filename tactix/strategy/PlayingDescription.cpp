#include "tactix/strategy/PlayingDescription.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"
#include "tactix/strategy/RowTexts.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix {

namespace {

bool ToFlag(std::string_view text) { return Variant(text).ToBoolean(); }

}  // namespace

std::optional<std::string> PlayingRowText(std::string_view description, int strategy) {
  constexpr auto none = std::string_view::npos;
  const std::size_t firstComma = description.find(',');
  if (firstComma == none) return std::nullopt;
  std::string note(description.substr(0, firstComma));
  const std::size_t secondComma = description.find(',', firstComma + 1);
  if (secondComma == none) return std::string(NotPresentText);
  std::string caption(description.substr(firstComma + 1, secondComma - firstComma - 1));

  std::size_t presentAt = 0;  // without a blank the last field starts at the first character
  const std::size_t blank = description.find(' ', secondComma + 1);
  if (blank != none) {
    if (ToFlag(description.substr(secondComma + 1, blank - secondComma - 1))) {
      note = UnshiftAndTrimStrategyText(note);
      caption = UnshiftStrategyText(caption);
    }
    presentAt = blank + 1;
  }
  const std::size_t end = description.find(' ', presentAt);
  if (end == none) throw Error(Error::InvalidProcedureCall);
  const bool present = ToFlag(description.substr(presentAt, end - presentAt));
  if (strategy < 0 || !present) return std::string(NotPresentText);
  return caption;
}

}  // namespace tactix
