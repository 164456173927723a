// What the controls' format pictures print; every text is worked out by the rule, by hand.

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tactix/platform/NumberText.h"
#include "tactix/platform/Variant.h"

namespace tactix {
namespace {

constexpr std::int32_t LowestLong = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t HighestLong = std::numeric_limits<std::int32_t>::max();
constexpr std::int16_t LowestInteger = std::numeric_limits<std::int16_t>::min();
constexpr std::int16_t HighestInteger = std::numeric_limits<std::int16_t>::max();
constexpr float LargestSingle = std::numeric_limits<float>::max();

struct PictureRow {
  const char* name;
  Variant value;
  const char* text;
};

void ExpectPicture(const char* picture, const PictureRow& row) {
  EXPECT_EQ(FormatNumber(row.value, picture), row.text) << '"' << picture << "\" of " << row.name;
}

TEST(PictureTableTest, CountsInGroups) {
  const PictureRow rows[] = {
      {"zero", 0, ""},
      {"single zero", 0.0F, ""},
      {"double zero", 0.0, ""},
      {"negative zero", -0.0, ""},
      {"one", 1, "1"},
      {"minus one", -1, "-1"},
      {"the last without a group", 999, "999"},
      {"the first with a group", 1000, "1,000"},
      {"the first with a group, negative", -1000, "-1,000"},
      {"a negative one without a group", -999, "-999"},
      {"highest integer", HighestInteger, "32,767"},
      {"lowest integer", LowestInteger, "-32,768"},
      {"highest long", HighestLong, "2,147,483,647"},
      {"lowest long", LowestLong, "-2,147,483,648"},
      {"half", 0.5, "1"},
      {"negative half", -0.5, "-1"},
      {"one and a half", 1.5, "2"},
      {"two and a half, not to even", 2.5, "3"},
      {"single two and a half", 2.5F, "3"},
      {"negative two and a half", -2.5, "-3"},
      {"just below half", 0.4999, ""},
      {"just below negative half", -0.4999, ""},
      {"tiny", 1e-300, ""},
      {"tiny single", 1e-40F, ""},
      {"rounds into a group", 999.5, "1,000"},
      {"rounds into two groups", 999999.5, "1,000,000"},
      {"single rounds into two groups", 999999.5F, "1,000,000"},
      {"the eighth digit of a single is a tie", 1234567.5F, "1,234,568"},
      {"a single has seven digits", 16777216.0F, "16,777,220"},
      {"huge double", 1e15, "1,000,000,000,000,000"},
      {"huge single", 1e20F, "100,000,000,000,000,000,000"},
      {"a double has fifteen digits", 123456789012345680.0, "123,456,789,012,346,000"},
  };
  for (const PictureRow& row : rows) ExpectPicture("#,###", row);
}

TEST(PictureTableTest, Percentages) {
  const PictureRow rows[] = {
      {"zero", 0, ".0%"},
      {"single zero", 0.0F, ".0%"},
      {"double zero", 0.0, ".0%"},
      {"negative zero", -0.0F, ".0%"},
      {"all", 1.0F, "100.0%"},
      {"all, negative", -1.0F, "-100.0%"},
      {"half", 0.5, "50.0%"},
      {"two", 2, "200.0%"},
      {"three of four", 0.75F, "75.0%"},
      {"one of three in a single", 1.0F / 3, "33.3%"},
      {"one of three in a double", 1.0 / 3, "33.3%"},
      {"two of three in a single", 2.0F / 3, "66.7%"},
      {"two of three in a double", 2.0 / 3, "66.7%"},
      {"five of four", 1.25F, "125.0%"},
      {"one percent", 0.01F, "1.0%"},
      {"rounds up to one percent", 0.0099, "1.0%"},
      {"below one percent", 0.009, ".9%"},
      {"negative below one percent", -0.009F, "-.9%"},
      {"half of the last place", 0.0005, ".1%"},
      {"negative half of the last place", -0.0005, "-.1%"},
      {"below half of the last place", 0.00049, ".0%"},
      {"negative below half of the last place", -0.00049, ".0%"},
      {"a decimal tie in a single", 0.1255F, "12.6%"},
      {"a decimal tie in a double", 0.1255, "12.6%"},
      {"below a tie", 0.12549, "12.5%"},
      {"rounds up to all", 0.9995, "100.0%"},
      {"does not round up to all", 0.99949, "99.9%"},
      {"tiny", 1e-300, ".0%"},
      {"most correct of one decision", 32767.0F, "3276700.0%"},
      {"most correct of three decisions: seven digits", 32767.0F / 3, "1092233.0%"},
      {"the same in a double: fifteen digits", 32767.0 / 3, "1092233.3%"},
      {"negative and more than all", -1.5F, "-150.0%"},
      {"huge double", 1e15, "100000000000000000.0%"},
  };
  for (const PictureRow& row : rows) ExpectPicture("##.0%", row);
}

TEST(PictureTableTest, ThreeDigits) {
  const PictureRow rows[] = {
      {"zero", 0, "000"},
      {"single zero", 0.0F, "000"},
      {"negative zero", -0.0, "000"},
      {"one digit", 5, "005"},
      {"one digit, negative", -5, "-005"},
      {"two digits", 42, "042"},
      {"two digits, negative", -12, "-012"},
      {"three digits", 999, "999"},
      {"four digits", 1000, "1000"},
      {"four digits, negative", -1000, "-1000"},
      {"half", 0.5, "001"},
      {"negative half", -0.5, "-001"},
      {"below half", 0.49, "000"},
      {"negative below half", -0.49, "000"},
      {"two and a half, not to even", 2.5, "003"},
      {"single two and a half", 2.5F, "003"},
      {"single seven and a half", 7.5F, "008"},
      {"carries", 99.5, "100"},
      {"carries out", 999.5, "1000"},
      {"lowest integer", LowestInteger, "-32768"},
      {"highest long", HighestLong, "2147483647"},
      {"tiny", 1e-300, "000"},
      {"huge double", 1e20, "100000000000000000000"},
      {"a single has seven digits", 123456789.0F, "123456800"},
  };
  for (const PictureRow& row : rows) ExpectPicture("000", row);
}

TEST(PictureTableTest, OneDecimal) {
  const PictureRow rows[] = {
      {"zero", 0, "0.0"},
      {"single zero", 0.0F, "0.0"},
      {"negative zero", -0.0F, "0.0"},
      {"whole", 5, "5.0"},
      {"whole, negative", -5, "-5.0"},
      {"breaks", 28.26F, "28.3"},
      {"breaks in a double", 28.26, "28.3"},
      {"a binary tie in a single", 28.25F, "28.3"},
      {"a binary tie in a double", 28.25, "28.3"},
      {"a negative tie", -28.25, "-28.3"},
      {"below a tie", 28.24F, "28.2"},
      {"a decimal tie above in a single", 28.35F, "28.4"},
      {"a decimal tie below in a single", 28.15F, "28.2"},
      {"a decimal tie in a double", 28.15, "28.2"},
      {"half of the last place", 0.05, "0.1"},
      {"negative half of the last place", -0.05, "-0.1"},
      {"below half of the last place", 0.04, "0.0"},
      {"negative below half of the last place", -0.04, "0.0"},
      {"carries to one", 0.95, "1.0"},
      {"carries to ten", 9.95, "10.0"},
      {"a single carries to a hundred", 99.95F, "100.0"},
      {"hundred", 100, "100.0"},
      {"no groups", 1234, "1234.0"},
      {"tiny single", 1e-40F, "0.0"},
      {"huge double", 1e10, "10000000000.0"},
      {"largest single", LargestSingle, "340282300000000000000000000000000000000.0"},
  };
  for (const PictureRow& row : rows) ExpectPicture("#0.0", row);
}

TEST(PictureTableTest, TwoDigitsAndADecimal) {
  const PictureRow rows[] = {
      {"zero", 0, "00.0"},
      {"single zero", 0.0F, "00.0"},
      {"ending total below ten", 8.5F, "08.5"},
      {"the same in a double", 8.5, "08.5"},
      {"negative", -8.5, "-08.5"},
      {"ending total", 18.52F, "18.5"},
      {"the same in a double", 18.52, "18.5"},
      {"a decimal tie in a single", 18.55F, "18.6"},
      {"a decimal tie in a double", 18.55, "18.6"},
      {"a binary tie", 18.25F, "18.3"},
      {"a negative tie", -18.25F, "-18.3"},
      {"half of the last place", 0.05F, "00.1"},
      {"negative below half of the last place", -0.04F, "00.0"},
      {"whole", 5, "05.0"},
      {"negative integer", std::int16_t{-7}, "-07.0"},
      {"twenty-one", 21, "21.0"},
      {"single whole", 26.0F, "26.0"},
      {"carries to ten", 9.95, "10.0"},
      {"carries to a hundred", 99.95, "100.0"},
      {"three digits", 123.45, "123.5"},
      {"tiny", 1e-300, "00.0"},
      {"huge", 1e6, "1000000.0"},
  };
  for (const PictureRow& row : rows) ExpectPicture("00.0", row);
}

TEST(PictureTableTest, TwoDecimals) {
  const PictureRow rows[] = {
      {"zero", 0, "0.00"},
      {"single zero", 0.0F, "0.00"},
      {"negative zero", -0.0, "0.00"},
      {"one", 1, "1.00"},
      {"minus one", -1, "-1.00"},
      {"half", 0.5, "0.50"},
      {"one of three", 1.0 / 3, "0.33"},
      {"two of three", 2.0 / 3, "0.67"},
      {"one of seven", 1.0 / 7, "0.14"},
      {"22 of seven", 22.0 / 7, "3.14"},
      {"half of the last place", 0.005, "0.01"},
      {"negative half of the last place", -0.005, "-0.01"},
      {"below half of the last place", 0.0049, "0.00"},
      {"negative below half of the last place", -0.0049, "0.00"},
      {"a decimal tie below in binary", 1.005, "1.01"},
      {"the same in a single", 1.005F, "1.01"},
      {"another", 2.675, "2.68"},
      {"and another", 1.115, "1.12"},
      {"carries to one", 0.995, "1.00"},
      {"carries to ten", 9.995, "10.00"},
      {"no groups", 1234.5, "1234.50"},
      {"a binary tie in a single", 100.125F, "100.13"},
      {"a binary tie in a double", 1234567.125, "1234567.13"},
      {"below a tie after seven digits", 12345.675F, "12345.67"},
      {"a decimal tie after eight digits", 12345.675, "12345.68"},
      {"tiny", 1e-300, "0.00"},
      {"huge", 1e15, "1000000000000000.00"},
  };
  for (const PictureRow& row : rows) ExpectPicture("#0.00", row);
}

TEST(PictureTableTest, PlainDecimalText) {
  const PictureRow rows[] = {
      {"zero", 0, "0"},
      {"single zero", 0.0F, "0"},
      {"negative zero", -0.0, "0"},
      {"minus twelve", -12, "-12"},
      {"highest integer", HighestInteger, "32767"},
      {"lowest long", LowestLong, "-2147483648"},
      {"no groups", 1234.5, "1234.5"},
      {"whole double", 100.0, "100"},
      {"half", 0.5, "0.5"},
      {"negative half", -0.5, "-0.5"},
      {"single tenth", 0.1F, "0.1"},
      {"double tenth", 0.1, "0.1"},
      {"two of three in a single", 2.0F / 3, "0.6666667"},
      {"one of three in a double", 1.0 / 3, "0.333333333333333"},
      {"three tenths, nearly", 0.1 + 0.2, "0.3"},
      {"breaks", 28.26F, "28.26"},
      {"the largest single without an exponent", 9999999.0F, "9999999"},
      {"a single of eight digits", 16777216.0F, "1.677722E+07"},
      {"a single of nine digits", 123456789.0F, "1.234568E+08"},
      {"largest without an exponent", 999999999999999.0, "999999999999999"},
      {"smallest with an exponent", 1e15, "1E+15"},
      {"least without an exponent", 0.00001, "0.00001"},
      {"largest small one with an exponent", 0.000001, "1E-06"},
      {"huge single", 1e20F, "1E+20"},
      {"largest single", LargestSingle, "3.402823E+38"},
      {"negative huge double", -2.5e300, "-2.5E+300"},
      {"tiny double", 5e-324, "4.94065645841247E-324"},
  };
  for (const PictureRow& row : rows) {
    ExpectPicture("", row);
    EXPECT_EQ(row.value.ToText(), row.text) << row.name;
  }
}

}  // namespace
}  // namespace tactix
