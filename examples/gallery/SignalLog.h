#pragma once

#include <QObject>
#include <QSignalSpy>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "tactix-qt/ControlWidget.h"

namespace tactix::gallery {

/// Writes each signal of a control with its arguments, when it comes: "CounterValueHasChanged(7)".
class SignalLog : public QObject {
  Q_OBJECT

 public:
  SignalLog(qt::ControlWidget& widget, std::function<void(const QString& line)> write);
  ~SignalLog() override;

  void AfterEach(std::function<void()> action) { afterEach_ = std::move(action); }

 private Q_SLOTS:
  void Write();

 private:
  struct Heard {
    QString name;
    std::unique_ptr<QSignalSpy> spy;
  };

  std::vector<Heard> heard_;
  std::function<void(const QString& line)> write_;
  std::function<void()> afterEach_;
};

}  // namespace tactix::gallery
