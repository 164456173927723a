#include "trainer/screens/CommandLine.h"

#include <QCommandLineParser>
#include <QRandomGenerator>

#include "trainer/engine/Shoe.h"

namespace trainer::screens {

namespace {

using engine::Shoe;

constexpr int MostDemoHands = 100000;

int WholeNumber(const QCommandLineParser& parser, const QCommandLineOption& option, int lowest, int highest) {
  const QString text = parser.value(option);
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  if (!isNumber || number < lowest || number > highest) {
    throw UsageError(QStringLiteral("--%1 takes a whole number from %2 to %3, not '%4'")
                         .arg(option.names().constFirst())
                         .arg(lowest)
                         .arg(highest)
                         .arg(text));
  }
  return number;
}

std::uint64_t SeedIn(const QString& text) {
  bool isNumber = false;
  const std::uint64_t seed = text.toULongLong(&isNumber);
  if (!isNumber) throw UsageError(QStringLiteral("--seed takes a whole number from 0 on, not '%1'").arg(text));
  return seed;
}

}  // namespace

CommandLine ParseCommandLine(const QStringList& arguments) {
  const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
  const QCommandLineOption demo(QStringLiteral("demo"),
                                QStringLiteral("Play this many hands without a player and without a display."),
                                QStringLiteral("hands"));
  const QCommandLineOption seed(QStringLiteral("seed"), QStringLiteral("Deal the cards that belong to this number."),
                                QStringLiteral("number"));
  const QCommandLineOption snapshot(QStringLiteral("snapshot"),
                                    QStringLiteral("With --demo: write pictures of the window into this folder."),
                                    QStringLiteral("folder"));
  const QCommandLineOption decks(QStringLiteral("decks"), QStringLiteral("Play with 1 to 8 decks; 6 unless given."),
                                 QStringLiteral("number"));
  const QCommandLineOption hitsSoft17(QStringLiteral("h17"), QStringLiteral("Let the dealer hit soft 17."));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("A blackjack trainer: play hands, and be told what was right."));
  parser.addOptions({help, demo, seed, snapshot, decks, hitsSoft17});
  if (!parser.parse(arguments)) throw UsageError(parser.errorText());

  CommandLine line;
  if (parser.isSet(help)) {
    line.help = parser.helpText();
    return line;
  }
  if (!parser.positionalArguments().isEmpty()) {
    throw UsageError(QStringLiteral("unexpected argument '%1'").arg(parser.positionalArguments().constFirst()));
  }
  line.seed = parser.isSet(seed) ? SeedIn(parser.value(seed)) : QRandomGenerator::global()->generate64();
  if (parser.isSet(decks)) line.rules.decks = WholeNumber(parser, decks, Shoe::MinimumDecks, Shoe::MaximumDecks);
  line.rules.dealerHitsSoft17 = parser.isSet(hitsSoft17);
  if (parser.isSet(demo)) {
    line.demo = DemoOptions{WholeNumber(parser, demo, 1, MostDemoHands), line.seed, parser.value(snapshot)};
  }
  if (parser.isSet(snapshot)) {
    if (!line.demo) throw UsageError(QStringLiteral("--snapshot goes with --demo"));
    if (parser.value(snapshot).isEmpty()) throw UsageError(QStringLiteral("--snapshot takes the name of a folder"));
  }
  return line;
}

}  // namespace trainer::screens
