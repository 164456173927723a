#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tactix/platform/Variant.h"

namespace tactix {

/// The type of a property, an argument or a result. A ColorNumber is a Long that means a colour; Variant takes any
/// value; a method without a result has None.
enum class ValueKind {
  None,
  Boolean,
  Integer,
  Long,
  Single,
  Double,
  Text,
  Font,
  ColorNumber,
  Enumeration,
  Object,
  Variant
};

struct ValueType {
  ValueKind kind = ValueKind::None;
  /// The name of an Enumeration, else empty.
  std::string_view enumeration = {};

  bool operator==(const ValueType&) const = default;
};

/// How a C++ type is used in late binding: its Type, and the conversions From a variant and To one. From fails with the
/// error of the variant's own conversion. Specialized for every type that members of late-bound objects have.
template <class T>
struct LateBound;

template <>
struct LateBound<bool> {
  static constexpr ValueType Type{ValueKind::Boolean};
  static bool From(const Variant& value) { return value.ToBoolean(); }
  static Variant To(bool value) { return value; }
};

template <>
struct LateBound<std::int16_t> {
  static constexpr ValueType Type{ValueKind::Integer};
  static std::int16_t From(const Variant& value) { return value.ToInteger(); }
  static Variant To(std::int16_t value) { return value; }
};

template <>
struct LateBound<std::int32_t> {
  static constexpr ValueType Type{ValueKind::Long};
  static std::int32_t From(const Variant& value) { return value.ToLong(); }
  static Variant To(std::int32_t value) { return value; }
};

template <>
struct LateBound<float> {
  static constexpr ValueType Type{ValueKind::Single};
  static float From(const Variant& value) { return value.ToSingle(); }
  static Variant To(float value) { return value; }
};

template <>
struct LateBound<double> {
  static constexpr ValueType Type{ValueKind::Double};
  static double From(const Variant& value) { return value.ToDouble(); }
  static Variant To(double value) { return value; }
};

template <>
struct LateBound<std::string> {
  static constexpr ValueType Type{ValueKind::Text};
  static std::string From(const Variant& value) { return value.ToText(); }
  static Variant To(const std::string& value) { return value; }
};

/// For an argument. From returns a std::string, which the caller keeps for as long as the view is used.
template <>
struct LateBound<std::string_view> : LateBound<std::string> {
  static Variant To(std::string_view value) { return value; }
};

template <>
struct LateBound<Font> {
  static constexpr ValueType Type{ValueKind::Font};
  static Font From(const Variant& value) { return value.ToFont(); }
  static Variant To(const Font& value) { return value; }
};

template <>
struct LateBound<ObjectRef> {
  static constexpr ValueType Type{ValueKind::Object};
  static ObjectRef From(const Variant& value) { return value.ToObject(); }
  static Variant To(const ObjectRef& value) { return value; }
};

template <>
struct LateBound<Variant> {
  static constexpr ValueType Type{ValueKind::Variant};
  static Variant From(const Variant& value) { return value; }
  static Variant To(const Variant& value) { return value; }
};

/// An argument that may be left out; Empty stands for one that is.
template <class T>
struct LateBound<std::optional<T>> {
  static constexpr ValueType Type = LateBound<T>::Type;
  static std::optional<T> From(const Variant& value) {
    if (value.IsEmpty()) return std::nullopt;
    return LateBound<T>::From(value);
  }
  static Variant To(const std::optional<T>& value) { return value ? LateBound<T>::To(*value) : Variant(); }
};

}  // namespace tactix
