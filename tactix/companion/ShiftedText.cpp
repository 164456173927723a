#include "tactix/companion/ShiftedText.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/private/Utf8.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::companion {

namespace {

char32_t Shift(const Utf8Character& character) {
  if (!character.wellFormed) throw Error(Error::InvalidProcedureCall, "not UTF-8");
  const char32_t shifted = character.code + ShiftDistance;
  if (shifted == U',') throw Error(Error::InvalidProcedureCall, "a '\"' cannot be stored shifted");
  if (shifted == U' ' || !IsUnicodeScalar(shifted)) {
    throw Error(Error::InvalidProcedureCall, "holds a character that cannot be stored shifted");
  }
  return shifted;
}

}  // namespace

std::string ShiftStrategyText(std::string_view text) {
  std::string shifted;
  for (std::size_t count = 0; !text.empty(); ++count) {
    if (count == ShiftedWidth) {
      throw Error(Error::InvalidProcedureCall, "longer than the 65 characters that can be stored shifted");
    }
    const Utf8Character character = DecodeUtf8(text);
    AppendUtf8(shifted, Shift(character));
    text.remove_prefix(character.length);
  }
  return shifted;
}

}  // namespace tactix::companion
