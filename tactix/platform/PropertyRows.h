#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "tactix/platform/LateBound.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

/// The properties of a class by name, one row each: what controls and late-bound objects have in common. Base is the
/// class whose objects the rows read and write, Derived the table class, which the functions return for chaining.
template <class Derived, class Base>
class PropertyRows {
 public:
  using Getter = std::function<Variant(Base&)>;
  using Setter = std::function<void(Base&, const Variant&)>;

  struct Row {
    std::string name;
    ValueType type;
    Getter get;           ///< empty: set-only
    Setter set;           ///< empty: get-only
    std::string savedAs;  ///< its name in saved forms and in notices; empty where it is not saved
  };

  template <class C, class G, class S>
  Derived& Property(std::string_view name, G (C::*get)() const, void (C::*set)(S)) {
    return Add({std::string(name), LateBound<Plain<G>>::Type, GetterOf(get), SetterOf(set), {}});
  }
  /// For a getter that is not const, because it has a side effect.
  template <class C, class G, class S>
  Derived& Property(std::string_view name, G (C::*get)(), void (C::*set)(S)) {
    return Add({std::string(name), LateBound<Plain<G>>::Type, GetterOf(get), SetterOf(set), {}});
  }
  template <class C, class G>
  Derived& GetOnly(std::string_view name, G (C::*get)() const) {
    return Add({std::string(name), LateBound<Plain<G>>::Type, GetterOf(get), nullptr, {}});
  }
  template <class C, class S>
  Derived& SetOnly(std::string_view name, void (C::*set)(S)) {
    return Add({std::string(name), LateBound<Plain<S>>::Type, nullptr, SetterOf(set), {}});
  }
  /// A public data member.
  template <class C, class T>
  Derived& Field(std::string_view name, T C::*field) {
    return Add({std::string(name),
                LateBound<Plain<T>>::Type,
                GetBy([field](C& self) { return self.*field; }),
                Into(field),
                {}});
  }
  /// A property that is not simply a pair of member functions. GetBy, SetBy and Into make its getter and setter.
  Derived& Add(Row row) {
    rows_.push_back(std::move(row));
    return static_cast<Derived&>(*this);
  }
  /// The property added last is a number that means a colour.
  Derived& IsAColor() {
    rows_.back().type = {ValueKind::ColorNumber};
    return static_cast<Derived&>(*this);
  }

  // Make getters and setters from lambdas, `[](C& self) { ... }` and `[](C& self, T value) { ... }`, or from members.
  template <class Function>
  static Getter GetBy(Function get) {
    return GetterOf(get, &Function::operator());
  }
  template <class Function>
  static Setter SetBy(Function set) {
    return SetterOf(set, &Function::operator());
  }
  template <class C, class S>
  static Setter SetBy(void (C::*set)(S)) {
    return SetterOf(set);
  }
  /// Stores the value in the data member, without what the property's setter would check or notify.
  template <class C, class T>
  static Setter Into(T C::*member) {
    return SetBy([member](C& self, const T& value) { self.*member = value; });
  }

  /// Null when there is no such property; names compare without case.
  const Row* Find(std::string_view name) const {
    for (const Row& row : rows_) {
      if (SameName(row.name, name)) return &row;
    }
    return nullptr;
  }
  const std::vector<Row>& Rows() const { return rows_; }

 protected:
  Row& LastRow() { return rows_.back(); }

 private:
  template <class T>
  using Plain = std::remove_cvref_t<T>;

  template <class C, class G>
  static Getter GetterOf(G (C::*get)() const) {
    return [get](Base& base) { return LateBound<Plain<G>>::To((static_cast<C&>(base).*get)()); };
  }
  template <class C, class G>
  static Getter GetterOf(G (C::*get)()) {
    return [get](Base& base) { return LateBound<Plain<G>>::To((static_cast<C&>(base).*get)()); };
  }
  template <class C, class S>
  static Setter SetterOf(void (C::*set)(S)) {
    return [set](Base& base, const Variant& value) {
      Convert<Plain<S>>(base, value, [&](const auto& plain) { (static_cast<C&>(base).*set)(plain); });
    };
  }

  template <class Function, class G, class C>
  static Getter GetterOf(const Function& get, G (Function::*)(C&) const) {
    return [get](Base& base) { return LateBound<Plain<G>>::To(get(static_cast<C&>(base))); };
  }
  template <class Function, class C, class S>
  static Setter SetterOf(const Function& set, void (Function::*)(C&, S) const) {
    return [set](Base& base, const Variant& value) {
      Convert<Plain<S>>(base, value, [&](const auto& plain) { set(static_cast<C&>(base), plain); });
    };
  }

  /// Converts, then sets. The conversion may run host code that destroys the object; then nothing is set.
  template <class T, class Set>
  static void Convert(Base& base, const Variant& value, const Set& set) {
    if constexpr (std::derived_from<Base, Trackable>) {
      const Weak<Base> self(base);
      const auto plain = LateBound<T>::From(value);
      if (self) set(plain);
    } else {
      set(LateBound<T>::From(value));
    }
  }

  std::vector<Row> rows_;
};

}  // namespace tactix
