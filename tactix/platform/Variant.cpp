#include "tactix/platform/Variant.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "tactix/platform/Error.h"
#include "tactix/platform/private/Decimal.h"
#include "tactix/platform/private/ParseNumber.h"

namespace tactix {

namespace {

/// How many objects a conversion goes through, each the default property of the one before, until it gives up: an
/// object may be its own default property.
constexpr int LongestWay = 16;

bool IsNumber(VariantType type) { return type >= VariantType::Integer && type <= VariantType::Double; }

double RoundHalfToEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

template <class Whole>
Whole ToWhole(double value) {
  const double rounded = RoundHalfToEven(value);
  const bool fits = rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max();
  if (!fits) throw Error(Error::Overflow);  // true for NaN, too
  return static_cast<Whole>(rounded);
}

/// The type that a value counts as in an addition: a text, for example, counts as a Double.
VariantType TermType(const Variant& value) {
  switch (value.Type()) {
    case VariantType::Empty:
    case VariantType::Boolean:
    case VariantType::Integer:
      return VariantType::Integer;
    case VariantType::Long:
    case VariantType::Single:
      return value.Type();
    default:
      return VariantType::Double;
  }
}

Variant AddWhole(std::int64_t sum, VariantType type) {
  if (type == VariantType::Integer && sum == static_cast<std::int16_t>(sum)) return static_cast<std::int16_t>(sum);
  if (sum == static_cast<std::int32_t>(sum)) return static_cast<std::int32_t>(sum);
  return static_cast<double>(sum);
}

}  // namespace

Variant Variant::Null() {
  Variant null;
  null.value_ = NullValue{};
  return null;
}

std::int16_t Variant::ToInteger() const {
  if (const auto* value = std::get_if<std::int16_t>(&value_)) return *value;
  return ToWhole<std::int16_t>(ToDouble());
}

std::int32_t Variant::ToLong() const {
  if (const auto* value = std::get_if<std::int32_t>(&value_)) return *value;
  return ToWhole<std::int32_t>(ToDouble());
}

float Variant::ToSingle() const {
  if (const auto* value = std::get_if<float>(&value_)) return *value;
  const double value = ToDouble();
  const float single = static_cast<float>(value);
  if (std::isinf(single) && !std::isinf(value)) throw Error(Error::Overflow);
  return single;
}

double Variant::ToDouble() const {
  switch (Type()) {
    case VariantType::Empty:
      return 0;
    case VariantType::Boolean:
      return *std::get_if<bool>(&value_) ? -1 : 0;
    case VariantType::Integer:
      return *std::get_if<std::int16_t>(&value_);
    case VariantType::Long:
      return *std::get_if<std::int32_t>(&value_);
    case VariantType::Single:
      return static_cast<double>(*std::get_if<float>(&value_));
    case VariantType::Double:
      return *std::get_if<double>(&value_);
    case VariantType::Text:
      return ParseNumber(*std::get_if<std::string>(&value_));
    case VariantType::Object:
      return Plain().ToDouble();
    default:
      FailToConvert();
  }
}

bool Variant::ToBoolean() const {
  if (const auto* flag = std::get_if<bool>(&value_)) return *flag;
  if (const auto* text = std::get_if<std::string>(&value_)) {
    if (SameName(*text, "True") || *text == "#TRUE#") return true;
    if (SameName(*text, "False") || *text == "#FALSE#") return false;
  }
  if (Type() == VariantType::Object) return Plain().ToBoolean();
  return ToDouble() != 0;
}

std::string Variant::ToText() const {
  std::string text;
  switch (Type()) {
    case VariantType::Empty:
      break;
    case VariantType::Boolean:
      text = *std::get_if<bool>(&value_) ? "True" : "False";
      break;
    case VariantType::Integer:
      text = std::to_string(*std::get_if<std::int16_t>(&value_));
      break;
    case VariantType::Long:
      text = std::to_string(*std::get_if<std::int32_t>(&value_));
      break;
    case VariantType::Single:
      AppendNumber(text, *std::get_if<float>(&value_));
      break;
    case VariantType::Double:
      AppendNumber(text, *std::get_if<double>(&value_));
      break;
    case VariantType::Text:
      text = *std::get_if<std::string>(&value_);
      break;
    case VariantType::Object:
      text = Plain().ToText();
      break;
    default:
      FailToConvert();
  }
  return text;
}

ObjectRef Variant::ToObject() const {
  if (const auto* object = std::get_if<ObjectRef>(&value_)) return *object;
  throw Error(Error::ObjectRequired);
}

const Font& Variant::ToFont() const {
  if (const auto* font = std::get_if<Font>(&value_)) return *font;
  throw Error(Error::TypeMismatch);
}

bool Variant::CountsAsTrue() const {
  if (Type() == VariantType::Object) return Plain().CountsAsTrue();
  return !IsEmpty() && !IsNull() && ToBoolean();
}

Variant Variant::Plain() const {
  Variant value = *this;
  for (int objects = 0; value.Type() == VariantType::Object; ++objects) {
    const ObjectRef object = *std::get_if<ObjectRef>(&value.value_);
    if (!object) throw Error(Error::ObjectNotSet);
    if (objects == LongestWay) throw Error(Error::TypeMismatch);
    try {
      value = object->Get(DefaultPropertyName);
    } catch (const Error& error) {
      if (error.Code() != Error::NoSuchMember) throw;
      throw Error(Error::TypeMismatch);
    }
  }
  return value;
}

bool Variant::Equals(const Variant& other) const {
  if (IsNumber(Type()) && IsNumber(other.Type())) return ToDouble() == other.ToDouble();
  return value_ == other.value_;
}

void Variant::FailToConvert() const { throw Error(IsNull() ? Error::InvalidUseOfNull : Error::TypeMismatch); }

Variant Add(const Variant& a, const Variant& b) {
  if (a.IsNull() || b.IsNull()) return Variant::Null();
  if (a.Type() == VariantType::Object || b.Type() == VariantType::Object) {
    const Variant first = a.Plain();
    return Add(first, b.Plain());
  }
  const VariantType typeOfA = TermType(a);
  const VariantType typeOfB = TermType(b);
  const VariantType wider = std::max(typeOfA, typeOfB);
  if (wider <= VariantType::Long) return AddWhole(std::int64_t{a.ToLong()} + b.ToLong(), wider);

  const double termA = a.ToDouble();
  const double termB = b.ToDouble();
  const double sum = termA + termB;
  if (std::isinf(sum) && std::isfinite(termA) && std::isfinite(termB)) throw Error(Error::Overflow);
  // A Single plus a Long gives a Double, because a Single cannot hold every Long exactly.
  const bool staysSingle = wider == VariantType::Single && std::min(typeOfA, typeOfB) != VariantType::Long;
  const float single = static_cast<float>(sum);
  if (staysSingle && std::isinf(single) == std::isinf(sum)) return single;
  return sum;
}

}  // namespace tactix
