#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QRandomGenerator>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <optional>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/strategy/StrategyListData.h"
#include "trainer/engine/Session.h"
#include "trainer/screens/Demo.h"
#include "trainer/screens/TrainerWindow.h"

namespace {

constexpr int UsageError = 2;

struct Options {
  trainer::engine::Rules rules;
  std::uint64_t seed = 0;
  std::optional<trainer::screens::DemoOptions> demo;
};

/// Says what is wrong with the command line and ends the program.
[[noreturn]] void Refuse(const QString& message) {
  std::cerr << "tactix-trainer: " << message.toStdString() << std::endl;
  std::exit(UsageError);
}

int WholeNumber(const QString& text, const char* option, int lowest, int highest) {
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (!isNumber || number < lowest || number > highest) {
    Refuse(QStringLiteral("--%1 takes a whole number from %2 to %3, not '%4'")
               .arg(QLatin1String(option))
               .arg(lowest)
               .arg(highest)
               .arg(text));
  }
  return number;
}

Options Parse(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("A blackjack trainer."));
  parser.addHelpOption();
  const QCommandLineOption demo(QStringLiteral("demo"),
                                QStringLiteral("Play <hands> hands by itself, without a display."),
                                QStringLiteral("hands"));
  const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Deal the cards of seed <number>."),
                                QStringLiteral("number"));
  const QCommandLineOption snapshot(QStringLiteral("snapshot"),
                                    QStringLiteral("With --demo: write pictures of the window to <folder>."),
                                    QStringLiteral("folder"));
  const QCommandLineOption decks(QStringLiteral("decks"), QStringLiteral("Play with 1 to 8 decks (6)."),
                                 QStringLiteral("number"));
  const QCommandLineOption hitsSoft17(QStringLiteral("h17"), QStringLiteral("The dealer hits soft 17."));
  parser.addOptions({demo, seed, snapshot, decks, hitsSoft17});
  if (!parser.parse(arguments)) Refuse(parser.errorText());
  if (parser.isSet(QStringLiteral("help"))) parser.showHelp(0);
  if (!parser.positionalArguments().isEmpty()) {
    Refuse(QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().constFirst()));
  }
  if (parser.isSet(snapshot) && !parser.isSet(demo)) Refuse(QStringLiteral("--snapshot goes with --demo"));

  Options options;
  options.seed = QRandomGenerator::global()->generate64();
  if (parser.isSet(seed)) {
    bool isNumber = false;
    options.seed = parser.value(seed).toULongLong(&isNumber);
    if (!isNumber) Refuse(QStringLiteral("--seed takes a whole number, not '%1'").arg(parser.value(seed)));
  }
  if (parser.isSet(decks)) options.rules.decks = WholeNumber(parser.value(decks), "decks", 1, 8);
  options.rules.dealerHitsSoft17 = parser.isSet(hitsSoft17);
  if (parser.isSet(demo)) {
    options.demo = trainer::screens::DemoOptions{WholeNumber(parser.value(demo), "demo", 1, 100000), options.seed,
                                                 parser.value(snapshot)};
    if (parser.isSet(snapshot) && !QDir().mkpath(parser.value(snapshot))) {
      Refuse(QStringLiteral("cannot make the folder '%1'").arg(parser.value(snapshot)));
    }
  }
  return options;
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    // The demo needs no display, and must say so before Qt looks for one.
    if (std::strncmp(argv[i], "--demo", 6) == 0) qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Tactix Trainer"));
  const Options options = Parse(QApplication::arguments());

  const auto catalogue = std::make_shared<tactix::companion::IniStrategyCatalogue>(
      tactix::companion::DefaultStrategies(), tactix::companion::DefaultStrategiesName);
  tactix::StrategyListData::UseCatalogue(catalogue);
  trainer::screens::TrainerWindow window(trainer::engine::Session(options.rules, options.seed), catalogue);
  if (options.demo) {
    trainer::screens::Demo demo(window, *options.demo, std::cout);
    return demo.Run() ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  window.show();
  window.Deal();
  return QApplication::exec();
}
