#include "tactix/platform/private/Utf8.h"

namespace tactix {

namespace {

/// A range of first bytes, with the length of their characters and the range of second bytes, which keeps out overlong
/// forms, surrogates and codes past 10FFFF.
struct LeadByte {
  unsigned first;
  unsigned last;
  std::size_t length;
  unsigned lowestSecond;
  unsigned highestSecond;
};

constexpr LeadByte LeadBytes[] = {
    {0x00, 0x7F, 1, 0x00, 0x00}, {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF}, {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

constexpr unsigned ByteOf(char c) { return static_cast<unsigned char>(c); }

constexpr char TrailByte(char32_t bits) { return static_cast<char>(0x80 | (bits & 0x3F)); }

}  // namespace

Utf8Character DecodeUtf8(std::string_view text) {
  const unsigned first = ByteOf(text.front());
  for (const LeadByte& lead : LeadBytes) {
    if (first < lead.first || first > lead.last) continue;
    if (lead.length == 1) return {first, 1, true};
    char32_t code = first & (0x7FU >> lead.length);
    unsigned lowest = lead.lowestSecond;
    unsigned highest = lead.highestSecond;
    for (std::size_t i = 1; i < lead.length; ++i) {
      if (i == text.size()) return {ReplacementCharacter, i, false};
      const unsigned byte = ByteOf(text[i]);
      if (byte < lowest || byte > highest) return {ReplacementCharacter, i, false};
      code = (code << 6) | (byte & 0x3F);
      lowest = 0x80;
      highest = 0xBF;
    }
    return {code, lead.length, true};
  }
  return {};
}

void AppendUtf8(std::string& text, char32_t code) {
  if (!IsUnicodeScalar(code)) code = ReplacementCharacter;
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | (code >> 6));
    text += TrailByte(code);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0 | (code >> 12));
    text += TrailByte(code >> 6);
    text += TrailByte(code);
  } else {
    text += static_cast<char>(0xF0 | (code >> 18));
    text += TrailByte(code >> 12);
    text += TrailByte(code >> 6);
    text += TrailByte(code);
  }
}

std::size_t CountUtf8(std::string_view text) {
  std::size_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(DecodeUtf8(text).length);
  return count;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const Utf8Character character = DecodeUtf8(text);
    if (!character.wellFormed) return false;
    text.remove_prefix(character.length);
  }
  return true;
}

}  // namespace tactix
