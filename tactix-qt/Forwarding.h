#pragma once

// For the sources of the classes named after the controls; hosts need only WidgetOf.h.

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QString>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/platform/UserAction.h"
#include "tactix/platform/Variant.h"

namespace tactix::qt {

/// A value of Qt's as a control's parameter of the type Param takes it. Fails with 6 for a number beyond 16 bits where
/// the control has no more.
template <class Param, class Value>
decltype(auto) ToControl(const Value& value) {
  using Taken = std::remove_cvref_t<Param>;
  if constexpr (std::is_same_v<Taken, std::int16_t>) {
    return Variant(std::int32_t{value}).ToInteger();
  } else if constexpr (std::is_same_v<Value, QString> || std::is_same_v<Value, QFont>) {
    return FromQt(value);
  } else if constexpr (std::is_enum_v<Value>) {
    return static_cast<std::int32_t>(value);
  } else {
    return (value);
  }
}

/// A control's value as Qt's.
template <class T, class Value>
T FromControl(const Value& value) {
  if constexpr (std::is_same_v<T, QColor>) {
    return OwnColor(value);
  } else if constexpr (std::is_same_v<T, QString> || std::is_same_v<T, QFont>) {
    return ToQt(value);
  } else if constexpr (std::is_enum_v<T>) {
    return static_cast<T>(value.Value());
  } else if constexpr (std::is_same_v<Value, Variant>) {
    return value.ToLong();
  } else {
    return value;
  }
}

template <class C, class Base>
template <class Action>
void WidgetOf<C, Base>::Run(Action&& action) const {
  const QPointer<const QWidget> self(this);
  Look(action);
  if (self) this->CompareProperties();
}

template <class C, class Base>
template <class Action>
void WidgetOf<C, Base>::Look(Action&& action) const {
  auto* const control = static_cast<C*>(this->Hosted());
  if (control) RunUserAction(this->ItsSite(), [&] { action(*control); });
}

template <class C, class Base>
template <class K, class... Params, class... Args>
void WidgetOf<C, Base>::Call(void (K::*method)(Params...), const Args&... args) const {
  Run([&](C& control) { (control.*method)(ToControl<Params>(args)...); });
}

template <class C, class Base>
template <class T, class Action>
T WidgetOf<C, Base>::Read(Action&& action, T fallback) const {
  T result = std::move(fallback);
  Look([&](C& control) { result = FromControl<T>(action(control)); });
  return result;
}

template <class C, class Base>
template <class T, class K, class R, class... Params, class... Args>
T WidgetOf<C, Base>::Get(R (K::*method)(Params...) const, const Args&... args) const {
  return Read<T>([&](C& control) -> decltype(auto) { return (control.*method)(ToControl<Params>(args)...); });
}

template <class C, class Base>
template <class T, class K, class R>
T WidgetOf<C, Base>::GetOr(T fallback, R (K::*getter)() const) const {
  return Read<T>([&](C& control) -> decltype(auto) { return (control.*getter)(); }, std::move(fallback));
}

template <class C, class Base>
template <class T, class K, class R>
T WidgetOf<C, Base>::GetOr(T fallback, R (K::*getter)()) const {
  return Read<T>([&](C& control) -> decltype(auto) { return (control.*getter)(); }, std::move(fallback));
}

template <class C, class Base>
template <class Events, class... Args, class Self, class... Params>
void WidgetOf<C, Base>::Relay(Event<Args...> Events::*event, void (Self::*signal)(Params...)) {
  (control().Events.*event).Connect([self = static_cast<Self*>(this), signal](Args... args) {
    Q_EMIT(self->*signal)(FromControl<std::remove_cvref_t<Params>>(args)...);
  });
}

}  // namespace tactix::qt
