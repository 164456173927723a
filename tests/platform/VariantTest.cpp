#include "tactix/platform/Variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "tactix/platform/NumberText.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/PropertyObject.h"

namespace tactix {
namespace {

using tests::ErrorCodeOf;
using tests::PropertyObject;

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
      {nullptr, VariantType::Object},
      {static_cast<const char*>(nullptr), VariantType::Text},
      {std::make_shared<Seat>(), VariantType::Object},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.value.Type(), row.type);
    EXPECT_EQ(row.value.IsEmpty(), row.type == VariantType::Empty);
    EXPECT_EQ(row.value.IsNull(), row.type == VariantType::Null);
  }
}

TEST(VariantTest, TakesNoPointerThatWouldSlipInAsAFlag) {
  static_assert(!std::is_convertible_v<int*, Variant>);
  static_assert(!std::is_convertible_v<void*, Variant>);
  static_assert(!std::is_convertible_v<std::shared_ptr<int>, Variant>);
  static_assert(std::is_convertible_v<std::nullptr_t, Variant>);
  EXPECT_EQ(Variant("x").Type(), VariantType::Text);
}

TEST(VariantTest, ANullPointerIsTheNullObjectAndANullTextIsEmpty) {
  EXPECT_EQ(Variant(nullptr).ToObject(), nullptr);
  EXPECT_EQ(Variant(nullptr), Variant(ObjectRef()));
  EXPECT_EQ(Variant(static_cast<const char*>(nullptr)).ToText(), "");
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
      {"null object", nullptr, 91, 0, 91, 0},
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
      {"#TRUE#", "#TRUE#", 0, true, 0},
      {"#FALSE#", "#FALSE#", 0, false, 0},
      {"#true#", "#true#", 13, false, 13},
      {"#TRUE", "#TRUE", 13, false, 13},
      {"object", std::make_shared<Seat>(), 13, false, 13},
      {"null object", nullptr, 91, false, 91},
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

// Objects that stand for a value.

/// Leads on to another object, or to itself.
class Signpost : public Object {
 public:
  Variant Get(std::string_view name) override {
    return name == DefaultPropertyName ? Variant(to.lock()) : Object::Get(name);
  }

  std::weak_ptr<Object> to;
};

/// Every conversion of a value, as a text or an error's code.
std::vector<std::string> Conversions(const Variant& value) {
  std::vector<std::string> results;
  const auto note = [&](const char* name, const auto& convert) {
    std::string result;
    const std::int32_t code = ErrorCodeOf([&] {
      result = convert();
      return 0;
    });
    results.push_back(name + (code == 0 ? ": " + result : " fails with " + std::to_string(code)));
  };
  note("Integer", [&] { return std::to_string(value.ToInteger()); });
  note("Long", [&] { return std::to_string(value.ToLong()); });
  note("Single", [&] { return Variant(value.ToSingle()).ToText(); });
  note("Double", [&] { return Variant(value.ToDouble()).ToText(); });
  note("Boolean", [&] { return Variant(value.ToBoolean()).ToText(); });
  note("Text", [&] { return value.ToText(); });
  note("condition", [&] { return Variant(value.CountsAsTrue()).ToText(); });
  note("Str", [&] { return Str(value); });
  note("format", [&] { return FormatNumber(value, "000.00"); });
  note("format without a picture", [&] { return FormatNumber(value, ""); });
  note("sum", [&] { return Str(Add(value, std::int16_t{10})); });
  note("sum the other way round", [&] { return Str(Add(0.25F, value)); });
  return results;
}

TEST(VariantTest, AnObjectConvertsAsItsDefaultPropertyDoes) {
  const Variant values[] = {{},     Variant::Null(), true, std::int16_t{-7}, 40000, 0.5F, 1.0 / 3, "12",
                            "True", "Ann",           "",   Font{},           1e300};
  for (const Variant& value : values) {
    const auto object = std::make_shared<PropertyObject>("", value);
    object->Set("Value", 99);
    EXPECT_EQ(Conversions(object), Conversions(value));
    EXPECT_EQ(object.use_count(), 1);
    const auto around = std::make_shared<PropertyObject>("", object);
    EXPECT_EQ(Conversions(around), Conversions(value)) << "the default property may be such an object, too";
  }
  EXPECT_EQ(Variant(std::make_shared<PropertyObject>("", 2.5)).ToDouble(), 2.5);
  EXPECT_EQ(Variant(std::make_shared<PropertyObject>("", "Ann")).ToText(), "Ann");
}

TEST(VariantTest, ObjectsAddUpAsTheirValues) {
  const auto seven = std::make_shared<PropertyObject>("", std::int16_t{7});
  const auto half = std::make_shared<PropertyObject>("", 0.5F);
  const Variant sum = Add(seven, half);
  EXPECT_EQ(sum.Type(), VariantType::Single);
  EXPECT_EQ(sum, 7.5F);
  EXPECT_TRUE(Add(seven, std::make_shared<PropertyObject>("", Variant::Null())).IsNull());
  const auto broken = std::make_shared<PropertyObject>("", 1);
  broken->OnUse = [](const std::string&) { throw Error(1234); };
  EXPECT_TRUE(Add(broken, Variant::Null()).IsNull()) << "nothing is asked where the other is Null";
  EXPECT_EQ(ErrorCodeOf([&] { return Add(seven, broken); }), 1234);
  seven->Log.clear();
  EXPECT_EQ(ErrorCodeOf([&] { return Add(broken, seven); }), 1234);
  EXPECT_TRUE(seven->Log.empty()) << "the first one is asked first";
}

TEST(VariantTest, PlainIsTheValueThatAnObjectStandsFor) {
  EXPECT_EQ(Variant("Ann").Plain(), "Ann");
  EXPECT_TRUE(Variant().Plain().IsEmpty());
  const auto object = std::make_shared<PropertyObject>("", std::int16_t{-7});
  EXPECT_EQ(Variant(object).Plain().Type(), VariantType::Integer);
  EXPECT_EQ(object->Log, std::vector<std::string>{"Get "});
}

TEST(VariantTest, AnObjectThatStandsForNothingFails) {
  const auto itself = std::make_shared<Signpost>();
  itself->to = itself;
  const auto there = std::make_shared<Signpost>();
  const auto back = std::make_shared<Signpost>();
  there->to = back;
  back->to = there;
  const auto failing = std::make_shared<PropertyObject>("", 1);
  failing->OnUse = [](const std::string&) { throw Error(1234); };
  struct Row {
    const char* name;
    Variant value;
    std::int32_t error;
  };
  const Row rows[] = {
      {"no default property", std::make_shared<Seat>(), 13},
      {"null", nullptr, 91},
      {"leads to itself", itself, 13},
      {"two lead to each other", there, 13},
      {"leads to null", std::make_shared<Signpost>(), 91},
      {"leads to one without a default property", std::make_shared<PropertyObject>("", std::make_shared<Seat>()), 13},
      {"a getter that fails", failing, 1234},
      {"leads to a getter that fails", std::make_shared<PropertyObject>("", failing), 1234},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    for (const std::string& result : Conversions(row.value)) {
      EXPECT_NE(result.find(" fails with " + std::to_string(row.error)), std::string::npos) << result;
    }
    EXPECT_EQ(ErrorCodeOf([&] { return row.value.Plain(); }), row.error);
  }
}

TEST(VariantTest, AWayOfSixteenObjectsIsTheLongestThatLeadsToAValue) {
  Variant value = 7;
  for (int objects = 1; objects <= 16; ++objects) value = std::make_shared<PropertyObject>("", value);
  EXPECT_EQ(value.ToLong(), 7);
  value = std::make_shared<PropertyObject>("", value);
  EXPECT_EQ(ErrorCodeOf([&] { return value.ToLong(); }), 13);
}

TEST(VariantTest, AnObjectIsKeptUntilItHasAnswered) {
  using Convert = std::function<void(const Variant&)>;
  const Convert conversions[] = {
      [](const Variant& value) { EXPECT_EQ(value.ToInteger(), 7); },
      [](const Variant& value) { EXPECT_EQ(value.ToSingle(), 7); },
      [](const Variant& value) { EXPECT_TRUE(value.ToBoolean()); },
      [](const Variant& value) { EXPECT_EQ(value.ToText(), "7"); },
      [](const Variant& value) { EXPECT_TRUE(value.CountsAsTrue()); },
      [](const Variant& value) { EXPECT_EQ(Str(value), " 7"); },
      [](const Variant& value) { EXPECT_EQ(FormatNumber(value, "0.0"), "7.0"); },
      [](const Variant& value) { EXPECT_EQ(Add(value, 1), 8); },
  };
  for (const Convert& convert : conversions) {
    auto value = std::make_unique<Variant>();
    auto object = std::make_shared<PropertyObject>("", 7);
    object->OnUse = [&value](const std::string&) { value.reset(); };
    *value = std::move(object);
    convert(*value);
    EXPECT_EQ(value, nullptr) << "the only one who held the object has let it go";
  }
}

TEST(VariantTest, LateBoundSumOfWhatHasNone) {
  EXPECT_TRUE(Add(Variant::Null(), 1).IsNull());
  EXPECT_TRUE(Add("word", Variant::Null()).IsNull());
  EXPECT_EQ(ErrorCodeOf([] { return Add("word", 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add("", 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(1, Font{}); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(std::make_shared<Seat>(), 1); }), 13);
  EXPECT_EQ(ErrorCodeOf([] { return Add(1, nullptr); }), 91);
  EXPECT_EQ(ErrorCodeOf([] { return Add(1.7e308, 1.7e308); }), 6);
}

enum class Suit : std::uint8_t { Clubs = 3 };

TEST(VariantTest, TakesEveryWholeNumber) {
  const struct {
    const char* name;
    Variant value;
    VariantType type;
    double number;
  } rows[] = {
      {"long", 70000L, VariantType::Long, 70000},
      {"long that is too long", 5'000'000'000L, VariantType::Double, 5e9},
      {"64 bits", std::int64_t{-2147483649}, VariantType::Double, -2147483649.0},
      {"lowest Long", std::int64_t{-2147483648}, VariantType::Long, -2147483648.0},
      {"unsigned", 7U, VariantType::Long, 7},
      {"unsigned beyond Long", 4294967295U, VariantType::Double, 4294967295.0},
      {"size", sizeof(int), VariantType::Long, sizeof(int)},
      {"byte", std::uint8_t{200}, VariantType::Long, 200},
      {"row", Suit::Clubs, VariantType::Long, 3},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.value.Type(), row.type) << row.name;
    EXPECT_EQ(row.value.ToDouble(), row.number) << row.name;
  }
}

}  // namespace
}  // namespace tactix
