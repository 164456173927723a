#include "trainer/screens/CommandLine.h"

#include <gtest/gtest.h>

namespace trainer::screens {
namespace {

CommandLine Parse(const QString& arguments) {
  return ParseCommandLine(QStringList{QStringLiteral("tactix-trainer")} +
                          arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

TEST(CommandLineTest, WithoutArgumentsPlaysTheUsualRulesWithARandomSeed) {
  const CommandLine line = Parse({});
  EXPECT_EQ(line.rules, engine::Rules{});
  EXPECT_FALSE(line.demo);
  EXPECT_TRUE(line.help.isEmpty());
  EXPECT_NE(line.seed, Parse({}).seed);
}

TEST(CommandLineTest, ReadsEveryOption) {
  const CommandLine line = Parse(QStringLiteral("--demo 20 --seed 7 --snapshot pictures --decks 2 --h17"));
  ASSERT_TRUE(line.demo);
  EXPECT_EQ(line.demo->hands, 20);
  EXPECT_EQ(line.demo->seed, 7U);
  EXPECT_EQ(line.demo->snapshotFolder, QStringLiteral("pictures"));
  EXPECT_EQ(line.seed, 7U);
  EXPECT_EQ(line.rules, (engine::Rules{.decks = 2, .dealerHitsSoft17 = true}));
}

TEST(CommandLineTest, HelpNamesEveryOption) {
  for (const char* argument : {"--help", "-h", "--help --demo 20"}) {
    const QString help = Parse(QLatin1String(argument)).help;
    for (const char* option : {"--help", "--demo", "--seed", "--snapshot", "--decks", "--h17"}) {
      EXPECT_TRUE(help.contains(QLatin1String(option))) << argument << ": " << option;
    }
  }
}

TEST(CommandLineTest, SaysWhatIsWrong) {
  struct Row {
    const char* arguments;
    const char* message;
  };
  const Row rows[] = {
      {"--demo", "Missing value after '--demo'."},
      {"--demo 0", "--demo takes a whole number from 1 to 100000, not '0'"},
      {"--demo 100001", "--demo takes a whole number from 1 to 100000, not '100001'"},
      {"--demo twenty", "--demo takes a whole number from 1 to 100000, not 'twenty'"},
      {"--demo 2.5", "--demo takes a whole number from 1 to 100000, not '2.5'"},
      {"--seed -1", "--seed takes a whole number from 0 on, not '-1'"},
      {"--seed 18446744073709551616", "--seed takes a whole number from 0 on, not '18446744073709551616'"},
      {"--decks 0", "--decks takes a whole number from 1 to 8, not '0'"},
      {"--decks 9", "--decks takes a whole number from 1 to 8, not '9'"},
      {"--snapshot pictures", "--snapshot goes with --demo"},
      {"--demo 2 --snapshot=", "--snapshot takes the name of a folder"},
      {"--demo 2 now", "unexpected argument 'now'"},
      {"--nonsense", "Unknown option 'nonsense'."},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.arguments);
    try {
      (void)Parse(QLatin1String(row.arguments));
      ADD_FAILURE() << "was accepted";
    } catch (const UsageError& error) {
      EXPECT_STREQ(error.what(), row.message);
    }
  }
}

TEST(CommandLineTest, TakesTheBoundsThemselves) {
  EXPECT_EQ(Parse(QStringLiteral("--demo 1")).demo->hands, 1);
  EXPECT_EQ(Parse(QStringLiteral("--demo 100000")).demo->hands, 100000);
  EXPECT_EQ(Parse(QStringLiteral("--decks 1")).rules.decks, 1);
  EXPECT_EQ(Parse(QStringLiteral("--decks 8")).rules.decks, 8);
  EXPECT_EQ(Parse(QStringLiteral("--seed 18446744073709551615")).seed, UINT64_MAX);
}

}  // namespace
}  // namespace trainer::screens
