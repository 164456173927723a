#pragma once

#include <compare>
#include <cstdint>

#include "tactix/platform/LateBound.h"

namespace tactix {

/// A 32-bit number that stands for a row of the enumeration E. Any number is a value, whether a row has it or not.
/// Converts from rows and from plain numbers, compares with both; 0 by default.
template <class E>
class Coded {
 public:
  constexpr Coded() = default;
  constexpr Coded(E row) : value_(static_cast<std::int32_t>(row)) {}
  constexpr Coded(std::int32_t value) : value_(value) {}

  constexpr std::int32_t Value() const { return value_; }
  /// As a Long.
  operator Variant() const { return value_; }
  /// For switches. Need not be one of E's rows.
  constexpr E Row() const { return static_cast<E>(value_); }

  friend constexpr bool operator==(Coded a, Coded b) { return a.value_ == b.value_; }
  friend constexpr std::strong_ordering operator<=>(Coded a, Coded b) { return a.value_ <=> b.value_; }

 private:
  std::int32_t value_ = 0;
};

/// For late binding; EnumerationNames.h says what the enumeration is called.
template <class E>
struct LateBound<Coded<E>> {
  static constexpr ValueType Type{ValueKind::Enumeration, NameOfEnumeration(E())};
  static Coded<E> From(const Variant& value) { return value.ToLong(); }
  static Variant To(Coded<E> value) { return value.Value(); }
};

}  // namespace tactix
