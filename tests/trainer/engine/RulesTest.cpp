#include "trainer/engine/Rules.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace trainer::engine {
namespace {

TEST(RulesTest, Defaults) {
  const Rules rules;
  EXPECT_EQ(rules.decks, 6);
  EXPECT_FALSE(rules.dealerHitsSoft17);
  EXPECT_TRUE(rules.doubleAfterSplit);
  EXPECT_TRUE(rules.lateSurrender);
  EXPECT_EQ(rules.maximumHands, 4);
  EXPECT_EQ(rules.blackjackPays, (Ratio{3, 2}));
  EXPECT_NO_THROW(Validate(rules));
}

TEST(RulesTest, ValidateNamesTheFieldOutOfRange) {
  struct Row {
    Rules rules;
    const char* complaint;
  };
  const Row rows[] = {
      {{.decks = 1}, ""},
      {{.decks = 8}, ""},
      {{.decks = 0}, "decks must be 1 to 8, not 0"},
      {{.decks = 9}, "decks must be 1 to 8, not 9"},
      {{.maximumHands = 1}, ""},
      {{.maximumHands = 0}, "maximumHands must be 1 to 4, not 0"},
      {{.maximumHands = 5}, "maximumHands must be 1 to 4, not 5"},
      {{.blackjackPays = {100, 1}}, ""},
      {{.blackjackPays = {0, 1}}, "blackjackPays.numerator must be 1 to 100, not 0"},
      {{.blackjackPays = {101, 1}}, "blackjackPays.numerator must be 1 to 100, not 101"},
      {{.blackjackPays = {1, 0}}, "blackjackPays.denominator must be 1 to 100, not 0"},
  };
  for (const Row& row : rows) {
    std::string complaint;
    try {
      Validate(row.rules);
    } catch (const std::invalid_argument& error) {
      complaint = error.what();
    }
    EXPECT_EQ(complaint, row.complaint);
  }
}

}  // namespace
}  // namespace trainer::engine
