#include "tactix/companion/ShiftedText.h"

#include <gtest/gtest.h>

#include <string>

#include "tactix/platform/Error.h"
#include "tactix/platform/private/Utf8.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::ShiftStrategyText;

TEST(ShiftedTextTest, RaisesTheCodes) {
  EXPECT_EQ(ShiftStrategyText(""), "");
  EXPECT_EQ(ShiftStrategyText("Basic"), "Lk}sm");
  EXPECT_EQ(ShiftStrategyText("1 Deck"), ";*Nomu");
  EXPECT_EQ(ShiftStrategyText("\xC3\xA9\xF0\x9F\x82\xA1"), "\xC3\xB3\xF0\x9F\x82\xAB");
}

TEST(ShiftedTextTest, EveryCharacterComesBackOrIsRefused) {
  int refused = 0;
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (!IsUnicodeScalar(code)) continue;
    std::string text;
    AppendUtf8(text, code);
    std::string shifted;
    try {
      shifted = ShiftStrategyText(text);
    } catch (const Error& error) {
      ASSERT_EQ(error.Code(), 5);
      ++refused;
      continue;
    }
    ASSERT_EQ(UnshiftStrategyText(shifted), text) << static_cast<unsigned long>(code);
    ASSERT_EQ(shifted.find_first_of(std::string_view(", \0", 3)), std::string::npos);
  }
  EXPECT_EQ(refused, 2 + 10 + 10) << "the comma, the blank, those before the surrogates and the last";
}

struct RefusedRow {
  const char* name;
  std::string text;
  std::string why;
};

class ShiftedTextRefusalTest : public testing::TestWithParam<RefusedRow> {};

TEST_P(ShiftedTextRefusalTest, SaysWhy) {
  try {
    ShiftStrategyText(GetParam().text);
    FAIL() << "not refused";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), 5);
    EXPECT_EQ(error.Description(), GetParam().why);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ShiftedTextRefusalTest,
    testing::Values(RefusedRow{"BecomesAComma", "the \"best\"", "a '\"' cannot be stored shifted"},
                    RefusedRow{"BecomesABlank", "a\x16", "holds a character that cannot be stored shifted"},
                    RefusedRow{"BecomesASurrogate", "\xED\x9F\xB6", "holds a character that cannot be stored shifted"},
                    RefusedRow{"BecomesTooHigh", "\xF4\x8F\xBF\xB6", "holds a character that cannot be stored shifted"},
                    RefusedRow{"Malformed", "a\xFF", "not UTF-8"},
                    RefusedRow{"TooLong", std::string(66, 'a'),
                               "longer than the 65 characters that can be stored shifted"}),
    RowName());

TEST(ShiftedTextTest, SixtyFiveCharactersFit) {
  std::string text;
  for (int i = 0; i < 65; ++i) text += "\xC3\xA9";
  EXPECT_EQ(UnshiftStrategyText(ShiftStrategyText(text)), text);
}

}  // namespace
}  // namespace tactix::tests
