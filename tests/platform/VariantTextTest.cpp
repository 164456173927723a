#include "tactix/platform/Variant.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "tactix/platform/NumberText.h"
#include "tests/platform/ErrorCode.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr float SingleInfinity = std::numeric_limits<float>::infinity();
constexpr std::int16_t Integer(int value) { return static_cast<std::int16_t>(value); }

class Seat : public Object {};

TEST(VariantTextTest, TextToNumber) {
  struct Row {
    const char* text;
    std::int32_t error;
    double value;
  };
  const std::string manyZeros(5000, '0');
  const std::string longOne = "1" + manyZeros;
  const std::string longZero = manyZeros + "7";
  const std::string longFraction = "0." + manyZeros + "7e5001";
  // A tie between two doubles, then the same with something behind it.
  const std::string tie = "9007199254740993";
  const std::string aboveTie = tie + "." + manyZeros + "1";
  const Row rows[] = {
      {"0", 0, 0},
      {"7", 0, 7},
      {"+7", 0, 7},
      {"-7", 0, -7},
      {"  7\t", 0, 7},
      {"\r\n7 ", 0, 7},
      {"007", 0, 7},
      {"1.25", 0, 1.25},
      {".5", 0, 0.5},
      {"-.5", 0, -0.5},
      {"5.", 0, 5},
      {"1e3", 0, 1000},
      {"1E+3", 0, 1000},
      {"25e-2", 0, 0.25},
      {"0.1", 0, 0.1},
      {"0.30000000000000004", 0, 0.1 + 0.2},
      {"1.7976931348623157E+308", 0, std::numeric_limits<double>::max()},
      {"5E-324", 0, std::numeric_limits<double>::denorm_min()},
      {"1e-400", 0, 0},
      {"0e99999999999999999999", 0, 0},
      {"1e-99999999999999999999", 0, 0},
      {longZero.c_str(), 0, 7},
      {longFraction.c_str(), 0, 7},
      {tie.c_str(), 0, 9007199254740992.0},
      {aboveTie.c_str(), 0, 9007199254740994.0},
      {"&HFF", 0, 255},
      {"&hff", 0, 255},
      {" &H10 ", 0, 16},
      {"&HFFFF", 0, 65535},
      {"&H80000005", 0, -2147483643.0},
      {"&HFFFFFFFF", 0, -1},
      {"&H100000000", 6, 0},
      {"1e309", 6, 0},
      {"1e4294967297", 6, 0},
      {"1e18446744073709551617", 6, 0},
      {"-1e309", 6, 0},
      {"1e99999999999999999999", 6, 0},
      {longOne.c_str(), 6, 0},
      {"", 13, 0},
      {"   ", 13, 0},
      {"-", 13, 0},
      {".", 13, 0},
      {"+.", 13, 0},
      {"e5", 13, 0},
      {"1e", 13, 0},
      {"1e+", 13, 0},
      {"1 2", 13, 0},
      {"1,5", 13, 0},
      {"1.2.3", 13, 0},
      {"--1", 13, 0},
      {"7x", 13, 0},
      {"0x10", 13, 0},
      {"&H", 13, 0},
      {"&HG", 13, 0},
      {"&H-1", 13, 0},
      {"&H1 2", 13, 0},
      {"inf", 13, 0},
      {"nan", 13, 0},
      {"\xC3\xA9", 13, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.text).substr(0, 40));
    const Variant text(row.text);
    EXPECT_EQ(ErrorCodeOf([&] { return text.ToDouble(); }), row.error);
    if (row.error == 0) {
      EXPECT_EQ(text.ToDouble(), row.value);
    }
  }
  EXPECT_EQ(ErrorCodeOf([] { return Variant(std::string_view("7\0", 2)).ToDouble(); }), 13);
}

/// Sets a locale with a decimal comma for the process, where one was made for the tests or is installed.
class CommaLocale {
 public:
  CommaLocale() {
#if defined(TACTIX_LOCALE_FOLDER)
    setenv("LOCPATH", TACTIX_LOCALE_FOLDER, 1);
#endif
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8"}) {
      set_ = set_ || std::setlocale(LC_ALL, name) != nullptr;
    }
#if defined(TACTIX_LOCALE_FOLDER)
    unsetenv("LOCPATH");
#endif
  }
  ~CommaLocale() { std::setlocale(LC_ALL, before_.c_str()); }

  bool IsSet() const { return set_ && std::string_view(std::localeconv()->decimal_point) == ","; }

 private:
  std::string before_ = std::setlocale(LC_ALL, nullptr);
  bool set_ = false;
};

TEST(VariantTextTest, NumbersAndTextsDoNotDependOnTheProcessLocale) {
  const CommaLocale locale;
#if defined(TACTIX_LOCALE_FOLDER)
  ASSERT_TRUE(locale.IsSet());
#else
  if (!locale.IsSet()) GTEST_SKIP() << "no locale with a decimal comma is installed";
#endif
  EXPECT_EQ(Variant("1.5").ToDouble(), 1.5);
  EXPECT_EQ(Variant("1.5E-3").ToSingle(), 0.0015F);
  EXPECT_EQ(Variant(1.5).ToText(), "1.5");
  EXPECT_EQ(Variant(1.5F).ToText(), "1.5");
  EXPECT_EQ(FormatNumber(1234.5, "#,##0.00"), "1,234.50");
  EXPECT_EQ(Str(1.5), " 1.5");
  EXPECT_EQ(ErrorCodeOf([] { return Variant("1,5").ToDouble(); }), 13);
}

TEST(VariantTextTest, ToText) {
  struct Row {
    Variant value;
    const char* text;
  };
  const Row rows[] = {
      {{}, ""},
      {true, "True"},
      {false, "False"},
      {Integer(-32768), "-32768"},
      {std::numeric_limits<std::int32_t>::min(), "-2147483648"},
      {0.0, "0"},
      {-0.0, "0"},
      {0.5, "0.5"},
      {-0.5, "-0.5"},
      {0.1, "0.1"},
      {0.1F, "0.1"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {-2.0 / 3, "-0.666666666666667"},
      {1.0F / 3, "0.3333333"},
      {2.0F / 3, "0.6666667"},
      {654322.23456F, "654322.3"},  // a tie: the single holds 654322.25
      {-654322.23456F, "-654322.3"},
      {123456.71875F, "123456.7"},
      {0.1234567890123405, "0.123456789012341"},  // just above a tie
      {6.138354903459565, "6.13835490345956"},    // just below one
      {1234567890123.125, "1234567890123.13"},    // a tie
      {100000.25, "100000.25"},
      {100000.0, "100000"},
      {123.0, "123"},
      {120.25, "120.25"},
      {9999999.0F, "9999999"},
      {10000000.0F, "1E+07"},
      {16777216.0F, "1.677722E+07"},
      {16777216.0, "16777216"},
      {-16777216.0F, "-1.677722E+07"},
      {999999999999999.0, "999999999999999"},
      {999999999999999.5, "1E+15"},
      {1e15, "1E+15"},
      {1234567890123456.0, "1.23456789012346E+15"},
      {1e20, "1E+20"},
      {-1.5e300, "-1.5E+300"},
      {0.00001, "0.00001"},
      {0.0000125, "0.0000125"},
      {0.00001F, "0.00001"},
      {0.00000999999999F, "0.00001"},  // rounds up to the last one without an exponent
      {0.00000999, "9.99E-06"},
      {0.000001, "1E-06"},
      {std::numeric_limits<double>::denorm_min(), "4.94065645841247E-324"},
      {std::numeric_limits<double>::max(), "1.79769313486232E+308"},
      {std::numeric_limits<float>::denorm_min(), "1.401298E-45"},
      {std::numeric_limits<float>::max(), "3.402823E+38"},
      {Infinity, "Infinity"},
      {-SingleInfinity, "-Infinity"},
      {NotANumber, "NaN"},
      {"", ""},
      {"  as it is ", "  as it is "},
      {"J\xC3\xBCrgen", "J\xC3\xBCrgen"},
  };
  for (const Row& row : rows) EXPECT_EQ(row.value.ToText(), row.text);
  EXPECT_EQ(ErrorCodeOf([] { return Variant::Null().ToText(); }), 94);
  EXPECT_EQ(ErrorCodeOf([] { return Variant(Font{}).ToText(); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Variant(std::make_shared<Seat>()).ToText(); }), 13);
}

/// A text without its point, its exponent and the zeros around its digits.
std::string DigitsOf(const std::string& text) {
  std::string digits = text.substr(0, text.find('E'));
  std::erase_if(digits, [](char c) { return c < '0' || c > '9'; });
  digits.erase(0, digits.find_first_not_of('0'));
  return digits;
}

TEST(VariantTextTest, ATextIsAsCloseToItsNumberAsItsDigitsAllow) {
  for (double value = 1e-300; value < 1e300; value *= 71.3) {
    for (const double number : {value, -value / 3}) {
      const std::string text = Variant(number).ToText();
      EXPECT_LE(DigitsOf(text).size(), 15U) << text;
      EXPECT_NEAR(Variant(text).ToDouble() / number, 1, 5.1e-15) << text;
      EXPECT_EQ(Variant(Variant(text).ToDouble()).ToText(), text);
    }
  }
  for (float value = 1e-37F; value < 1e37F; value *= 7.13F) {
    for (const float number : {value, -value / 3}) {
      const std::string text = Variant(number).ToText();
      EXPECT_LE(DigitsOf(text).size(), 7U) << text;
      EXPECT_NEAR(Variant(text).ToDouble() / static_cast<double>(number), 1, 5.1e-7) << text;
    }
  }
}

TEST(VariantTextTest, NumbersOfFewDigitsReadBackFromTheirText) {
  for (int number = -100'000; number <= 100'000; number += 7) {
    for (const double scale : {1.0, 100.0, 1e6}) {
      EXPECT_EQ(Variant(Variant(number / scale).ToText()).ToDouble(), number / scale);
    }
    const float single = static_cast<float>(number) / 100;
    EXPECT_EQ(Variant(Variant(single).ToText()).ToSingle(), single);
  }
}

}  // namespace
}  // namespace tactix
