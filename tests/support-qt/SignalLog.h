#pragma once

#include <QMetaMethod>
#include <QSignalSpy>
#include <memory>
#include <string>
#include <vector>

#include "tests/support-qt/ControlClasses.h"

namespace tactix::tests {

/// Hears all signals that a control's widget has, propertyChanged and unhandledError included, as long as it lives.
class SignalLog {
 public:
  explicit SignalLog(qt::ControlWidget& widget) {
    const QMetaObject& meta = *widget.metaObject();
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
      if (meta.method(i).methodType() != QMetaMethod::Signal) continue;
      spies_.push_back({meta.method(i).name().toStdString(), std::make_unique<QSignalSpy>(&widget, meta.method(i))});
    }
  }

  /// What came since the last call, as "Name(arguments)", in the order in which the class declares its signals.
  std::vector<std::string> Take() {
    std::vector<std::string> heard;
    for (Spy& spy : spies_) {
      for (const QList<QVariant>& arguments : *spy.spy) heard.push_back(spy.name + TextOfAll(arguments));
      spy.spy->clear();
    }
    return heard;
  }

  static std::string TextOfAll(const QVariantList& arguments) {
    std::string text;
    for (const QVariant& argument : arguments) text += (text.empty() ? "" : ", ") + TextOf(argument);
    return "(" + text + ")";
  }

 private:
  struct Spy {
    std::string name;
    std::unique_ptr<QSignalSpy> spy;
  };
  std::vector<Spy> spies_;
};

}  // namespace tactix::tests
