#include "tactix/strategy/private/BettingDescription.h"

#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/FlagText.h"
#include "tactix/strategy/private/RowTexts.h"

namespace tactix {

std::optional<std::string> BettingRowText(std::string_view description, int strategy) {
  constexpr auto none = std::string_view::npos;
  const std::size_t firstComma = description.find(',');
  if (firstComma == none) return std::nullopt;
  const std::size_t secondComma = description.find(',', firstComma + 1);
  if (secondComma == none) return std::string(UnusableRowText(strategy));
  std::string caption(description.substr(firstComma + 1, secondComma - firstComma - 1));
  const std::string_view rest = description.substr(secondComma + 1);
  if (rest.find('\\') != none) {
    // No list shows the note. It is unshifted all the same, because a note that cannot be must fail.
    static_cast<void>(UnshiftAndTrimStrategyText(description.substr(0, firstComma)));
    caption = UnshiftStrategyText(caption);
  }
  // The flag is one character; whatever follows it is ignored.
  const bool present = FlagOf(rest.substr(0, 1));
  if (strategy < 0 || !present) return std::string(UnusableRowText(strategy));
  return caption;
}

}  // namespace tactix
