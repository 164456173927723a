#pragma once

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "tactix-qt/ControlWidget.h"
#include "tests/support/Catalogue.h"

namespace tactix::tests {

/// An event of a control, ready to be raised with arguments that tell each other apart, and what its signal then
/// carries.
struct RelayedEvent {
  std::string name;
  std::function<void()> raise;
  QVariantList arguments;
};

/// The widget class of a control.
struct ControlClass {
  /// As in the catalogue.
  std::string name;
  qt::ControlWidget* (*make)(QWidget* parent);
  std::vector<RelayedEvent> (*events)(qt::ControlWidget& widget);
  /// In a form that gives it 200 by 100 pixels.
  QSize sizeInAForm = {200, 100};

  std::unique_ptr<qt::ControlWidget> Make() const { return std::unique_ptr<qt::ControlWidget>(make(nullptr)); }
  const CatalogueEntry& InTheCatalogue() const;
};
/// For messages of failed tests.
inline std::ostream& operator<<(std::ostream& out, const ControlClass& each) { return out << each.name; }

/// Those of all controls.
const std::vector<ControlClass>& ControlClasses();
const ControlClass& ControlClassOf(const std::string& name);

/// What a control's class has beyond ControlWidget.
std::vector<QMetaProperty> PropertiesOf(const QMetaObject& meta);
std::vector<QMetaMethod> MethodsOf(const QMetaObject& meta, QMetaMethod::MethodType type);

/// Whether a signal is what a property notifies with.
bool IsNotifySignal(const QMetaObject& meta, const QMetaMethod& signal);
/// Whether a signal says again, in a type of its own, what an event's signal says.
bool IsTypedSignal(const QMetaMethod& signal);

/// A value of a control's as a property or a slot of the given type takes and gives it.
QVariant AsQt(const Variant& value, QMetaType type);
/// The same as a text, for comparisons: enumerations as numbers, fonts by what a control knows of them.
std::string TextOf(const QVariant& value);

/// Calls a slot or an invokable by name and types, as "setCounterValue(int)". Writes back what the call has written to
/// the arguments.
QVariant Invoke(QObject& object, const std::string& signature, QVariantList& arguments);

}  // namespace tactix::tests
