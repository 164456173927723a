#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/LateBound.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

/// The methods of a class by name, one row each, for late-bound calls and type information. Base is the class whose
/// objects the methods are called on.
template <class Base>
class MethodRows {
 public:
  struct Argument {
    ValueType type;
    bool isWritten = false;   ///< the method may write to it
    bool isOptional = false;  ///< may be left out, together with all after it
  };
  struct Row {
    std::string name;
    ValueType result;
    std::vector<Argument> arguments;
    /// Converts the arguments, calls the method, and stores what it has written to its arguments in the span.
    std::function<Variant(Base&, std::span<Variant>)> call;
  };

  template <class C, class R, class... A>
  MethodRows& Method(std::string_view name, R (C::*method)(A...)) {
    return Add<C, R, A...>(name, method);
  }
  template <class C, class R, class... A>
  MethodRows& Method(std::string_view name, R (C::*method)(A...) const) {
    return Add<C, R, A...>(name, method);
  }
  /// Picks the overload whose first argument is a variant.
  template <class C, class... A>
  MethodRows& TakesVariant(std::string_view name, void (C::*method)(const Variant&, A...)) {
    return Add<C, void, const Variant&, A...>(name, method);
  }

  /// Null when there is no such method; names compare without case.
  const Row* Find(std::string_view name) const {
    for (const Row& row : rows_) {
      if (SameName(row.name, name)) return &row;
    }
    return nullptr;
  }
  const std::vector<Row>& Rows() const { return rows_; }

 private:
  template <class T>
  using Plain = std::remove_cvref_t<T>;
  template <class T>
  static constexpr bool IsWritten = std::is_lvalue_reference_v<T> && !std::is_const_v<std::remove_reference_t<T>>;
  template <class T>
  struct IsOptional : std::false_type {};
  template <class T>
  struct IsOptional<std::optional<T>> : std::true_type {};

  template <class C, class R, class... A, class M>
  MethodRows& Add(std::string_view name, M method) {
    Row row;
    row.name = name;
    if constexpr (!std::is_void_v<R>) row.result = LateBound<Plain<R>>::Type;
    row.arguments = {Argument{LateBound<Plain<A>>::Type, IsWritten<A>, IsOptional<Plain<A>>::value}...};
    row.call = [method, row = row.arguments](Base& base, std::span<Variant> given) {
      CheckTheNumberOf(given, row);
      return CallWith<C, R, A...>(method, base, given, std::index_sequence_for<A...>());
    };
    rows_.push_back(std::move(row));
    return *this;
  }

  static void CheckTheNumberOf(std::span<Variant> given, const std::vector<Argument>& arguments) {
    std::size_t needed = arguments.size();
    while (needed > 0 && arguments[needed - 1].isOptional) --needed;
    if (given.size() < needed || given.size() > arguments.size()) throw Error(Error::InvalidProcedureCall);
  }

  template <class C, class R, class... A, class M, std::size_t... I>
  static Variant CallWith(M method, Base& base, std::span<Variant> given, std::index_sequence<I...>) {
    // Converting an argument may run host code, which may destroy the object.
    const auto self = WatchOf(base);
    std::tuple<decltype(LateBound<Plain<A>>::From(Variant()))...> values{
        LateBound<Plain<A>>::From(I < given.size() ? given[I] : Variant())...};
    if (!self) throw Error(Error::ObjectNotSet);
    Variant result;
    if constexpr (std::is_void_v<R>) {
      (static_cast<C&>(base).*method)(std::get<I>(values)...);
    } else {
      result = LateBound<Plain<R>>::To((static_cast<C&>(base).*method)(std::get<I>(values)...));
    }
    [[maybe_unused]] const auto writeBack = [given](std::size_t index, const auto& value, auto isWritten) {
      using Value = Plain<decltype(value)>;
      if constexpr (decltype(isWritten)::value) given[index] = LateBound<Value>::To(value);
    };
    (writeBack(I, std::get<I>(values), std::bool_constant<IsWritten<A>>()), ...);
    return result;
  }

  static auto WatchOf(Base& base) {
    if constexpr (std::is_base_of_v<Trackable, Base>) {
      return Weak<Base>(base);
    } else {
      return &base;
    }
  }

  std::vector<Row> rows_;
};

class Control;

/// The methods of a control class.
using MethodTable = MethodRows<Control>;

}  // namespace tactix
