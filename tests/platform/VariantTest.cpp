#include "tactix/platform/Variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

#include "tests/platform/ErrorCode.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr float SingleInfinity = std::numeric_limits<float>::infinity();
constexpr std::int16_t Integer(int value) { return static_cast<std::int16_t>(value); }

class Seat : public Object {};

TEST(VariantTest, TypeOfEveryKindOfValue) {
  struct Row {
    Variant value;
    VariantType type;
  };
  const std::string text = "Ann";
  const Row rows[] = {
      {Variant(), VariantType::Empty},
      {Variant::Null(), VariantType::Null},
      {true, VariantType::Boolean},
      {Integer(5), VariantType::Integer},
      {5, VariantType::Long},
      {5.0F, VariantType::Single},
      {5.0, VariantType::Double},
      {"Ann", VariantType::Text},
      {std::string_view("Ann"), VariantType::Text},
      {text, VariantType::Text},
      {Font{"Comic Sans MS", 8, false, false}, VariantType::Font},
      {ObjectRef(), VariantType::Object},
      {std::make_shared<Seat>(), VariantType::Object},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.value.Type(), row.type);
    EXPECT_EQ(row.value.IsEmpty(), row.type == VariantType::Empty);
    EXPECT_EQ(row.value.IsNull(), row.type == VariantType::Null);
  }
}

TEST(VariantTest, TakesNothingThatWouldSlipInAsAFlagOrLoseDigits) {
  static_assert(!std::is_convertible_v<int*, Variant>);
  static_assert(!std::is_convertible_v<void*, Variant>);
  static_assert(!std::is_convertible_v<std::shared_ptr<int>, Variant>);
  static_assert(!std::is_convertible_v<std::int64_t, Variant>);
  static_assert(!std::is_convertible_v<std::size_t, Variant>);
  EXPECT_EQ(Variant("x").Type(), VariantType::Text);
}

TEST(VariantTest, ToWholeNumbers) {
  constexpr std::int32_t Overflow = Error::Overflow;
  constexpr std::int32_t Mismatch = Error::TypeMismatch;
  struct Row {
    const char* name;
    Variant value;
    std::int32_t integerError;
    int integer;
    std::int32_t longError;
    std::int32_t asLong;
  };
  const Row rows[] = {
      {"empty", {}, 0, 0, 0, 0},
      {"null", Variant::Null(), 94, 0, 94, 0},
      {"true", true, 0, -1, 0, -1},
      {"false", false, 0, 0, 0, 0},
      {"integer", Integer(-32768), 0, -32768, 0, -32768},
      {"long in range", 32767, 0, 32767, 0, 32767},
      {"long above", 32768, Overflow, 0, 0, 32768},
      {"long below", -32769, Overflow, 0, 0, -32769},
      {"half to even down", 2.5, 0, 2, 0, 2},
      {"half to even up", 3.5, 0, 4, 0, 4},
      {"half to zero", 0.5, 0, 0, 0, 0},
      {"negative half down", -2.5, 0, -2, 0, -2},
      {"negative half up", -1.5, 0, -2, 0, -2},
      {"above half", 2.500001, 0, 3, 0, 3},
      {"below half", 2.499999, 0, 2, 0, 2},
      {"single half", 6.5F, 0, 6, 0, 6},
      {"just fits", 32767.49, 0, 32767, 0, 32767},
      {"just too large", 32767.5, Overflow, 0, 0, 32768},
      {"just fits below", -32768.5, 0, -32768, 0, -32768},
      {"just too small", -32768.51, Overflow, 0, 0, -32769},
      {"long just fits", 2147483647.49, Overflow, 0, 0, 2147483647},
      {"long just too large", 2147483647.5, Overflow, 0, Overflow, 0},
      {"long just fits below", -2147483648.5, Overflow, 0, 0, std::numeric_limits<std::int32_t>::min()},
      {"long just too small", -2147483649.0, Overflow, 0, Overflow, 0},
      {"huge", 1e300, Overflow, 0, Overflow, 0},
      {"infinity", Infinity, Overflow, 0, Overflow, 0},
      {"NaN", NotANumber, Overflow, 0, Overflow, 0},
      {"single infinity", -SingleInfinity, Overflow, 0, Overflow, 0},
      {"text", "12", 0, 12, 0, 12},
      {"text rounds", "2.5", 0, 2, 0, 2},
      {"text overflows", "32768", Overflow, 0, 0, 32768},
      {"empty text", "", Mismatch, 0, Mismatch, 0},
      {"word", "twelve", Mismatch, 0, Mismatch, 0},
      {"the word True", "True", Mismatch, 0, Mismatch, 0},
      {"font", Font{}, Mismatch, 0, Mismatch, 0},
      {"object", std::make_shared<Seat>(), Mismatch, 0, Mismatch, 0},
      {"null object", ObjectRef(), Mismatch, 0, Mismatch, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ErrorCodeOf([&] { return row.value.ToInteger(); }), row.integerError);
    if (row.integerError == 0) {
      EXPECT_EQ(row.value.ToInteger(), row.integer);
    }
    EXPECT_EQ(ErrorCodeOf([&] { return row.value.ToLong(); }), row.longError);
    if (row.longError == 0) {
      EXPECT_EQ(row.value.ToLong(), row.asLong);
    }
  }
}

TEST(VariantTest, ToSingle) {
  EXPECT_EQ(Variant(0.1).ToSingle(), 0.1F);
  EXPECT_EQ(Variant(0.1F).ToSingle(), 0.1F);
  EXPECT_EQ(Variant(true).ToSingle(), -1.0F);
  EXPECT_EQ(Variant().ToSingle(), 0.0F);
  EXPECT_EQ(Variant(16777217).ToSingle(), 16777216.0F);
  EXPECT_EQ(Variant("2.5").ToSingle(), 2.5F);
  EXPECT_EQ(Variant(Infinity).ToSingle(), SingleInfinity);
  EXPECT_TRUE(std::isnan(Variant(NotANumber).ToSingle()));
  EXPECT_EQ(ErrorCodeOf([] { return Variant(3.5e38).ToSingle(); }), 6);
  EXPECT_EQ(ErrorCodeOf([] { return Variant(-1e300).ToSingle(); }), 6);
  EXPECT_EQ(ErrorCodeOf([] { return Variant("x").ToSingle(); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Variant::Null().ToSingle(); }), 94);
}

TEST(VariantTest, ToDoubleKeepsASinglesValue) {
  EXPECT_EQ(Variant(0.1F).ToDouble(), static_cast<double>(0.1F));
  EXPECT_EQ(Variant(true).ToDouble(), -1);
  EXPECT_EQ(ErrorCodeOf([] { return Variant::Null().ToDouble(); }), 94);
}

TEST(VariantTest, ToBooleanAndConditions) {
  struct Row {
    const char* name;
    Variant value;
    std::int32_t error;
    bool flag;
    std::int32_t conditionError;
  };
  const Row rows[] = {
      {"empty", {}, 0, false, 0},
      {"null", Variant::Null(), 94, false, 0},
      {"true", true, 0, true, 0},
      {"false", false, 0, false, 0},
      {"one", 1, 0, true, 0},
      {"zero", 0, 0, false, 0},
      {"integer", Integer(-1), 0, true, 0},
      {"fraction", 0.25, 0, true, 0},
      {"single zero", 0.0F, 0, false, 0},
      {"True", "True", 0, true, 0},
      {"tRUE", "tRUE", 0, true, 0},
      {"FALSE", "FALSE", 0, false, 0},
      {"numeric text", "-1", 0, true, 0},
      {"zero text", " 0.0 ", 0, false, 0},
      {"empty text", "", 13, false, 13},
      {"yes", "yes", 13, false, 13},
      {"Truely", "Truely", 13, false, 13},
      {"font", Font{}, 13, false, 13},
      {"object", std::make_shared<Seat>(), 13, false, 13},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ErrorCodeOf([&] { return row.value.ToBoolean(); }), row.error);
    if (row.error == 0) {
      EXPECT_EQ(row.value.ToBoolean(), row.flag);
    }
    EXPECT_EQ(ErrorCodeOf([&] { return row.value.CountsAsTrue(); }), row.conditionError);
    if (row.conditionError == 0) {
      EXPECT_EQ(row.value.CountsAsTrue(), row.flag);
    }
  }
}

TEST(VariantTest, ToObject) {
  const auto seat = std::make_shared<Seat>();
  EXPECT_EQ(Variant(seat).ToObject(), seat);
  EXPECT_EQ(Variant(ObjectRef()).ToObject(), nullptr);
  EXPECT_EQ(Variant(std::shared_ptr<Seat>()).ToObject(), nullptr);
  for (const Variant& value :
       {Variant(), Variant::Null(), Variant(true), Variant(1), Variant("Ann"), Variant(Font{})}) {
    EXPECT_EQ(ErrorCodeOf([&] { return value.ToObject(); }), 424);
  }
}

TEST(VariantTest, KeepsItsObjectAlive) {
  auto seat = std::make_shared<Seat>();
  const std::weak_ptr<Seat> watch = seat;
  Variant value = seat;
  seat.reset();
  EXPECT_FALSE(watch.expired());
  value = {};
  EXPECT_TRUE(watch.expired());
}

TEST(VariantTest, ToFont) {
  const Font font{"MS Sans Serif", 8.25F, true, false};
  EXPECT_EQ(Variant(font).ToFont(), font);
  for (const Variant& value : {Variant(), Variant::Null(), Variant("MS Sans Serif"), Variant(ObjectRef())}) {
    EXPECT_EQ(ErrorCodeOf([&] { return value.ToFont(); }), 13);
  }
}

TEST(VariantTest, Equality) {
  const auto seat = std::make_shared<Seat>();
  struct Row {
    const char* name;
    Variant a;
    Variant b;
    bool equal;
  };
  const Row rows[] = {
      {"empty", {}, {}, true},
      {"null", Variant::Null(), Variant::Null(), true},
      {"empty and null", {}, Variant::Null(), false},
      {"empty and zero", {}, 0, false},
      {"empty and no text", {}, "", false},
      {"widths", Integer(5), 5, true},
      {"single and double", 0.5F, 0.5, true},
      {"inexact single and double", 0.1F, 0.1, false},
      {"long and double", 2147483647, 2147483647.0, true},
      {"numbers differ", 5, 6, false},
      {"flags", true, true, true},
      {"flags differ", true, false, false},
      {"flag and number", true, -1, false},
      {"text", "Ann", std::string("Ann"), true},
      {"text by case", "Ann", "ann", false},
      {"text and number", "5", 5, false},
      {"fonts", Font{"A", 8}, Font{"A", 8}, true},
      {"font sizes", Font{"A", 8}, Font{"A", 9}, false},
      {"bold", Font{"A", 8, true, false}, Font{"A", 8, false, true}, false},
      {"same object", seat, ObjectRef(seat), true},
      {"other object", seat, std::make_shared<Seat>(), false},
      {"NaN", NotANumber, NotANumber, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(row.a == row.b, row.equal);
    EXPECT_EQ(row.b == row.a, row.equal);
    EXPECT_EQ(row.a != row.b, !row.equal);
  }
}

TEST(VariantTest, LateBoundSum) {
  constexpr auto MaxLong = std::numeric_limits<std::int32_t>::max();
  constexpr auto MinLong = std::numeric_limits<std::int32_t>::min();
  constexpr float MaxSingle = std::numeric_limits<float>::max();
  struct Row {
    const char* name;
    Variant a;
    Variant b;
    VariantType type;
    double sum;
  };
  const Row rows[] = {
      {"integers", Integer(7), Integer(10), VariantType::Integer, 17},
      {"widens above", Integer(32767), Integer(10), VariantType::Long, 32777},
      {"stays at the edge", Integer(32757), Integer(10), VariantType::Integer, 32767},
      {"widens below", Integer(-32768), Integer(-1), VariantType::Long, -32769},
      {"integer and long", Integer(1), 2, VariantType::Long, 3},
      {"long widens", MaxLong, 1, VariantType::Double, 2147483648.0},
      {"long widens below", MinLong, Integer(-1), VariantType::Double, -2147483649.0},
      {"flag", true, Integer(10), VariantType::Integer, 9},
      {"empty", {}, Integer(10), VariantType::Integer, 10},
      {"both empty", {}, {}, VariantType::Integer, 0},
      {"singles", 0.5F, 0.25F, VariantType::Single, 0.75},
      {"single rounds", 16777216.0F, 1.0F, VariantType::Single, 16777216},
      {"single and integer", 0.5F, Integer(10), VariantType::Single, 10.5},
      {"single and empty", 0.5F, {}, VariantType::Single, 0.5},
      {"single and long", 0.5F, MaxLong, VariantType::Double, 2147483647.5},
      {"single widens", MaxSingle, MaxSingle, VariantType::Double, 2 * static_cast<double>(MaxSingle)},
      {"single infinity", SingleInfinity, 1.0F, VariantType::Single, Infinity},
      {"double", 0.1, Integer(10), VariantType::Double, 10.1},
      {"double and single", 0.5, 0.5F, VariantType::Double, 1},
      {"text", "7", Integer(10), VariantType::Double, 17},
      {"two texts", "7", " 10 ", VariantType::Double, 17},
      {"infinity", Infinity, 1.0, VariantType::Double, Infinity},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    for (const Variant& sum : {Add(row.a, row.b), Add(row.b, row.a)}) {
      EXPECT_EQ(sum.Type(), row.type);
      EXPECT_EQ(sum.ToDouble(), row.sum);
    }
  }
}

TEST(VariantTest, LateBoundSumOfWhatHasNone) {
  EXPECT_TRUE(Add(Variant::Null(), 1).IsNull());
  EXPECT_TRUE(Add("word", Variant::Null()).IsNull());
  EXPECT_EQ(ErrorCodeOf([] { return Add("word", 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add("", 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(1, Font{}); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(std::make_shared<Seat>(), 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(1.7e308, 1.7e308); }), 6);
}

}  // namespace
}  // namespace tactix
