#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix {

/// Stands for bytes or codes that are no character.
inline constexpr char32_t ReplacementCharacter = 0xFFFD;

/// Whether a code is one that Unicode text may hold: 0 ... 10FFFF without the surrogates.
constexpr bool IsUnicodeScalar(char32_t code) { return code < 0xD800 || (code > 0xDFFF && code <= 0x10FFFF); }

struct Utf8Character {
  char32_t code = ReplacementCharacter;
  std::size_t length = 1;  ///< bytes to pass over, at least 1
  bool wellFormed = false;
};

/// The first character of a text that is not empty. Malformed text reads as ReplacementCharacter: one for each longest
/// run of bytes that begins a character but does not complete it, and one for each other byte.
TACTIX_EXPORT Utf8Character DecodeUtf8(std::string_view text);
/// Adds a character; a code that is no Unicode scalar value becomes ReplacementCharacter.
TACTIX_EXPORT void AppendUtf8(std::string& text, char32_t code);
/// How many characters DecodeUtf8 finds.
TACTIX_EXPORT std::size_t CountUtf8(std::string_view text);
TACTIX_EXPORT bool IsUtf8(std::string_view text);

}  // namespace tactix
