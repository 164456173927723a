#pragma once

#include <QObject>
#include <QString>
#include <utility>
#include <vector>

#include "tactix-qt/ControlWidget.h"

namespace tactix::tests {

/// Hears what comes out of a widget's unhandledError as long as it lives.
class UnhandledErrors {
 public:
  explicit UnhandledErrors(qt::ControlWidget& widget)
      : connection_(
            QObject::connect(&widget, &qt::ControlWidget::unhandledError, [this](const QString& text, int code) {
              codes_.push_back(code);
              text_ = text;
            })) {}
  ~UnhandledErrors() { QObject::disconnect(connection_); }
  UnhandledErrors(const UnhandledErrors&) = delete;
  UnhandledErrors& operator=(const UnhandledErrors&) = delete;

  /// The codes since the last call.
  std::vector<int> Take() { return std::exchange(codes_, {}); }
  /// The text of the last error.
  const QString& Text() const { return text_; }

 private:
  QMetaObject::Connection connection_;
  std::vector<int> codes_;
  QString text_;
};

}  // namespace tactix::tests
