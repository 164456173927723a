#include "examples/gallery/SignalLog.h"

#include <QMetaMethod>
#include <QStringList>

#include "examples/gallery/ValueText.h"

namespace tactix::gallery {

SignalLog::SignalLog(qt::ControlWidget& widget, std::function<void(const QString& line)> write)
    : write_(std::move(write)) {
  const QMetaMethod writing = metaObject()->method(metaObject()->indexOfSlot("Write()"));
  const QMetaObject& meta = *widget.metaObject();
  for (int i = QWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
    const QMetaMethod signal = meta.method(i);
    if (signal.methodType() != QMetaMethod::Signal) continue;
    // The spy is connected first, so it has the arguments when the slot is called.
    heard_.push_back({QString::fromLatin1(signal.name()), std::make_unique<QSignalSpy>(&widget, signal)});
    connect(&widget, signal, this, writing);
  }
}

SignalLog::~SignalLog() = default;

void SignalLog::Write() {
  for (Heard& each : heard_) {
    while (!each.spy->isEmpty()) {
      QStringList arguments;
      for (const QVariant& argument : each.spy->takeFirst()) arguments << TextOf(argument);
      write_(each.name + QLatin1Char('(') + arguments.join(QStringLiteral(", ")) + QLatin1Char(')'));
    }
  }
  if (afterEach_) afterEach_();
}

}  // namespace tactix::gallery
