#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tactix/strategy/StrategyListData.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using companion::HandKind;
using companion::IniStrategyCatalogue;
using companion::PlayCode;
using companion::PlayingTable;

constexpr HandKind Hard = HandKind::Hard;
constexpr HandKind Soft = HandKind::Soft;
constexpr HandKind Pair = HandKind::Pair;
constexpr int Ace = PlayingTable::Ace;

IniStrategyCatalogue Default() { return {companion::DefaultStrategies(), companion::DefaultStrategiesName}; }

TEST(DefaultStrategiesTest, DescribesTheStrategies) {
  struct Row {
    std::int16_t number;
    const char* note;
    const char* caption;
    const char* flags;
    const char* plays;
  };
  const Row rows[] = {
      {-1, "", "Empty Seat", "False False", ""},
      {0, "Four to eight decks; the dealer stands on soft 17", "Basic 4-8 Decks S17", "False True", "basic-multi-s17"},
      {1, "Four to eight decks; the dealer hits soft 17", "Basic 4-8 Decks H17", "False True", "basic-multi-h17"},
      {2, "One deck; the dealer hits soft 17", "Basic 1 Deck H17", "False True", "basic-single-h17"},
      {3, "One deck; the dealer stands on soft 17", "Basic 1 Deck S17", "False True", "basic-single-s17"},
      {4, "Draws to 17 as the dealer does", "Mimic the Dealer", "True True", "mimic-dealer"},
      {5, "Stands on every hand that a card could bust", "Never Bust", "True True", "never-bust"},
      {6, "Basic strategy with departures by the true count", "Index Plays by Count", "False False", ""},
      {7, "One deck; plays by the cards of the hand and not by their total", "Composition-Dependent 1 Deck",
       "False False", ""},
  };
  IniStrategyCatalogue catalogue = Default();
  EXPECT_EQ(catalogue.GetStrategyRange().HighestPlayingStrategy, 7);
  for (const Row& row : rows) {
    std::int16_t number = row.number;
    const std::string description = catalogue.DescribeStrategy(number);
    const std::size_t first = description.find(',');
    const std::size_t second = description.find(',', first + 1);
    ASSERT_NE(second, std::string::npos) << row.number;
    const std::string flags = description.substr(second + 1);
    const auto text = [&](const std::string& field) {
      return flags.starts_with("True") ? UnshiftStrategyText(field) : field;
    };
    EXPECT_EQ(text(description.substr(0, first)), row.note);
    EXPECT_EQ(text(description.substr(first + 1, second - first - 1)), row.caption);
    EXPECT_EQ(flags, row.flags) << row.caption;
    EXPECT_EQ(catalogue.PlaysOf(row.number), row.plays);
  }
}

TEST(DefaultStrategiesTest, StoresTheShiftedOnesShifted) {
  IniStrategyCatalogue catalogue = Default();
  std::int16_t number = 5;
  EXPECT_EQ(catalogue.DescribeStrategy(number).substr(0, 10), "]~kxn}*yx*");
}

/// A row of a printed chart, a letter for each up card 2 ... 10 and A: H hit, S stand, D double, P split, R surrender.
struct PrintedRow {
  HandKind kind;
  int first;
  int last;
  std::string_view plays;                        ///< every play allowed
  std::optional<std::string_view> plain = {};    ///< no surrender and no double after split, where it differs
  std::optional<std::string_view> drawing = {};  ///< after the first two cards: no double and no surrender either
};

struct PrintedChart {
  const char* name;
  const char* table;
  std::vector<PrintedRow> rows;
};

enum class Allowed { Everything, NoSurrenderNoDoubleAfterSplit, HitAndStandOnly };

char PlayOf(PlayCode code, Allowed allowed) {
  const bool everything = allowed == Allowed::Everything;
  const bool doubles = allowed != Allowed::HitAndStandOnly;
  switch (code) {
    case PlayCode::Hit:
      return 'H';
    case PlayCode::Stand:
      return 'S';
    case PlayCode::DoubleOrHit:
      return doubles ? 'D' : 'H';
    case PlayCode::DoubleOrStand:
      return doubles ? 'D' : 'S';
    case PlayCode::Split:
      return 'P';
    case PlayCode::SplitOrHit:
      return everything ? 'P' : 'H';
    case PlayCode::SplitOrDouble:
      return everything ? 'P' : 'D';
    case PlayCode::SplitOrStand:
      return everything ? 'P' : 'S';
    case PlayCode::SurrenderOrHit:
      return everything ? 'R' : 'H';
    case PlayCode::SurrenderOrStand:
      return everything ? 'R' : 'S';
    case PlayCode::SurrenderOrSplit:
      return everything ? 'R' : 'P';
  }
  return '?';
}

std::string PlaysOf(const PlayingTable& table, HandKind kind, int totalOrCard, Allowed allowed) {
  std::string plays;
  for (int upCard = 2; upCard <= Ace; ++upCard) plays += PlayOf(table.Find(kind, totalOrCard, upCard), allowed);
  return plays;
}

class DefaultTableTest : public testing::TestWithParam<PrintedChart> {};

TEST_P(DefaultTableTest, IsThePrintedChart) {
  const IniStrategyCatalogue catalogue = Default();
  const PlayingTable* const table = catalogue.FindTable(GetParam().table);
  ASSERT_NE(table, nullptr);
  int rows = 0;
  for (const PrintedRow& row : GetParam().rows) {
    for (int i = row.first; i <= row.last; ++i, ++rows) {
      const std::string name = std::to_string(static_cast<int>(row.kind)) + " " + std::to_string(i);
      EXPECT_EQ(PlaysOf(*table, row.kind, i, Allowed::Everything), row.plays) << name;
      EXPECT_EQ(PlaysOf(*table, row.kind, i, Allowed::NoSurrenderNoDoubleAfterSplit), row.plain.value_or(row.plays))
          << name;
      if (row.kind == Pair) continue;
      EXPECT_EQ(PlaysOf(*table, row.kind, i, Allowed::HitAndStandOnly),
                row.drawing.value_or(row.plain.value_or(row.plays)))
          << name;
    }
  }
  EXPECT_EQ(rows, 18 + 10 + 10) << "not the whole table";
}

// clang-format off
const PrintedChart Charts[] = {
    {"FourToEightDecksS17", "basic-multi-s17", {
        {Hard, 4, 8,    "HHHHHHHHHH"},
        {Hard, 9, 9,    "HDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 10, 10,  "DDDDDDDDHH", {}, "HHHHHHHHHH"},
        {Hard, 11, 11,  "DDDDDDDDDH", {}, "HHHHHHHHHH"},
        {Hard, 12, 12,  "HHSSSHHHHH"},
        {Hard, 13, 14,  "SSSSSHHHHH"},
        {Hard, 15, 15,  "SSSSSHHHRH", "SSSSSHHHHH"},
        {Hard, 16, 16,  "SSSSSHHRRR", "SSSSSHHHHH"},
        {Hard, 17, 21,  "SSSSSSSSSS"},
        {Soft, 12, 12,  "HHHHDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 13, 14,  "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 15, 16,  "HHDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 17, 17,  "HDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 18, 18,  "SDDDDSSHHH", {}, "SSSSSSSHHH"},
        {Soft, 19, 21,  "SSSSSSSSSS"},
        {Pair, 2, 3,    "PPPPPPHHHH", "HHPPPPHHHH"},
        {Pair, 4, 4,    "HHHPPHHHHH", "HHHHHHHHHH"},
        {Pair, 5, 5,    "DDDDDDDDHH"},
        {Pair, 6, 6,    "PPPPPHHHHH", "HPPPPHHHHH"},
        {Pair, 7, 7,    "PPPPPPHHHH"},
        {Pair, 8, 8,    "PPPPPPPPPP"},
        {Pair, 9, 9,    "PPPPPSPPSS"},
        {Pair, 10, 10,  "SSSSSSSSSS"},
        {Pair, Ace, Ace, "PPPPPPPPPP"},
    }},
    {"FourToEightDecksH17", "basic-multi-h17", {
        {Hard, 4, 8,    "HHHHHHHHHH"},
        {Hard, 9, 9,    "HDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 10, 10,  "DDDDDDDDHH", {}, "HHHHHHHHHH"},
        {Hard, 11, 11,  "DDDDDDDDDD", {}, "HHHHHHHHHH"},
        {Hard, 12, 12,  "HHSSSHHHHH"},
        {Hard, 13, 14,  "SSSSSHHHHH"},
        {Hard, 15, 15,  "SSSSSHHHRR", "SSSSSHHHHH"},
        {Hard, 16, 16,  "SSSSSHHRRR", "SSSSSHHHHH"},
        {Hard, 17, 17,  "SSSSSSSSSR", "SSSSSSSSSS"},
        {Hard, 18, 21,  "SSSSSSSSSS"},
        {Soft, 12, 12,  "HHHHDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 13, 14,  "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 15, 16,  "HHDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 17, 17,  "HDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 18, 18,  "DDDDDSSHHH", {}, "SSSSSSSHHH"},
        {Soft, 19, 19,  "SSSSDSSSSS", {}, "SSSSSSSSSS"},
        {Soft, 20, 21,  "SSSSSSSSSS"},
        {Pair, 2, 3,    "PPPPPPHHHH", "HHPPPPHHHH"},
        {Pair, 4, 4,    "HHHPPHHHHH", "HHHHHHHHHH"},
        {Pair, 5, 5,    "DDDDDDDDHH"},
        {Pair, 6, 6,    "PPPPPHHHHH", "HPPPPHHHHH"},
        {Pair, 7, 7,    "PPPPPPHHHH"},
        {Pair, 8, 8,    "PPPPPPPPPR", "PPPPPPPPPP"},
        {Pair, 9, 9,    "PPPPPSPPSS"},
        {Pair, 10, 10,  "SSSSSSSSSS"},
        {Pair, Ace, Ace, "PPPPPPPPPP"},
    }},
    {"OneDeckH17", "basic-single-h17", {
        {Hard, 4, 7,    "HHHHHHHHHH"},
        {Hard, 8, 8,    "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 9, 9,    "DDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 10, 10,  "DDDDDDDDHH", {}, "HHHHHHHHHH"},
        {Hard, 11, 11,  "DDDDDDDDDD", {}, "HHHHHHHHHH"},
        {Hard, 12, 12,  "HHSSSHHHHH"},
        {Hard, 13, 14,  "SSSSSHHHHH"},
        {Hard, 15, 15,  "SSSSSHHHHR", "SSSSSHHHHH"},
        {Hard, 16, 16,  "SSSSSHHHRR", "SSSSSHHHHH"},
        {Hard, 17, 17,  "SSSSSSSSSR", "SSSSSSSSSS"},
        {Hard, 18, 21,  "SSSSSSSSSS"},
        {Soft, 12, 12,  "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 13, 16,  "HHDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 17, 17,  "DDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 18, 18,  "SDDDDSSHHH", {}, "SSSSSSSHHH"},
        {Soft, 19, 19,  "SSSSDSSSSS", {}, "SSSSSSSSSS"},
        {Soft, 20, 21,  "SSSSSSSSSS"},
        {Pair, 2, 2,    "PPPPPPHHHH", "HPPPPPHHHH"},
        {Pair, 3, 3,    "PPPPPPPHHH", "HHPPPPHHHH"},
        {Pair, 4, 4,    "HHPPPHHHHH", "HHHDDHHHHH"},
        {Pair, 5, 5,    "DDDDDDDDHH"},
        {Pair, 6, 6,    "PPPPPPHHHH", "PPPPPHHHHH"},
        {Pair, 7, 7,    "PPPPPPPHRR", "PPPPPPHHSH"},
        {Pair, 8, 8,    "PPPPPPPPPP"},
        {Pair, 9, 9,    "PPPPPSPPSP", "PPPPPSPPSS"},
        {Pair, 10, 10,  "SSSSSSSSSS"},
        {Pair, Ace, Ace, "PPPPPPPPPP"},
    }},
    {"OneDeckS17", "basic-single-s17", {
        {Hard, 4, 7,    "HHHHHHHHHH"},
        {Hard, 8, 8,    "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 9, 9,    "DDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Hard, 10, 10,  "DDDDDDDDHH", {}, "HHHHHHHHHH"},
        {Hard, 11, 11,  "DDDDDDDDDD", {}, "HHHHHHHHHH"},
        {Hard, 12, 12,  "HHSSSHHHHH"},
        {Hard, 13, 15,  "SSSSSHHHHH"},
        {Hard, 16, 16,  "SSSSSHHHRR", "SSSSSHHHHH"},
        {Hard, 17, 21,  "SSSSSSSSSS"},
        {Soft, 12, 12,  "HHHDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 13, 16,  "HHDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 17, 17,  "DDDDDHHHHH", {}, "HHHHHHHHHH"},
        {Soft, 18, 18,  "SDDDDSSHHS", {}, "SSSSSSSHHS"},
        {Soft, 19, 19,  "SSSSDSSSSS", {}, "SSSSSSSSSS"},
        {Soft, 20, 21,  "SSSSSSSSSS"},
        {Pair, 2, 2,    "PPPPPPHHHH", "HPPPPPHHHH"},
        {Pair, 3, 3,    "PPPPPPPHHH", "HHPPPPHHHH"},
        {Pair, 4, 4,    "HHPPPHHHHH", "HHHDDHHHHH"},
        {Pair, 5, 5,    "DDDDDDDDHH"},
        {Pair, 6, 6,    "PPPPPPHHHH", "PPPPPHHHHH"},
        {Pair, 7, 7,    "PPPPPPPHRH", "PPPPPPHHSH"},
        {Pair, 8, 8,    "PPPPPPPPPP"},
        {Pair, 9, 9,    "PPPPPSPPSS"},
        {Pair, 10, 10,  "SSSSSSSSSS"},
        {Pair, Ace, Ace, "PPPPPPPPPP"},
    }},
    {"MimicTheDealer", "mimic-dealer", {
        {Hard, 4, 16,   "HHHHHHHHHH"},
        {Hard, 17, 21,  "SSSSSSSSSS"},
        {Soft, 12, 16,  "HHHHHHHHHH"},
        {Soft, 17, 21,  "SSSSSSSSSS"},
        {Pair, 2, 8,    "HHHHHHHHHH"},
        {Pair, 9, 10,   "SSSSSSSSSS"},
        {Pair, Ace, Ace, "HHHHHHHHHH"},
    }},
    {"NeverBust", "never-bust", {
        {Hard, 4, 11,   "HHHHHHHHHH"},
        {Hard, 12, 21,  "SSSSSSSSSS"},
        {Soft, 12, 17,  "HHHHHHHHHH"},
        {Soft, 18, 21,  "SSSSSSSSSS"},
        {Pair, 2, 5,    "HHHHHHHHHH"},
        {Pair, 6, 10,   "SSSSSSSSSS"},
        {Pair, Ace, Ace, "HHHHHHHHHH"},
    }},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Rows, DefaultTableTest, testing::ValuesIn(Charts), RowName());

}  // namespace
}  // namespace tactix::tests
