#include "tests/support-qt/QtWarnings.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <utility>

namespace tactix::tests {

namespace {

/// What the offscreen platform says about itself.
constexpr const char* PlatformTalk[] = {"This plugin does not support", "XDG_RUNTIME_DIR"};

QStringList& Expected() {
  static QStringList texts;
  return texts;
}

bool IsExpected(const QString& message) {
  for (const char* talk : PlatformTalk) {
    if (message.contains(QLatin1String(talk))) return true;
  }
  for (qsizetype i = 0; i < Expected().size(); ++i) {
    if (!message.contains(Expected()[i])) continue;
    Expected().removeAt(i);
    return true;
  }
  return false;
}

void Handle(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg || IsExpected(message)) return;
  ADD_FAILURE() << "Qt warns: " << message.toStdString();
}

class MissingWarnings final : public testing::EmptyTestEventListener {
  void OnTestEnd(const testing::TestInfo&) override {
    for (const QString& text : std::exchange(Expected(), {})) {
      ADD_FAILURE() << "No Qt warning came with: " << text.toStdString();
    }
  }
};

}  // namespace

void ExpectWarning(const QString& text) { Expected().append(text); }

void WatchWarnings() {
  qInstallMessageHandler(Handle);
  testing::UnitTest::GetInstance()->listeners().Append(new MissingWarnings);
}

}  // namespace tactix::tests
