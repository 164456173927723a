#include "tactix/companion/PlayingTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/platform/ErrorCode.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::HandKind;
using companion::IniError;
using companion::IniFile;
using companion::PlayCode;
using companion::PlayingTable;

const std::string Stands = " = S S S S S S S S S S\n";

PlayingTable Read(const std::string& rows) {
  const IniFile file("[Table test]\n" + rows, "t.ini");
  return PlayingTable(file, file.Sections().front());
}

TEST(PlayCodeTest, IsWrittenAsItIsRead) {
  struct Row {
    const char* text;
    PlayCode code;
  };
  const Row rows[] = {
      {"H", PlayCode::Hit},
      {"S", PlayCode::Stand},
      {"D", PlayCode::DoubleOrHit},
      {"Ds", PlayCode::DoubleOrStand},
      {"P", PlayCode::Split},
      {"Ph", PlayCode::SplitOrHit},
      {"Pd", PlayCode::SplitOrDouble},
      {"Ps", PlayCode::SplitOrStand},
      {"R", PlayCode::SurrenderOrHit},
      {"Rs", PlayCode::SurrenderOrStand},
      {"Rp", PlayCode::SurrenderOrSplit},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(companion::TextOf(row.code), row.text);
    EXPECT_EQ(companion::ToPlayCode(row.text), row.code) << row.text;
  }
  EXPECT_EQ(companion::ToPlayCode("pD"), PlayCode::SplitOrDouble);
  for (const char* none : {"", "X", "Dh", "HH", "H "}) EXPECT_EQ(companion::ToPlayCode(none), std::nullopt) << none;
}

TEST(PlayingTableTest, FindsEverySquare) {
  const PlayingTable table = Read(
      "hard 4-15 = H S D Ds R Rs H S D Ds\n"
      "hard 16 = R R R R R R R R R Rs\n"
      "HARD  17-21" +
      Stands +
      "soft 12-20 = D D D D D D D D D H\n"
      "soft 21" +
      Stands +
      "pair 2-9 = P Ph Pd Ps Rp P P P P H\n"
      "pair 10-a = p p p p p p p p p rp\n");
  const PlayCode expected[] = {PlayCode::Hit,           PlayCode::Stand,          PlayCode::DoubleOrHit,
                               PlayCode::DoubleOrStand, PlayCode::SurrenderOrHit, PlayCode::SurrenderOrStand,
                               PlayCode::Hit,           PlayCode::Stand,          PlayCode::DoubleOrHit,
                               PlayCode::DoubleOrStand};
  for (const int total : {4, 5, 14, 15}) {
    for (int upCard = 2; upCard <= PlayingTable::Ace; ++upCard) {
      EXPECT_EQ(table.Find(HandKind::Hard, total, upCard), expected[upCard - 2]) << total << " against " << upCard;
    }
  }
  EXPECT_EQ(table.Find(HandKind::Hard, 16, 10), PlayCode::SurrenderOrHit);
  EXPECT_EQ(table.Find(HandKind::Hard, 16, PlayingTable::Ace), PlayCode::SurrenderOrStand);
  EXPECT_EQ(table.Find(HandKind::Hard, 21, 2), PlayCode::Stand);
  EXPECT_EQ(table.Find(HandKind::Soft, 12, 10), PlayCode::DoubleOrHit);
  EXPECT_EQ(table.Find(HandKind::Soft, 20, PlayingTable::Ace), PlayCode::Hit);
  EXPECT_EQ(table.Find(HandKind::Soft, 21, PlayingTable::Ace), PlayCode::Stand);
  EXPECT_EQ(table.Find(HandKind::Pair, 2, 3), PlayCode::SplitOrHit);
  EXPECT_EQ(table.Find(HandKind::Pair, 9, 6), PlayCode::SurrenderOrSplit);
  EXPECT_EQ(table.Find(HandKind::Pair, 10, 2), PlayCode::Split);
  EXPECT_EQ(table.Find(HandKind::Pair, PlayingTable::Ace, PlayingTable::Ace), PlayCode::SurrenderOrSplit);
}

TEST(PlayingTableTest, PlaysPairsThatAreNotGivenAsTheirTotals) {
  const PlayingTable table = Read(
      "hard 4 = D H H H H H H H H H\n"
      "hard 5-15 = H H H H H H H H H H\n"
      "hard 16 = H H H H H H H H R H\n"
      "hard 17-19" +
      Stands +
      "hard 20 = S S S S S S S S S Ds\n"
      "hard 21" +
      Stands +
      "soft 12 = H H H H D H H H H H\n"
      "soft 13-21" +
      Stands + "pair 8 = P P P P P P P P H P\n");
  EXPECT_EQ(table.Find(HandKind::Pair, 2, 2), PlayCode::DoubleOrHit);
  EXPECT_EQ(table.Find(HandKind::Pair, 10, PlayingTable::Ace), PlayCode::DoubleOrStand);
  EXPECT_EQ(table.Find(HandKind::Pair, PlayingTable::Ace, 6), PlayCode::DoubleOrHit);
  EXPECT_EQ(table.Find(HandKind::Pair, PlayingTable::Ace, 7), PlayCode::Hit);
  EXPECT_EQ(table.Find(HandKind::Pair, 8, 9), PlayCode::Split);
  EXPECT_EQ(table.Find(HandKind::Pair, 8, 10), PlayCode::Hit);
}

TEST(PlayingTableTest, RefusesHandsThatItDoesNotHave) {
  const PlayingTable table = Read("hard 4-21" + Stands + "soft 12-21" + Stands);
  struct Row {
    HandKind kind;
    int totalOrCard;
    int upCard;
    int code;
  };
  const Row rows[] = {
      {HandKind::Hard, 3, 2, 9},  {HandKind::Hard, 4, 2, 0},   {HandKind::Hard, 21, 11, 0}, {HandKind::Hard, 22, 2, 9},
      {HandKind::Soft, 11, 2, 9}, {HandKind::Soft, 12, 2, 0},  {HandKind::Soft, 21, 2, 0},  {HandKind::Soft, 22, 2, 9},
      {HandKind::Pair, 1, 2, 9},  {HandKind::Pair, 2, 2, 0},   {HandKind::Pair, 11, 2, 0},  {HandKind::Pair, 12, 2, 9},
      {HandKind::Hard, 10, 1, 9}, {HandKind::Hard, 10, 12, 9}, {HandKind::Hard, -1, 5, 9},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ErrorCodeOf([&] { return table.Find(row.kind, row.totalOrCard, row.upCard); }), row.code)
        << static_cast<int>(row.kind) << " " << row.totalOrCard << " against " << row.upCard;
  }
}

struct RefusedRow {
  const char* name;
  std::string rows;
  int line;
  std::string what;
};

class PlayingTableRefusalTest : public testing::TestWithParam<RefusedRow> {};

TEST_P(PlayingTableRefusalTest, NamesFileAndLine) {
  try {
    Read(GetParam().rows);
    FAIL() << "not refused";
  } catch (const IniError& error) {
    EXPECT_EQ(error.Description(), "t.ini:" + std::to_string(GetParam().line) + ": " + GetParam().what);
  }
}

std::string NoRow(const std::string& key) {
  return "expected 'hard 4' ... 'hard 21', 'soft 12' ... 'soft 21' or 'pair 2' ... 'pair A', found '" + key + "'";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PlayingTableRefusalTest,
    testing::Values(
        RefusedRow{"OtherKind", "firm 12" + Stands, 2, NoRow("firm 12")},
        RefusedRow{"KindAlone", "hard" + Stands, 2, NoRow("hard")},
        RefusedRow{"ThreeWords", "hard 12 13" + Stands, 2, NoRow("hard 12 13")},
        RefusedRow{"HardTooLow", "hard 3" + Stands, 2, NoRow("hard 3")},
        RefusedRow{"HardTooHigh", "hard 22" + Stands, 2, NoRow("hard 22")},
        RefusedRow{"SoftTooLow", "soft 11" + Stands, 2, NoRow("soft 11")},
        RefusedRow{"SoftTooHigh", "soft 22" + Stands, 2, NoRow("soft 22")},
        RefusedRow{"PairTooLow", "pair 1" + Stands, 2, NoRow("pair 1")},
        RefusedRow{"AcesAreA", "pair 11" + Stands, 2, NoRow("pair 11")},
        RefusedRow{"AceTotal", "hard A" + Stands, 2, NoRow("hard A")},
        RefusedRow{"NoNumber", "hard x" + Stands, 2, NoRow("hard x")},
        RefusedRow{"NumberAndMore", "hard 12x" + Stands, 2, NoRow("hard 12x")},
        RefusedRow{"HugeNumber", "hard 99999999999999999999" + Stands, 2, NoRow("hard 99999999999999999999")},
        RefusedRow{"RangeBackwards", "hard 14-12" + Stands, 2, NoRow("hard 14-12")},
        RefusedRow{"RangeOpen", "hard 12-" + Stands, 2, NoRow("hard 12-")},
        RefusedRow{"RangeTooHigh", "hard 12-22" + Stands, 2, NoRow("hard 12-22")},
        RefusedRow{"NinePlays", "hard 12 = S S S S S S S S S\n", 2,
                   "expected 10 plays, against 2 ... 10 and A, found 9"},
        RefusedRow{"ElevenPlays", "hard 12 = S S S S S S S S S S S\n", 2,
                   "expected 10 plays, against 2 ... 10 and A, found 11"},
        RefusedRow{"NoPlays", "hard 12 =\n", 2, "expected 10 plays, against 2 ... 10 and A, found 0"},
        RefusedRow{"UnknownPlay", "hard 12 = S S S S S S S S S X\n", 2, "'X' is no play"},
        RefusedRow{"HardSplit", "hard 12 = S S S S S S S S S Rp\n", 2, "'Rp' splits a hand that is no pair"},
        RefusedRow{"SoftSplit", "soft 12 = S S S S S S S S S P\n", 2, "'P' splits a hand that is no pair"},
        RefusedRow{"RowTwice", "hard 12" + Stands + "hard 11-14" + Stands, 3, "'hard 12' was given in line 2"},
        RefusedRow{"PairTwice", "pair 10-A" + Stands + "pair A" + Stands, 3, "'pair A' was given in line 2"},
        RefusedRow{"HardMissing", "hard 4-15" + Stands + "hard 17-21" + Stands + "soft 12-21" + Stands, 1,
                   "'Table test' has no row 'hard 16'"},
        RefusedRow{"SoftMissing", "hard 4-21" + Stands + "soft 12-20" + Stands, 1, "'Table test' has no row 'soft 21'"},
        RefusedRow{"Empty", "", 1, "'Table test' has no row 'hard 4'"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
