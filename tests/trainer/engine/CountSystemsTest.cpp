#include "trainer/engine/CountSystems.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace trainer::engine {
namespace {

TEST(CountSystemsTest, HasTheSystemsWhosePointsAreKnown) {
  struct Row {
    int number;
    int deckSum;
    int level;
  };
  const Row rows[] = {{11, 0, 1}, {12, 0, 1}, {13, 0, 3}, {14, 4, 3}, {15, 0, 1}, {16, 0, 3}, {17, 0, 3}, {18, 2, 3},
                      {19, 0, 1}, {20, 0, 1}, {21, 0, 1}, {22, 0, 2}, {23, 0, 1}, {24, 0, 2}, {25, 0, 4}, {29, 0, 11},
                      {30, 0, 1}, {31, 0, 2}, {32, 2, 1}, {33, 0, 2}, {35, 0, 2}, {36, 0, 4}};
  ASSERT_EQ(CountSystems().size(), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const CountSystem& system = CountSystems()[i];
    EXPECT_EQ(system.number, rows[i].number);
    EXPECT_EQ(system.DeckSum(), rows[i].deckSum) << system.name;
    EXPECT_EQ(system.IsBalanced(), rows[i].deckSum == 0) << system.name;
    EXPECT_EQ(system.Level(), rows[i].level) << system.name;
    EXPECT_EQ(FindCountSystem(system.number), &system);
  }
}

TEST(CountSystemsTest, HasNoOthers) {
  std::set<int> known;
  for (const CountSystem& system : CountSystems()) known.insert(system.number);
  for (int number = -1; number <= 40; ++number) {
    EXPECT_EQ(FindCountSystem(number) != nullptr, known.count(number) != 0) << number;
  }
}

TEST(CountSystemsTest, CountsOneColourOfSevensWhereTheSystemDoes) {
  const CountSystem& redSeven = *FindCountSystem(32);
  EXPECT_EQ(redSeven.HalvesOf({Rank::Seven, Suit::Hearts}), HalvesPerPoint);
  EXPECT_EQ(redSeven.HalvesOf({Rank::Seven, Suit::Diamonds}), HalvesPerPoint);
  EXPECT_EQ(redSeven.HalvesOf({Rank::Seven, Suit::Spades}), 0);
  EXPECT_EQ(redSeven.HalvesOf({Rank::Seven, Suit::Clubs}), 0);
  EXPECT_EQ(redSeven.HalvesOf({Rank::Six, Suit::Clubs}), HalvesPerPoint);
  EXPECT_EQ(FindCountSystem(33)->HalvesOf({Rank::Seven, Suit::Clubs}), HalvesPerPoint);
}

TEST(CountSystemsTest, CountsFacesAsTens) {
  const CountSystem& system = *FindCountSystem(13);
  for (const Rank rank : {Rank::Ten, Rank::Jack, Rank::Queen, Rank::King}) {
    EXPECT_EQ(system.HalvesOf({rank, Suit::Clubs}), -6) << static_cast<int>(rank);
  }
}

/// The effects of removal for a single deck, in percent: what the player gains when the card is gone. Griffin, The
/// Theory of Blackjack; ace, 2 ... 9, ten.
constexpr std::array<double, 10> Effects = {-0.61, 0.38, 0.44, 0.55, 0.69, 0.46, 0.28, 0.00, -0.18, -0.51};

double BettingCorrelation(const CountSystem& system) {
  double product = 0;
  double points = 0;
  double effects = 0;
  for (int rank = 1; rank <= RankCount; ++rank) {
    const Card card{static_cast<Rank>(rank), Suit::Hearts};
    const double effect = Effects[static_cast<std::size_t>(PointsOf(card.rank) - 1)];
    product += system.HalvesOf(card) * effect;
    points += system.HalvesOf(card) * system.HalvesOf(card);
    effects += effect * effect;
  }
  return product / std::sqrt(points * effects);
}

TEST(CountSystemsTest, AgreesWithTheEffectsOfRemoval) {
  struct Row {
    int number;
    double correlation;  ///< as published for the system; the house's own as worked out
  };
  const Row rows[] = {{11, 0.95},  {12, 0.95}, {13, 0.91}, {14, 0.99}, {16, 0.997}, {17, 0.92},
                      {18, 0.994}, {19, 0.97}, {21, 0.88}, {22, 0.91}, {23, 0.89},  {24, 0.99},
                      {25, 1.00},  {29, 1.00}, {30, 0.87}, {31, 0.92}, {33, 0.96},  {35, 0.92}};
  for (const Row& row : rows) {
    EXPECT_NEAR(BettingCorrelation(*FindCountSystem(row.number)), row.correlation, 0.012) << row.number;
  }
}

std::string InPoints(int halves) {
  const std::string sign = halves < 0 ? "-" : "";
  return sign + std::to_string(std::abs(halves) / 2) + (halves % 2 == 0 ? "" : ".5");
}

std::string WordsFor(TrueCountPer per) {
  switch (per) {
    case TrueCountPer::None:
      return "none";
    case TrueCountPer::HalfDeck:
      return "half deck";
    case TrueCountPer::Deck:
      return "deck";
  }
  return "?";
}

/// A row of the table in docs/count-systems.md.
std::string DocumentedRow(const CountSystem& system) {
  std::string row = "| " + std::to_string(system.number) + " | " + std::string(system.name) + " |";
  for (std::size_t i = 0; i < system.halves.size(); ++i) {
    row += " " + InPoints(system.halves[i]);
    if (i == 6 && system.sevens == CountedSevens::Red) row += " red";
    row += " |";
  }
  return row + " " + std::to_string(system.DeckSum()) + " | " + std::to_string(system.start) + " | " +
         WordsFor(system.per) + " | " + std::string(system.source) + " |";
}

TEST(CountSystemsTest, AreDocumentedAsTheyAre) {
  std::ifstream page(TACTIX_SOURCE_DIR "/docs/count-systems.md");
  ASSERT_TRUE(page.is_open());
  std::vector<std::string> documented;
  int notPresent = 0;
  for (std::string line; std::getline(page, line);) {
    if (line.size() < 3 || !line.starts_with("| ") || line[2] < '0' || line[2] > '9') continue;
    if (line.find("| Not present: ") != std::string::npos) {
      EXPECT_EQ(FindCountSystem(std::stoi(line.substr(2))), nullptr) << line;
      ++notPresent;
    } else {
      documented.push_back(line);
    }
  }
  std::vector<std::string> rows;
  for (const CountSystem& system : CountSystems()) rows.push_back(DocumentedRow(system));
  EXPECT_EQ(documented, rows);
  EXPECT_EQ(rows.size() + static_cast<std::size_t>(notPresent), 28U);
}

}  // namespace
}  // namespace trainer::engine
