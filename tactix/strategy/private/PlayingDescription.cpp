#include "tactix/strategy/private/PlayingDescription.h"

#include "tactix/platform/Error.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/FlagText.h"
#include "tactix/strategy/private/RowTexts.h"

namespace tactix {

namespace {

constexpr auto None = std::string_view::npos;

/// The caption of a strategy; nothing where it is not present.
std::optional<std::string> PresentCaption(std::string_view description) {
  const std::size_t firstComma = description.find(',');
  if (firstComma == None) throw Error(Error::InvalidProcedureCall);
  const std::size_t secondComma = description.find(',', firstComma + 1);
  if (secondComma == None) return std::nullopt;
  std::string caption(description.substr(firstComma + 1, secondComma - firstComma - 1));

  std::size_t presentAt = 0;  // without a blank the last field is read from the description's start: meant
  const std::size_t blank = description.find(' ', secondComma + 1);
  if (blank != None) {
    if (FlagOf(description.substr(secondComma + 1, blank - secondComma - 1))) {
      // No list shows the note. It is unshifted all the same, because a note that cannot be must fail.
      static_cast<void>(UnshiftAndTrimStrategyText(description.substr(0, firstComma)));
      caption = UnshiftStrategyText(caption);
    }
    presentAt = blank + 1;
  }
  const std::size_t end = description.find(' ', presentAt);
  if (end == None) throw Error(Error::InvalidProcedureCall);
  if (!FlagOf(description.substr(presentAt, end - presentAt))) return std::nullopt;
  return caption;
}

}  // namespace

std::optional<std::string> PlayingRowText(std::string_view description, int strategy) {
  if (description.find(',') == None) return std::nullopt;
  auto caption = PresentCaption(description);
  if (strategy < 0 || !caption) return std::string(NotPresentText);
  return caption;
}

std::string CompactRowText(std::string_view description, int strategy) {
  auto caption = PresentCaption(description);
  if (strategy < 0 || !caption) return std::string(UnusableRowText(strategy));
  return *std::move(caption);
}

}  // namespace tactix
