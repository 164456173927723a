#include "trainer/screens/Demo.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tests/support-qt/TestClock.h"
#include "tests/trainer/screens/Pictures.h"
#include "trainer/screens/TableView.h"

namespace trainer::screens {
namespace {

struct Played {
  std::string text;
  bool picturesWritten = false;
  engine::Tally tally;
  int predictions = 0;

  [[nodiscard]] std::vector<std::string> Lines() const {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }
};

Played Play(const DemoOptions& options) {
  const tactix::tests::TestClock clock;
  const auto catalogue = std::make_shared<tactix::companion::IniStrategyCatalogue>(
      tactix::companion::DefaultStrategies(), tactix::companion::DefaultStrategiesName);
  TrainerWindow window(engine::Session({}, options.seed), catalogue);
  // Nobody looks.
  if (options.snapshotFolder.isEmpty()) window.Table().setUpdatesEnabled(false);
  std::ostringstream out;
  Played played;
  played.picturesWritten = Demo(window, options, out).Run();
  played.text = out.str();
  played.tally = window.CurrentSession().CurrentTally();
  played.predictions = window.CurrentSession().Predictions().Made();
  return played;
}

// hand, split hand, cards, hard, soft, up card, advised, chosen, verdict
const std::regex DecisionLine(
    "hand ([0-9]+)(?:\\.([1-4]))?: ((?:[A2-9TJQK][cdhs] ?)+), hard ([0-9]+)(?: soft ([0-9]+))?, against "
    "(ace|[2-9]|10), advised (Hit|Stand|Split|Double|Surrender), chosen (Hit|Stand|Split|Double|Surrender), "
    "(right|wrong)");
const std::regex ClosingLine("hands ([0-9]+), decisions ([0-9]+), correct ([0-9]+), ([0-9]+\\.[0-9]) %");

/// The totals of cards as a line has them: every ace as 1, and the soft total or 0.
std::pair<int, int> TotalsOf(const std::string& cards) {
  int hard = 0;
  bool hasAce = false;
  for (std::size_t i = 0; i < cards.size(); i += 3) {
    const std::size_t points = std::string("A23456789T").find(cards[i]);
    hard += points == std::string::npos ? 10 : static_cast<int>(points) + 1;
    hasAce = hasAce || cards[i] == 'A';
  }
  return {hard, hasAce && hard <= 11 ? hard + 10 : 0};
}

TEST(DemoTest, TheSameSeedPrintsTheSameLines) {
  const DemoOptions options{.hands = 4, .seed = 7, .snapshotFolder = {}};
  const Played first = Play(options);
  EXPECT_EQ(first.text, Play(options).text);
  EXPECT_NE(first.Lines()[0], Play({.hands = 1, .seed = 8, .snapshotFolder = {}}).Lines()[0]);
}

TEST(DemoTest, EveryDecisionHasALineAndTheClosingOneAgreesWithThem) {
  const Played played = Play({.hands = 20, .seed = 7, .snapshotFolder = {}});
  std::vector<std::string> lines = played.Lines();
  ASSERT_GE(lines.size(), 2U);
  std::smatch closing;
  ASSERT_TRUE(std::regex_match(lines.back(), closing, ClosingLine)) << lines.back();

  int right = 0;
  int splits = 0;
  int splitHands = 0;
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    std::smatch line;
    ASSERT_TRUE(std::regex_match(lines[i], line, DecisionLine)) << lines[i];
    EXPECT_LE(std::stoi(line[1]), 20) << lines[i];
    const auto [hard, soft] = TotalsOf(line[3]);
    EXPECT_EQ(std::stoi(line[4]), hard) << lines[i];
    EXPECT_EQ(line[5].matched ? std::stoi(line[5]) : 0, soft) << lines[i];
    EXPECT_EQ(line[9] == "right", line[7] == line[8]) << lines[i];
    if (line[9] == "right") ++right;
    if (line[8] == "Split") ++splits;
    if (line[2].matched) ++splitHands;
  }
  const int decisions = static_cast<int>(lines.size()) - 1;
  EXPECT_EQ(std::stoi(closing[1]), 20);
  EXPECT_EQ(std::stoi(closing[2]), decisions);
  EXPECT_EQ(std::stoi(closing[3]), right);
  EXPECT_NEAR(std::stod(closing[4]), 100.0 * right / decisions, 0.0501);
  EXPECT_EQ(played.tally.decisions, decisions);
  EXPECT_EQ(played.tally.correct, right);
  EXPECT_GT(right, decisions / 2) << "mostly right";
  EXPECT_LT(right, decisions) << "sometimes wrong";
  EXPECT_GT(splits, 0);
  EXPECT_GT(splitHands, 0);
  EXPECT_GT(played.predictions, 0);
}

TEST(DemoTest, WritesPicturesOfTheWindow) {
  const QTemporaryDir folder;
  const Played played = Play({.hands = 6, .seed = 7, .snapshotFolder = folder.path()});
  EXPECT_TRUE(played.picturesWritten);
  const QStringList names = QDir(folder.path()).entryList(QDir::Files, QDir::Name);
  EXPECT_EQ(names.join(QLatin1Char(' ')).toStdString(),
            "01-start.png 02-flash.png 03-advice.png 04-prediction.png 05-result.png 06-split.png "
            "07-split-result.png 08-wrong.png 09-end.png");
  QImage last;
  for (const QString& name : names) {
    SCOPED_TRACE(name.toStdString());
    const QImage picture(folder.filePath(name));
    EXPECT_EQ(picture.size(), QSize(1000, 900) * qApp->devicePixelRatio());
    EXPECT_GT(CountPixels(picture, QColor(0xFD, 0xFC, 0xF8)), 0) << "cards lie on the table";
    EXPECT_NE(picture, last) << "something has changed";
    last = picture;
  }
}

TEST(DemoTest, SaysWhenAPictureCannotBeWritten) {
  EXPECT_FALSE(Play({.hands = 1, .seed = 7, .snapshotFolder = QStringLiteral("/nowhere/at/all")}).picturesWritten);
}

}  // namespace
}  // namespace trainer::screens
