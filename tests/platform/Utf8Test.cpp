#include "tactix/platform/private/Utf8.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

struct DecodeRow {
  const char* name;
  std::string bytes;
  std::vector<char32_t> characters;
  bool wellFormed = true;
};

class Utf8DecodeTest : public testing::TestWithParam<DecodeRow> {};

TEST_P(Utf8DecodeTest, FindsTheCharacters) {
  const DecodeRow& row = GetParam();
  std::vector<char32_t> characters;
  bool wellFormed = true;
  std::size_t at = 0;
  while (at < row.bytes.size()) {
    const Utf8Character character = DecodeUtf8(std::string_view(row.bytes).substr(at));
    characters.push_back(character.code);
    wellFormed = wellFormed && character.wellFormed;
    at += character.length;
  }
  EXPECT_EQ(at, row.bytes.size());
  EXPECT_EQ(characters, row.characters);
  EXPECT_EQ(wellFormed, row.wellFormed);
  EXPECT_EQ(IsUtf8(row.bytes), row.wellFormed);
  EXPECT_EQ(CountUtf8(row.bytes), row.characters.size());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Utf8DecodeTest,
    testing::Values(DecodeRow{"Empty", "", {}}, DecodeRow{"Ascii", "a\x7F", {'a', 0x7F}},
                    DecodeRow{"Null", std::string(1, '\0'), {0}}, DecodeRow{"TwoBytesLowest", "\xC2\x80", {0x80}},
                    DecodeRow{"TwoBytesHighest", "\xDF\xBF", {0x7FF}},
                    DecodeRow{"ThreeBytesLowest", "\xE0\xA0\x80", {0x800}},
                    DecodeRow{"LastBeforeSurrogates", "\xED\x9F\xBF", {0xD7FF}},
                    DecodeRow{"FirstAfterSurrogates", "\xEE\x80\x80", {0xE000}},
                    DecodeRow{"ThreeBytesHighest", "\xEF\xBF\xBF", {0xFFFF}},
                    DecodeRow{"FourBytesLowest", "\xF0\x90\x80\x80", {0x10000}},
                    DecodeRow{"FourBytesHighest", "\xF4\x8F\xBF\xBF", {0x10FFFF}},
                    DecodeRow{"WellFormedReplacement", "\xEF\xBF\xBD", {0xFFFD}},
                    DecodeRow{"Mixed", "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x82\xA1z", {'a', 0xE9, 0x20AC, 0x1F0A1, 'z'}},
                    DecodeRow{"TrailByteAlone", "a\x80z", {'a', 0xFFFD, 'z'}, false},
                    DecodeRow{"OverlongTwo", "\xC1\xBF", {0xFFFD, 0xFFFD}, false},
                    DecodeRow{"OverlongThree", "\xE0\x9F\xBF", {0xFFFD, 0xFFFD, 0xFFFD}, false},
                    DecodeRow{"OverlongFour", "\xF0\x8F\xBF\xBF", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}, false},
                    DecodeRow{"Surrogate", "\xED\xA0\x80", {0xFFFD, 0xFFFD, 0xFFFD}, false},
                    DecodeRow{"PastTheLast", "\xF4\x90\x80\x80", {0xFFFD, 0xFFFD, 0xFFFD, 0xFFFD}, false},
                    DecodeRow{"NoLeadByte", "\xF5\xFF", {0xFFFD, 0xFFFD}, false},
                    DecodeRow{"CutOffAtTheEnd", "\xF0\x9F\x82", {0xFFFD}, false},
                    DecodeRow{"CutOffInTheMiddle", "\xE2\x82z", {0xFFFD, 'z'}, false}),
    RowName());

struct AppendRow {
  const char* name;
  char32_t code;
  std::string bytes;
};

class Utf8AppendTest : public testing::TestWithParam<AppendRow> {};

TEST_P(Utf8AppendTest, AddsTheBytes) {
  std::string text = "x";
  AppendUtf8(text, GetParam().code);
  EXPECT_EQ(text, "x" + GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Rows, Utf8AppendTest,
                         testing::Values(AppendRow{"Null", 0, std::string(1, '\0')},
                                         AppendRow{"OneByteHighest", 0x7F, "\x7F"},
                                         AppendRow{"TwoBytesLowest", 0x80, "\xC2\x80"},
                                         AppendRow{"TwoBytesHighest", 0x7FF, "\xDF\xBF"},
                                         AppendRow{"ThreeBytesLowest", 0x800, "\xE0\xA0\x80"},
                                         AppendRow{"ThreeBytesHighest", 0xFFFF, "\xEF\xBF\xBF"},
                                         AppendRow{"FourBytesLowest", 0x10000, "\xF0\x90\x80\x80"},
                                         AppendRow{"FourBytesHighest", 0x10FFFF, "\xF4\x8F\xBF\xBF"},
                                         AppendRow{"FirstSurrogate", 0xD800, "\xEF\xBF\xBD"},
                                         AppendRow{"LastSurrogate", 0xDFFF, "\xEF\xBF\xBD"},
                                         AppendRow{"PastTheLast", 0x110000, "\xEF\xBF\xBD"}),
                         RowName());

TEST(Utf8Test, EveryCharacterComesBack) {
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (!IsUnicodeScalar(code)) continue;
    std::string text;
    AppendUtf8(text, code);
    const Utf8Character character = DecodeUtf8(text);
    ASSERT_TRUE(character.wellFormed && character.code == code && character.length == text.size())
        << static_cast<unsigned long>(code);
  }
}

}  // namespace
}  // namespace tactix::tests
