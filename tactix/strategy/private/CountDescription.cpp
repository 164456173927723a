#include "tactix/strategy/private/CountDescription.h"

#include <charconv>
#include <system_error>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/private/Utf8.h"
#include "tactix/strategy/StrategyListData.h"
#include "tactix/strategy/private/FlagText.h"
#include "tactix/strategy/private/RowTexts.h"

namespace tactix {

namespace {

constexpr int HighestCard = 13;

/// The part of a shifted text that is looked at: its first ShiftedWidth characters.
std::string_view Scrambled(std::string_view text) {
  std::string_view rest = text;
  for (std::size_t i = 0; i < ShiftedWidth && !rest.empty(); ++i) rest.remove_prefix(DecodeUtf8(rest).length);
  return text.substr(0, text.size() - rest.size());
}

std::int16_t NumberOf(std::string_view field) {
  // Fast path: nearly all fields are short and have no sign.
  std::int16_t number = 0;
  const char* const end = field.data() + field.size();
  const bool isPlain = !field.empty() && field.front() >= '0' && field.front() <= '9';
  const auto [stop, error] = std::from_chars(field.data(), end, number);
  return isPlain && error == std::errc() && stop == end ? number : Variant(field).ToInteger();
}

}  // namespace

std::string_view CountDescription::Next(char separator) {
  const std::size_t end = rest_.find(separator);
  if (end == std::string_view::npos) throw Error(Error::InvalidProcedureCall);
  const std::string_view field = rest_.substr(0, end);
  rest_.remove_prefix(end + 1);
  return field;
}

bool CountDescription::ReadTexts(CountStrategyRecord& record, int system) {
  record.Description = Next(',');
  if (!Has(',')) {
    record.Name = UnusableRowText(system);
    return false;
  }
  record.Name = Next(',');
  // Without a blank this flag is left as it was; reading the next one then fails with 5.
  if (Has(' ')) {
    record.Enciphered = FlagOf(Next(' '));
    if (record.Enciphered) {
      record.Description = UnshiftAndTrimStrategyText(Scrambled(record.Description));
      record.Name = UnshiftStrategyText(Scrambled(record.Name));
    }
  }
  record.Listed = FlagOf(Next(' '));
  if (!record.Listed) record.Name = NotPresentText;
  return record.Listed;
}

void CountDescription::ReadNumbers(CountStrategyRecord& record, int system) {
  record.CountSetting3 = NumberOf(Next(' '));
  record.CountSetting4 = NumberOf(Next(' '));
  record.CountSetting1 = NumberOf(Next(' '));
  record.CountSetting2 = NumberOf(Next(' '));
  // Point values are stored under the system's number, which is 11 or higher, but the record has room for 1 to 4 only.
  // So any field here fails with 9 and ends the fill: odd, but meant, since hosts know the lists that way.
  for (int card = 1; card <= HighestCard && Has(' '); ++card) record.PointValues(system, card, NumberOf(Next(' ')));
}

}  // namespace tactix
