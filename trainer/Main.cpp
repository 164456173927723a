#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "trainer/engine/Session.h"
#include "trainer/screens/CommandLine.h"
#include "trainer/screens/Demo.h"
#include "trainer/screens/TrainerWindow.h"

namespace {

using trainer::screens::CommandLine;

constexpr int UsageExit = 2;
constexpr QSize FrameRoom(0, 40);

int Refuse(const char* reason) {
  std::cerr << "tactix-trainer: " << reason << "\nTry 'tactix-trainer --help'." << std::endl;
  return UsageExit;
}

QStringList Arguments(int argc, char** argv) {
  QStringList arguments;
  for (int i = 0; i < argc; ++i) arguments.append(QString::fromLocal8Bit(argv[i]));
  return arguments;
}

QtMessageHandler otherMessages = nullptr;

void LeaveOutPlatformTalk(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith(QLatin1String("This plugin does not support"))) otherMessages(type, context, message);
}

/// A demo runs without a display or a login session. Qt's remarks about that are left out.
void DoWithoutDisplay(const QString& runtimeFolder) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_RUNTIME_DIR", runtimeFolder.toLocal8Bit());
  otherMessages = qInstallMessageHandler(LeaveOutPlatformTalk);
}

int Run(const CommandLine& line) {
  const auto catalogue = std::make_shared<tactix::companion::IniStrategyCatalogue>(
      tactix::companion::DefaultStrategies(), tactix::companion::DefaultStrategiesName);
  trainer::screens::TrainerWindow window(trainer::engine::Session(line.rules, line.seed), catalogue);
  if (line.demo) return trainer::screens::Demo(window, *line.demo, std::cout).Run() ? EXIT_SUCCESS : EXIT_FAILURE;
  // On a small screen the window shrinks until it fits, frame included.
  window.resize(window.size().boundedTo(window.screen()->availableSize() - FrameRoom));
  window.show();
  window.Deal();
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) try {
  const CommandLine line = trainer::screens::ParseCommandLine(Arguments(argc, argv));
  if (!line.help.isEmpty()) {
    std::cout << line.help.toStdString();
    return EXIT_SUCCESS;
  }
  if (line.demo && !line.demo->snapshotFolder.isEmpty() && !QDir().mkpath(line.demo->snapshotFolder)) {
    return Refuse(qPrintable(QStringLiteral("cannot make the folder '%1'").arg(line.demo->snapshotFolder)));
  }
  const QTemporaryDir runtimeFolder;
  if (line.demo) DoWithoutDisplay(runtimeFolder.path());
  const QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tactix Trainer"));
  return Run(line);
} catch (const trainer::screens::UsageError& error) {
  return Refuse(error.what());
}
