#include "tactix/platform/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

#include "tactix/platform/Variant.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;
using tests::PropertyObject;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int16_t Integer(int value) { return static_cast<std::int16_t>(value); }

class Seat : public Object {};

class LocaleKeeper {
 public:
  ~LocaleKeeper() { SetNumberLocale({}); }
};

struct FormatRow {
  const char* name;
  Variant value;
  const char* picture;
  const char* text;
};

void Check(const FormatRow& row) {
  SCOPED_TRACE(row.name);
  EXPECT_EQ(FormatNumber(row.value, row.picture), row.text);
}

TEST(NumberTextTest, StrHasASignPosition) {
  struct Row {
    const char* name;
    Variant value;
    const char* text;
  };
  const Row rows[] = {
      {"zero", 0, " 0"},
      {"positive", 7, " 7"},
      {"negative", -7, "-7"},
      {"integer", Integer(12), " 12"},
      {"lowest integer", Integer(-32768), "-32768"},
      {"highest long", 2147483647, " 2147483647"},
      {"lowest long", std::numeric_limits<std::int32_t>::min(), "-2147483648"},
      {"empty", {}, " 0"},
      {"true", true, "True"},
      {"false", false, "False"},
      {"null", Variant::Null(), "Null"},
      {"single below one", 0.24F, " .24"},
      {"negative single", -2.5F, "-2.5"},
      {"double below one", 0.1, " .1"},
      {"negative double below one", -0.5, "-.5"},
      {"the smallest without an exponent", 0.00001, " .00001"},
      {"ten and a quarter", 10.25, " 10.25"},
      {"seven digits of a single", 654322.23456F, " 654322.3"},
      {"fifteen digits of a double", -2.0 / 3, "-.666666666666667"},
      {"double sum", 17.0, " 17"},
      {"negative zero", -0.0, " 0"},
      {"huge", 1e20, " 1E+20"},
      {"tiny", -1e-10, "-1E-10"},
      {"infinity", Infinity, " Infinity"},
      {"negative infinity", -Infinity, "-Infinity"},
      {"NaN", NotANumber, " NaN"},
      {"text", "12", " 12"},
      {"negative text", "-1.50", "-1.5"},
      {"text below one", "0.50", " .5"},
      {"object", std::make_shared<PropertyObject>("", 0.75), " .75"},
      {"object that is a flag", std::make_shared<PropertyObject>("", true), "True"},
      {"object that is null", std::make_shared<PropertyObject>("", Variant::Null()), "Null"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Str(row.value), row.text);
  }
  EXPECT_EQ(Str(7), " 7");
  EXPECT_EQ(Str(Integer(-7)), "-7");
  EXPECT_EQ(Str(0.25F), " .25");
  EXPECT_EQ(Str(0.25), " .25");
}

TEST(NumberTextTest, StrFailsAsTheValueConverts) {
  struct Row {
    Variant value;
    std::int32_t error;
  };
  const Row rows[] = {
      {"", 13}, {"word", 13}, {"1e999", 6}, {Font{}, 13}, {std::make_shared<Seat>(), 13}, {nullptr, 91},
  };
  for (const Row& row : rows) {
    std::string out = "kept";
    EXPECT_EQ(ErrorCodeOf([&] {
                AppendStr(out, row.value);
                return 0;
              }),
              row.error);
    EXPECT_EQ(out, "kept");
  }
}

TEST(NumberTextTest, AppendStrKeepsWhatIsThereAndItsBuffer) {
  std::string out;
  out.reserve(200);
  const char* const buffer = out.data();
  out = "total";
  AppendStr(out, 7);
  AppendStr(out, 0.5F);
  AppendStr(out, -0.25);
  AppendStr(out, Variant(Integer(-9)));
  AppendStr(out, Variant(false));
  AppendStr(out, Variant::Null());
  EXPECT_EQ(out, "total 7 .5-.25-9FalseNull");
  EXPECT_EQ(out.data(), buffer);
}

TEST(NumberTextTest, WholeNumberPictures) {
  const FormatRow rows[] = {
      {"00 zero", 0, "00", "00"},
      {"00 one digit", 7, "00", "07"},
      {"00 two digits", 38, "00", "38"},
      {"00 three digits", 123, "00", "123"},
      {"00 negative", -1, "00", "-01"},
      {"00 half rounds away", 0.5, "00", "01"},
      {"00 half rounds away, not to even", 2.5, "00", "03"},
      {"00 negative half", -2.5, "00", "-03"},
      {"00 below half", 0.49, "00", "00"},
      {"00 negative below half", -0.49, "00", "00"},
      {"00 carry", 99.5, "00", "100"},
      {"000 zero", 0, "000", "000"},
      {"000 one digit", 7, "000", "007"},
      {"000 full", 123, "000", "123"},
      {"000 negative", -7, "000", "-007"},
      {"000 negative three", -999, "000", "-999"},
      {"000 long", 1234, "000", "1234"},
      {"0 zero", 0, "0", "0"},
      {"0 negative zero", -0.0, "0", "0"},
      {"0 half", 0.5, "0", "1"},
      {"0 one and a half", 1.5, "0", "2"},
      {"0 two and a half", 2.5, "0", "3"},
      {"0 below half", 2.4999999, "0", "2"},
      {"0 beyond fifteen digits counts as half", 2.49999999999999999, "0", "3"},
      {"0 huge", 1e20, "0", "100000000000000000000"},
      {"0 tiny", 1e-300, "0", "0"},
      {"0 lowest long", std::numeric_limits<std::int32_t>::min(), "0", "-2147483648"},
      {"# zero", 0, "#", ""},
      {"# one", 1, "#", "1"},
      {"# rounds to zero", 0.4, "#", ""},
      {"#,### zero", 0, "#,###", ""},
      {"#,### rounds to zero", -0.4, "#,###", ""},
      {"#,### small", 4, "#,###", "4"},
      {"#,### three digits", 999, "#,###", "999"},
      {"#,### four digits", 1234, "#,###", "1,234"},
      {"#,### integer", Integer(32767), "#,###", "32,767"},
      {"#,### negative", -1234, "#,###", "-1,234"},
      {"#,### negative three digits", -123, "#,###", "-123"},
      {"#,### million", 1234567, "#,###", "1,234,567"},
      {"#,### carry into a group", 999.5, "#,###", "1,000"},
      {"#,### huge", 1e15, "#,###", "1,000,000,000,000,000"},
      {"0,000 pads in groups", 5, "0,000", "0,005"},
      {"#,##0 zero", 0, "#,##0", "0"},
      {"##,## still groups by thousands", 1234567, "##,##", "1,234,567"},
  };
  for (const FormatRow& row : rows) Check(row);
}

TEST(NumberTextTest, DecimalPictures) {
  const FormatRow rows[] = {
      {"00.0 zero", 0, "00.0", "00.0"},
      {"00.0 ending total", 8.5F, "00.0", "08.5"},
      {"00.0 rounds down", 18.52F, "00.0", "18.5"},
      {"00.0 rounds away", 18.55, "00.0", "18.6"},
      {"00.0 negative", -8.55, "00.0", "-08.6"},
      {"00.0 carry", 99.95, "00.0", "100.0"},
      {"#0.0 zero", 0, "#0.0", "0.0"},
      {"#0.0 below one", 0.25, "#0.0", "0.3"},
      {"#0.0 single half", 0.35F, "#0.0", "0.4"},
      {"#0.0 double half", 0.35, "#0.0", "0.4"},
      {"#0.0 percent of breaks", 28.36F, "#0.0", "28.4"},
      {"#0.0 hundred", 100, "#0.0", "100.0"},
      {"#0.0 negative rounds to zero", -0.04, "#0.0", "0.0"},
      {"#0.0 negative rounds to a digit", -0.05, "#0.0", "-0.1"},
      {"#0.00 zero", 0, "#0.00", "0.00"},
      {"#0.00 strength", 1.0 / 3, "#0.00", "0.33"},
      {"#0.00 decimal half in a double", 0.285, "#0.00", "0.29"},
      {"#0.00 decimal half in a single", 0.285F, "#0.00", "0.29"},
      {"#0.00 1.005", 1.005, "#0.00", "1.01"},
      {"#0.00 2.675", 2.675, "#0.00", "2.68"},
      {"#0.00 negative half", -1.005, "#0.00", "-1.01"},
      {"#0.00 single 1.005", 1.005F, "#0.00", "1.01"},
      {"#0.00 large", 12345.678, "#0.00", "12345.68"},
      {"0.00 zero", 0, "0.00", "0.00"},
      {"0.00 whole", 3, "0.00", "3.00"},
      {"0.00 tiny", 1e-20, "0.00", "0.00"},
      {"0.00 negative tiny", -1e-20, "0.00", "0.00"},
      {"0.00 smallest", std::numeric_limits<double>::denorm_min(), "0.00", "0.00"},
      {"0.00 half of the last place", 0.005, "0.00", "0.01"},
      {"0.00 below half of the last place", 0.00499, "0.00", "0.00"},
      {"0.00 far below the last place", 0.0009, "0.00", "0.00"},
      {"0.00 true count", -2.345F, "0.00", "-2.35"},
      {"0.00 text", "2.345", "0.00", "2.35"},
      {"0.00 true", true, "0.00", "-1.00"},
      {"0.00 empty", {}, "0.00", "0.00"},
      {"fifteen digits of a double", 0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"},
      {"the fifteenth digit rounds", 2.0 / 3, "0.00000000000000000", "0.66666666666666700"},
      {"just below a tie at the fifteenth digit", 6.138354903459565, "0.00000000000000", "6.13835490345956"},
      {"seven digits of a single", 0.1F, "0.0000000000", "0.1000000000"},
      {"seven digits of a large single", 123456789.0F, "0", "123456800"},
      {"a tie at the seventh digit", 2097152.5F, "0", "2097153"},
      {"a tie at the fifteenth digit", 1234567890123.125, "0.00", "1234567890123.13"},
      {"a nine carries to the left", 9.999, "0.00", "10.00"},
      {"#.## drops zeros", 1.5, "#.##", "1.5"},
      {"#.## keeps the point", 1, "#.##", "1."},
      {"#.## zero", 0, "#.##", "."},
      {"0.0# mixed", 1.25, "0.0#", "1.25"},
      {"0.0# drops", 1.2, "0.0#", "1.2"},
      {"0.#0 the zero counts for the place before it", 1, "0.#0", "1.00"},
      {".00 has no whole place", 12.5, ".00", "12.50"},
      {".00 below one", 0.5, ".00", ".50"},
      {"0# the zero counts for the places behind it", 5, "0#", "05"},
      {"#,##0.00 groups and decimals", -1234567.891, "#,##0.00", "-1,234,567.89"},
      {"a comma behind the point", 1234.5, "0.0,0", "1234.50"},
  };
  for (const FormatRow& row : rows) Check(row);
}

TEST(NumberTextTest, PercentPictures) {
  const FormatRow rows[] = {
      {"zero", 0, "##.0%", ".0%"},
      {"single zero", 0.0F, "##.0%", ".0%"},
      {"three quarters", 0.75F, "##.0%", "75.0%"},
      {"two thirds in a single", 2.0F / 3, "##.0%", "66.7%"},
      {"two thirds in a double", 2.0 / 3, "##.0%", "66.7%"},
      {"all", 1.0F, "##.0%", "100.0%"},
      {"more than all", 12.5F, "##.0%", "1250.0%"},
      {"half a percent", 0.005F, "##.0%", ".5%"},
      {"decimal half in a single", 0.2855F, "##.0%", "28.6%"},
      {"decimal half in a double", 0.2855, "##.0%", "28.6%"},
      {"decimal half below one percent", 0.0005F, "##.0%", ".1%"},
      {"rounds to nothing", 0.0004F, "##.0%", ".0%"},
      {"negative rounds to nothing", -0.0004F, "##.0%", ".0%"},
      {"negative", -0.5F, "##.0%", "-50.0%"},
      {"negative below one percent", -0.005F, "##.0%", "-.5%"},
      {"just below all", 0.99951F, "##.0%", "100.0%"},
      {"no places behind the point", 0.285, "0%", "29%"},
      {"percent first", 0.5, "%0", "%50"},
      {"two percents", 0.5, "0%%", "5000%%"},
      {"huge", 3e38F, "##.0%", "30000000000000000000000000000000000000000.0%"},
  };
  for (const FormatRow& row : rows) Check(row);
}

TEST(NumberTextTest, OtherCharactersPrintThemselves) {
  const FormatRow rows[] = {
      {"around", 7, "(000)", "(007)"},
      {"the minus comes first", -7, "(000)", "-(007)"},
      {"between places", 1234, "00-00", "12-34"},
      {"digits without a place", 123456, "00-00", "1234-56"},
      {"insignificant places", 4, "##-##", "-4"},
      {"blank and letters", 4, "0 cards", "4 cards"},
      {"beyond ASCII", 4, "0 \xE2\x82\xAC", "4 \xE2\x82\xAC"},
      {"second point", 1.25, "0.0.0", "1.2.5"},
      {"no places", -5, "none", "none"},
      {"only a point", 5, ".", "."},
      {"only a percent", 5, "%", "%"},
      {"empty picture", 1.5, "", "1.5"},
      {"empty picture of a single", 0.1F, "", "0.1"},
      {"empty picture of a negative number", -3, "", "-3"},
      {"empty picture of a number below one", -0.5, "", "-0.5"},
      {"empty picture of a long double", 2.0 / 3, "", "0.666666666666667"},
      {"empty picture of null", Variant::Null(), "", ""},
      {"empty picture of an object that is null", std::make_shared<PropertyObject>("", Variant::Null()), "", ""},
      {"object", std::make_shared<PropertyObject>("", "7.5"), "0.00", "7.50"},
      {"object that is a single", std::make_shared<PropertyObject>("", 0.1F), "0.0000000000", "0.1000000000"},
  };
  for (const FormatRow& row : rows) Check(row);
}

TEST(NumberTextTest, FormatFailsOnWhatIsNoNumber) {
  struct Row {
    const char* name;
    Variant value;
    std::int32_t error;
  };
  const Row rows[] = {
      {"infinity", Infinity, 5},    {"negative infinity", -Infinity, 5},
      {"NaN", NotANumber, 5},       {"single NaN", std::numeric_limits<float>::quiet_NaN(), 5},
      {"no text", "", 13},          {"word", "word", 13},
      {"huge text", "1e999", 6},    {"font", Font{}, 13},
      {"null object", nullptr, 91}, {"object", std::make_shared<Seat>(), 13},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ErrorCodeOf([&] { return FormatNumber(row.value, "0.0"); }), row.error);
    EXPECT_EQ(ErrorCodeOf([&] { return FormatNumber(row.value, ""); }), row.error);
  }
  EXPECT_EQ(ErrorCodeOf([] { return FormatNumber(Variant::Null(), "0.0"); }), 94);
}

TEST(NumberTextTest, OverloadsKeepTheirWidth) {
  EXPECT_EQ(FormatNumber(0.1F, "0.0000000000"), "0.1000000000");
  EXPECT_EQ(FormatNumber(static_cast<double>(0.1F), "0.0000000000"), "0.1000000015");
  EXPECT_EQ(FormatNumber(2147483647, "#,###"), "2,147,483,647");
  EXPECT_EQ(FormatNumber(Integer(7), "000"), "007");
}

TEST(NumberTextTest, TheLocaleSetsTheSeparators) {
  const LocaleKeeper keeper;
  EXPECT_EQ(CurrentNumberLocale().Grouping, ",");
  EXPECT_EQ(CurrentNumberLocale().Decimal, ".");
  SetNumberLocale({".", ","});
  EXPECT_EQ(FormatNumber(1234567.5, "#,##0.00"), "1.234.567,50");
  EXPECT_EQ(FormatNumber(0, "##.0%"), ",0%");
  SetNumberLocale({"\xE2\x80\xAF", ","});
  EXPECT_EQ(FormatNumber(1234, "#,###"),
            "1\xE2\x80\xAF"
            "234");
  SetNumberLocale({"", "."});
  EXPECT_EQ(FormatNumber(1234, "#,###"), "1234");
}

TEST(NumberTextTest, TheLocaleLeavesPlainNumberTextsAlone) {
  const LocaleKeeper keeper;
  SetNumberLocale({".", ","});
  EXPECT_EQ(Str(1.5), " 1.5");
  EXPECT_EQ(Variant(1.5).ToText(), "1.5");
  EXPECT_EQ(Variant("1.5").ToDouble(), 1.5);
}

}  // namespace
}  // namespace tactix
