#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "tactix/platform/Export.h"
#include "tactix/platform/Font.h"
#include "tactix/platform/Object.h"

namespace tactix {

enum class VariantType { Empty, Null, Boolean, Integer, Long, Single, Double, Text, Font, Object };

/// A value whose type is known only while the program runs: what late-bound properties and saved ones are made of.
/// Empty by default.
///
/// The conversions leave the value as it is. Null fails with 94 in all of them but ToObject, text that is no number
/// and fonts with 13. An object converts as its default property does: they ask it, which may run code of the host's,
/// and keep it until it has answered. A null reference then fails with 91, an object without a default property with
/// 13, and so do objects that only lead on to further objects.
class TACTIX_EXPORT Variant {
 public:
  Variant() = default;
  template <std::same_as<bool> T>  // exactly: a pointer must not slip in as a flag
  Variant(T value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(float value) : value_(value) {}
  Variant(double value) : value_(value) {}
  /// Of the other whole numbers and of an enumeration's rows: a Long, or a Double where it is beyond 32 bits, which
  /// holds whole numbers up to 2 to the 53rd exactly.
  template <std::integral T>
  requires(!std::same_as<T, bool>) Variant(T value) {
    if (std::in_range<std::int32_t>(value)) {
      value_ = static_cast<std::int32_t>(value);
    } else {
      value_ = static_cast<double>(value);
    }
  }
  template <class Row>
  requires std::is_enum_v<Row> Variant(Row row) : Variant(static_cast<std::underlying_type_t<Row>>(row)) {}
  /// A null pointer is the empty text.
  Variant(const char* text) : value_(std::in_place_type<std::string>, text ? text : "") {}
  Variant(std::string_view text) : value_(std::in_place_type<std::string>, text) {}
  Variant(std::string text) : value_(std::move(text)) {}
  Variant(Font font) : value_(std::move(font)) {}
  Variant(ObjectRef object) : value_(std::move(object)) {}
  /// The null reference, and no text.
  Variant(std::nullptr_t) : value_(std::in_place_type<ObjectRef>) {}
  template <std::derived_from<Object> T>
  Variant(std::shared_ptr<T> object) : value_(std::in_place_type<ObjectRef>, std::move(object)) {}

  static Variant Null();

  VariantType Type() const { return static_cast<VariantType>(value_.index()); }
  bool IsEmpty() const { return Type() == VariantType::Empty; }
  bool IsNull() const { return Type() == VariantType::Null; }

  /// To whole numbers: rounds half to even, then fails with 6 out of range; infinities and NaN fail with 6 too. True is
  /// −1, Empty is 0. Text is read as ToDouble reads it.
  std::int16_t ToInteger() const;
  std::int32_t ToLong() const;
  /// Fails with 6 where a finite value is beyond a single's range.
  float ToSingle() const;
  /// Text is a number with sign, decimals behind a "." and exponent, or a 32-bit pattern as "&H80000005"; blanks around
  /// it do not count. Text beyond a double's range fails with 6.
  double ToDouble() const;
  /// A number is true when non-zero. Text is "True" or "False" in any case, "#TRUE#" or "#FALSE#", or a number. Empty
  /// is false.
  bool ToBoolean() const;
  /// Numbers with at most 7 significant digits from a single and 15 from a double, rounded half away from zero and
  /// without closing zeros: not every number reads back the same. Always with a "."; with an exponent ("1E+20") below
  /// 0.00001 and where more digits than that stand before the point. Zero has no sign. Flags are "True" and "False".
  /// Empty is "".
  std::string ToText() const;
  /// Fails with 424 where the value is no object reference. A null reference is returned as it is.
  ObjectRef ToObject() const;
  /// Fails with 13 where the value is no font.
  const Font& ToFont() const;

  /// How a condition takes it: Empty and Null are false, all else is ToBoolean().
  bool CountsAsTrue() const;

  /// What the conversions go by: the value itself, or for an object the value of its default property. No object.
  Variant Plain() const;

  /// Numbers are equal by value whatever their width; otherwise the types must be the same too. Texts compare with
  /// case, fonts by what they say, objects by identity.
  friend bool operator==(const Variant& a, const Variant& b) { return a.Equals(b); }

 private:
  struct NullValue {
    bool operator==(const NullValue&) const = default;
  };

  bool Equals(const Variant& other) const;
  [[noreturn]] void FailToConvert() const;

  // In the order of VariantType.
  std::variant<std::monostate, NullValue, bool, std::int16_t, std::int32_t, float, double, std::string, Font, ObjectRef>
      value_;
};

/// The late-bound sum. It takes the wider type of the two and widens on where the sum does not fit (Integer, Long,
/// Double; Single, Double), so 32767 + 10 is a Long. Flags and Empty add as Integer, text as Double, a Long and a
/// Single make a Double. Objects add as their default properties, `a` read first. Null and anything is Null. A sum
/// beyond a double's range fails with 6.
TACTIX_EXPORT Variant Add(const Variant& a, const Variant& b);

}  // namespace tactix
