#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Control;

/// A variant as the C++ type of a property.
template <class T>
T FromVariant(const Variant& value) {
  if constexpr (std::is_same_v<T, bool>) {
    return value.ToBoolean();
  } else if constexpr (std::is_same_v<T, std::int16_t>) {
    return value.ToInteger();
  } else if constexpr (std::is_same_v<T, std::int32_t>) {
    return value.ToLong();
  } else if constexpr (std::is_same_v<T, float>) {
    return value.ToSingle();
  } else if constexpr (std::is_same_v<T, std::string>) {
    return value.ToText();
  } else if constexpr (std::is_same_v<T, Font>) {
    return value.ToFont();
  } else if constexpr (std::is_same_v<T, ObjectRef>) {
    return value.ToObject();
  } else {
    return T(value.ToLong());  // a coded enumeration
  }
}

/// The properties of a control class by name, for late-bound access and for sweeps over all controls.
class TACTIX_EXPORT PropertyTable {
 public:
  struct Row {
    std::string name;
    std::function<Variant(Control&)> get;               // empty: set-only
    std::function<void(Control&, const Variant&)> set;  // empty: get-only
  };

  template <class C, class G, class S>
  PropertyTable& Property(std::string_view name, G (C::*get)() const, void (C::*set)(S)) {
    return Add(name, Getter(get), Setter(set));
  }
  /// For a getter with a side effect.
  template <class C, class G, class S>
  PropertyTable& Property(std::string_view name, G (C::*get)(), void (C::*set)(S)) {
    return Add(
        name, [get](Control& control) { return ToVariant((static_cast<C&>(control).*get)()); }, Setter(set));
  }
  template <class C, class G>
  PropertyTable& GetOnly(std::string_view name, G (C::*get)() const) {
    return Add(name, Getter(get), nullptr);
  }
  template <class C, class S>
  PropertyTable& SetOnly(std::string_view name, void (C::*set)(S)) {
    return Add(name, nullptr, Setter(set));
  }

  /// Null when there is no such property; names compare without case.
  const Row* Find(std::string_view name) const;
  const std::vector<Row>& Rows() const { return rows_; }

 private:
  template <class C, class G>
  static auto Getter(G (C::*get)() const) {
    return [get](Control& control) { return ToVariant((static_cast<C&>(control).*get)()); };
  }
  template <class C, class S>
  static auto Setter(void (C::*set)(S)) {
    using Plain = std::remove_cvref_t<S>;
    using Stored = std::conditional_t<std::is_same_v<Plain, std::string_view>, std::string, Plain>;
    return [set](Control& control, const Variant& value) {
      // Converting may ask an object of the host's, which may end the control.
      const Weak<C> self(static_cast<C&>(control));
      const Stored converted = FromVariant<Stored>(value);
      if (self) ((*self.Get()).*set)(converted);
    };
  }
  template <class T>
  static Variant ToVariant(const T& value) {
    if constexpr (std::is_constructible_v<Variant, const T&>) {
      return Variant(value);
    } else {
      return Variant(value.Value());
    }
  }
  PropertyTable& Add(std::string_view name, std::function<Variant(Control&)> get,
                     std::function<void(Control&, const Variant&)> set);

  std::vector<Row> rows_;
};

}  // namespace tactix
