#pragma once

#include <QWidget>
#include <concepts>
#include <memory>

#include "tactix-qt/ControlWidget.h"
#include "tactix/platform/Event.h"

namespace tactix::qt {

/// Base of the widget classes named after a control: makes a control of the class C and owns it.
///
/// Such a class has the control's properties, methods and events as Qt has them: a property X of the control is a
/// property X of the widget, with the slot `setX` to write it and, for C++, a pair of overloads `X` that read and write
/// it. A control's own Font, Enabled, Visible and ToolTip are others than the widget's, so their slots are
/// `setControlFont`, `setControlEnabled`, `setControlVisible` and `setControlToolTip`.
///
/// Nothing that fails leaves any of these as an exception, since Qt calls them, too, and does not survive one: what was
/// to be written stays as it is, what is read is the property's default, an empty value where a method returns one, and
/// the error comes out of unhandledError, once. What is no tactix::Error comes out as error 5 with its text. A host
/// that wants the exceptions, or numbers in the control's own types, calls control().
///
/// Each property that can change has a signal `XChanged` with its new value. It comes after whatever has changed it: a
/// call of the widget or of the control, a restored form, the user. After a call of the widget and where
/// propertyChanged comes, it comes at once, else when the event loop runs again; several changes until then are one.
/// Setting what a property has already emits nothing. What a host's own object changes by itself is seen with the next
/// change. A property that the controls save has a slot `resetX`, which sets what it has where a saved form lacks it.
///
/// A click on an advice button, FlashObject and BlinkTime wait in a nested event loop: a flash for 1.6 seconds,
/// BlinkTime as long as it is told. All goes on meanwhile: the user clicks, timers fire, slots are called, waits nest,
/// and the widget may be destroyed, so a caller checks that it still exists when the call comes back. Nothing waits in
/// threads: the widgets and all that they are given belong to the GUI thread.
///
/// While the control ends, in the widget's destructor, reads give an empty value, and nothing else happens.
///
/// Two such classes with members in common have a class between them and ControlWidget, the Base; where that one is a
/// WidgetOf itself, C is derived from its control class.
template <class C, class Base = ControlWidget>
class WidgetOf : public Base {
 public:
  /// The control, as long as the widget lives.
  C& control() { return static_cast<C&>(*this->Hosted()); }
  const C& control() const { return static_cast<const C&>(*this->Hosted()); }

 protected:
  using Core = C;
  using typename Base::Maker;

  explicit WidgetOf(QWidget* parent) requires std::constructible_from<C, Site&>
      : Base([](Site& site) -> std::unique_ptr<Control> { return std::make_unique<C>(site); }, parent) {}
  /// For a class in common, which does not know what to make.
  WidgetOf(Maker make, QWidget* parent) : Base(make, parent) {}

  // What properties, slots and signals consist of. Defined in Forwarding.h, which also converts between the types of
  // the control and those of Qt.

  /// Runs an action on the control, then emits the signals of the properties that it has changed. What fails goes to
  /// unhandledError. An action and the signals' slots may destroy the widget.
  template <class Action>
  void Run(Action&& action) const;
  /// Runs a method, or the writing half of a property.
  template <class K, class... Params, class... Args>
  void Call(void (K::*method)(Params...), const Args&... args) const;

  /// What an action on the control returns, as a T; the fallback where it fails.
  template <class T, class Action>
  T Read(Action&& action, T fallback = {}) const;
  /// What a method returns, or a property reads.
  template <class T, class K, class R, class... Params, class... Args>
  T Get(R (K::*method)(Params...) const, const Args&... args) const;
  /// For a property whose reading may fail, with its default, and for one whose reading has a side effect.
  template <class T, class K, class R>
  T GetOr(T fallback, R (K::*getter)() const) const;
  template <class T, class K, class R>
  T GetOr(T fallback, R (K::*getter)()) const;

  /// Runs an action on the control that changes nothing.
  template <class Action>
  void Look(Action&& action) const;

  /// Emits a signal of the derived class whenever the control raises an event.
  template <class Events, class... Args, class Self, class... Params>
  void Relay(Event<Args...> Events::*event, void (Self::*signal)(Params...));
};

}  // namespace tactix::qt
