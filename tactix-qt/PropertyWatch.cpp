#include "tactix-qt/PropertyWatch.h"

#include <QByteArray>
#include <utility>

#include "tactix-qt/ControlWidget.h"

namespace tactix::qt {

void PropertyWatch::Add(const QMetaMethod& signal) {
  const QMetaObject& meta = *widget_.metaObject();
  for (int index = ControlWidget::staticMetaObject.propertyOffset(); index < meta.propertyCount(); ++index) {
    if (meta.property(index).notifySignalIndex() != signal.methodIndex() || watched_.count(index) != 0) continue;
    const Weak<PropertyWatch> self(this);
    QVariant value = Read(index);
    if (!self) return;
    watched_.emplace(index, std::move(value));
  }
}

void PropertyWatch::ForgetTheUnheard() {
  if (!std::exchange(mayBeUnheard_, false)) return;
  const QMetaObject& meta = *widget_.metaObject();
  std::erase_if(watched_,
                [&](const auto& each) { return !widget_.isSignalConnected(meta.property(each.first).notifySignal()); });
}

void PropertyWatch::Compare() {
  if (reading_) return;
  ForgetTheUnheard();
  const Weak<PropertyWatch> self(this);
  // Looked up anew after each step, since handlers connect and disconnect.
  for (auto at = watched_.begin(); at != watched_.end();) {
    const int index = at->first;
    const QVariant value = Read(index);
    if (!self) return;
    at = watched_.find(index);
    if (at != watched_.end() && at->second != value) {
      at->second = value;
      Emit(index, value);
      if (!self) return;
    }
    at = watched_.upper_bound(index);
  }
}

void PropertyWatch::CompareLater() {
  ForgetTheUnheard();
  if (watched_.empty() || reading_ || comparisonIsPosted_) return;
  comparisonIsPosted_ = true;
  const auto compare = [this] {
    comparisonIsPosted_ = false;
    Compare();
  };
  QMetaObject::invokeMethod(&widget_, compare, Qt::QueuedConnection);
}

QVariant PropertyWatch::Read(int index) {
  const QMetaProperty property = widget_.metaObject()->property(index);
  // Where the first read creates something, that is left to the host. Until then there is nothing.
  if (widget_.ReadingCreates(property.name())) return QVariant(property.metaType());
  const Weak<PropertyWatch> self(this);
  reading_ = true;
  QVariant value = property.read(&widget_);
  if (self) reading_ = false;
  return value;
}

void PropertyWatch::Emit(int index, const QVariant& value) {
  const QMetaMethod signal = widget_.metaObject()->property(index).notifySignal();
  const QByteArray type = signal.parameterTypeName(0);
  signal.invoke(&widget_, Qt::DirectConnection, QGenericArgument(type.constData(), value.constData()));
}

}  // namespace tactix::qt
