#include "trainer/engine/Strategy.h"

#include <gtest/gtest.h>

#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/trainer/engine/PrintedCharts.h"
#include "tests/trainer/engine/ScriptedCards.h"

namespace trainer::engine {
namespace {

constexpr LegalPlays HitOrStand = {Decision::Hit, Decision::Stand};
constexpr Rank UpCards[] = {Rank::Two,   Rank::Three, Rank::Four, Rank::Five, Rank::Six,
                            Rank::Seven, Rank::Eight, Rank::Nine, Rank::Ten,  Rank::Ace};

LegalPlays EveryPlayOf(const Hand& hand) {
  LegalPlays legal = {Decision::Hit, Decision::Stand, Decision::Double, Decision::Surrender};
  if (hand.IsPair()) legal.Add(Decision::Split);
  return legal;
}

char LetterOf(Decision play) { return "?HSPDR"[static_cast<std::size_t>(play)]; }

/// The advice against 2 3 4 5 6 7 8 9 10 A.
std::string RowOf(const Strategy& strategy, const Hand& hand, const LegalPlays& legal, const Rules& rules) {
  std::string row;
  for (const Rank upCard : UpCards) row += LetterOf(strategy.Advise(hand, upCard, legal, rules));
  return row;
}

TEST(BasicStrategyTest, AgreesWithThePrintedCharts) {
  struct Chart {
    const char* name;
    std::vector<int> decks;
    bool dealerHitsSoft17;
    std::span<const PrintedRow> rows;
  };
  const Chart charts[] = {
      {"four to eight decks S17", {3, 4, 5, 6, 7, 8}, false, FourToEightDecksS17},
      {"four to eight decks H17", {3, 4, 5, 6, 7, 8}, true, FourToEightDecksH17},
      {"two decks S17", {2}, false, TwoDecksS17},
      {"two decks H17", {2}, true, TwoDecksH17},
      {"one deck S17", {1}, false, OneDeckS17},
      {"one deck H17", {1}, true, OneDeckH17},
  };
  const BasicStrategy strategy;
  for (const Chart& chart : charts) {
    for (const int decks : chart.decks) {
      for (const PrintedRow& row : chart.rows) {
        SCOPED_TRACE(std::string(chart.name) + ", " + std::to_string(decks) + " decks, " + row.cards);
        const Hand hand(CardsOf(row.cards));
        const LegalPlays legal = EveryPlayOf(hand);
        Rules rules{.decks = decks, .dealerHitsSoft17 = chart.dealerHitsSoft17, .doubleAfterSplit = true};
        EXPECT_EQ(RowOf(strategy, hand, legal, rules), row.plays);
        rules.doubleAfterSplit = false;
        const char* without = row.withoutDoubleAfterSplit != nullptr ? row.withoutDoubleAfterSplit : row.plays;
        EXPECT_EQ(RowOf(strategy, hand, legal, rules), without) << "no double after split";
      }
    }
  }
}

TEST(BasicStrategyTest, WithNothingButHitAndStandItPlaysTheTotal) {
  struct Row {
    const char* cards;
    const char* plays;
    const char* oneDeckS17 = nullptr;
  };
  const Row rows[] = {
      {"2 2", "HHHHHHHHHH"},   {"4 4", "HHHHHHHHHH"},   {"3 2 4", "HHHHHHHHHH"}, {"5 5", "HHHHHHHHHH"},
      {"2 3 6", "HHHHHHHHHH"}, {"6 6", "HHSSSHHHHH"},   {"2 3 7", "HHSSSHHHHH"}, {"2 3 8", "SSSSSHHHHH"},
      {"7 4 3", "SSSSSHHHHH"}, {"7 5 3", "SSSSSHHHHH"}, {"8 8", "SSSSSHHHHH"},   {"T 4 2", "SSSSSHHHHH"},
      {"T 4 3", "SSSSSSSSSS"}, {"9 9", "SSSSSSSSSS"},   {"T T", "SSSSSSSSSS"},   {"T 5 6", "SSSSSSSSSS"},
      {"A A", "HHHHHHHHHH"},   {"A 2", "HHHHHHHHHH"},   {"A 3", "HHHHHHHHHH"},   {"A 5", "HHHHHHHHHH"},
      {"A A A", "HHHHHHHHHH"}, {"A 2 2", "HHHHHHHHHH"}, {"A 2 4", "HHHHHHHHHH"}, {"A 2 5", "SSSSSSSHHH", "SSSSSSSHHS"},
      {"A 2 6", "SSSSSSSSSS"}, {"A 2 7", "SSSSSSSSSS"}, {"A 2 8", "SSSSSSSSSS"},
  };
  const BasicStrategy strategy;
  for (const int decks : {1, 2, 6}) {
    for (const bool dealerHitsSoft17 : {false, true}) {
      const Rules rules{.decks = decks, .dealerHitsSoft17 = dealerHitsSoft17};
      for (const Row& row : rows) {
        const bool oneDeckS17 = decks == 1 && !dealerHitsSoft17 && row.oneDeckS17 != nullptr;
        EXPECT_EQ(RowOf(strategy, Hand(CardsOf(row.cards)), HitOrStand, rules), oneDeckS17 ? row.oneDeckS17 : row.plays)
            << row.cards << ", decks " << decks << (dealerHitsSoft17 ? " H17" : " S17");
      }
    }
  }
}

TEST(BasicStrategyTest, TakesTheNextBestPlayWhereTheBestIsNotLegal) {
  constexpr Rules S17 = {.decks = 6, .dealerHitsSoft17 = false};
  constexpr Rules H17 = {.decks = 6, .dealerHitsSoft17 = true};
  constexpr Rules OneDeck = {.decks = 1};
  constexpr Rules OneDeckH17 = {.decks = 1, .dealerHitsSoft17 = true};
  constexpr Rules TwoDecks = {.decks = 2};
  constexpr Rules TwoDecksH17WithoutDas = {.decks = 2, .dealerHitsSoft17 = true, .doubleAfterSplit = false};
  constexpr LegalPlays NoSplit = {Decision::Hit, Decision::Stand, Decision::Double, Decision::Surrender};
  constexpr LegalPlays NoSurrender = {Decision::Hit, Decision::Stand, Decision::Double, Decision::Split};
  constexpr LegalPlays NoDouble = {Decision::Hit, Decision::Stand, Decision::Surrender, Decision::Split};
  struct Row {
    const char* name;
    const char* cards;
    Rules rules;
    LegalPlays legal;
    const char* plays;
  };
  const Row rows[] = {
      {"11 that can't double hits", "7 4", S17, NoDouble, "HHHHHHHHHH"},
      {"soft 18 that can't double stands", "A 7", H17, NoDouble, "SSSSSSSHHH"},
      {"soft 19 that can't double stands", "A 8", H17, NoDouble, "SSSSSSSSSS"},
      {"16 that can't surrender hits", "9 7", S17, NoSurrender, "SSSSSHHHHH"},
      {"17 that can't surrender stands", "T 7", H17, NoSurrender, "SSSSSSSSSS"},
      {"eights that can't surrender split", "8 8", H17, NoSurrender, "PPPPPPPPPP"},
      {"eights that can't split are 16", "8 8", S17, NoSplit, "SSSSSHHRRR"},
      {"eights of two decks that can't surrender split", "8 8", TwoDecksH17WithoutDas, NoSurrender, "PPPPPPPPPP"},
      {"fours that can't split are 8", "4 4", OneDeck, NoSplit, "HHHDDHHHHH"},
      {"sixes that can't split are 12", "6 6", S17, NoSplit, "HHSSSHHHHH"},
      {"sevens of one deck that can't surrender", "7 7", OneDeck, NoSurrender, "PPPPPPPHSH"},
      {"sevens of one deck that can't surrender, H17", "7 7", OneDeckH17, NoSurrender, "PPPPPPPHSH"},
      {"nines that can't split stand", "9 9", S17, NoSplit, "SSSSSSSSSS"},
      {"aces that can't split are soft 12", "A A", S17, NoSplit, "HHHHDHHHHH"},
      {"aces of two decks that can't split", "A A", TwoDecks, NoSplit, "HHHDDHHHHH"},
      {"aces of one deck that can't split", "A A", OneDeck, NoSplit, "HHHDDHHHHH"},
      {"aces that can't split, H17", "A A", H17, NoSplit, "HHHHDHHHHH"},
      {"aces of two decks that can't split, H17", "A A", TwoDecksH17WithoutDas, NoSplit, "HHHDDHHHHH"},
      {"aces of one deck that can't split, H17", "A A", OneDeckH17, NoSplit, "HHHDDHHHHH"},
  };
  const BasicStrategy strategy;
  for (const Row& row : rows) {
    EXPECT_EQ(RowOf(strategy, Hand(CardsOf(row.cards)), row.legal, row.rules), row.plays) << row.name;
  }
}

TEST(BasicStrategyTest, TenValuedCardsPlayAlikeOnBothSides) {
  const BasicStrategy strategy;
  const Rules rules;
  for (const char* cards : {"T 6", "J 6", "Q 6", "K 6"}) {
    const Hand hand(CardsOf(cards));
    for (const Rank upCard : {Rank::Ten, Rank::Jack, Rank::Queen, Rank::King}) {
      EXPECT_EQ(strategy.Advise(hand, upCard, EveryPlayOf(hand), rules), Decision::Surrender) << cards;
    }
  }
}

TEST(MimicTheDealerTest, DrawsLikeTheDealer) {
  const MimicTheDealer strategy;
  constexpr Rules H17 = {.dealerHitsSoft17 = true};
  struct Row {
    const char* cards;
    char onS17;
    char onH17;
  };
  const Row rows[] = {{"T 6", 'H', 'H'}, {"8 8", 'H', 'H'}, {"6 5", 'H', 'H'}, {"A 5", 'H', 'H'},
                      {"A 6", 'S', 'H'}, {"T 7", 'S', 'S'}, {"A 7", 'S', 'S'}, {"T T", 'S', 'S'}};
  for (const Row& row : rows) {
    const Hand hand(CardsOf(row.cards));
    EXPECT_EQ(RowOf(strategy, hand, EveryPlayOf(hand), Rules{}), std::string(10, row.onS17)) << row.cards;
    EXPECT_EQ(RowOf(strategy, hand, EveryPlayOf(hand), H17), std::string(10, row.onH17)) << row.cards;
  }
}

TEST(NeverBustTest, DrawsOnlyWhereNoCardBusts) {
  const NeverBust strategy;
  struct Row {
    const char* cards;
    char play;
  };
  const Row rows[] = {{"6 5", 'H'}, {"7 5", 'S'}, {"6 6", 'S'}, {"T 6", 'S'},
                      {"A A", 'H'}, {"A 6", 'H'}, {"A 7", 'S'}, {"A 6 T", 'S'}};
  for (const Row& row : rows) {
    const Hand hand(CardsOf(row.cards));
    EXPECT_EQ(RowOf(strategy, hand, EveryPlayOf(hand), Rules{}), std::string(10, row.play)) << row.cards;
  }
}

TEST(StrategyTest, EveryStrategyAdvisesALegalPlayOrThrows) {
  const BasicStrategy basic;
  const MimicTheDealer mimic;
  const NeverBust neverBust;
  const Strategy* strategies[] = {&basic, &mimic, &neverBust};
  for (const Strategy* strategy : strategies) {
    SCOPED_TRACE(strategy->Name());
    const Hand sixteen(CardsOf("8 8"));
    EXPECT_THROW((void)strategy->Advise(sixteen, Rank::Ten, {}, Rules{}), std::invalid_argument);
    for (const Decision only :
         {Decision::Hit, Decision::Stand, Decision::Split, Decision::Double, Decision::Surrender}) {
      EXPECT_EQ(strategy->Advise(sixteen, Rank::Six, {only}, Rules{}), only);
    }
  }
  EXPECT_EQ(basic.Name(), "Basic strategy");
  EXPECT_EQ(mimic.Name(), "Mimic the dealer");
  EXPECT_EQ(neverBust.Name(), "Never bust");
}

TEST(LegalPlaysTest, HoldsWhatWasAdded) {
  LegalPlays legal;
  EXPECT_TRUE(legal.IsEmpty());
  EXPECT_FALSE(legal.Allows(Decision::Hit));
  legal.Add(Decision::Double);
  EXPECT_FALSE(legal.IsEmpty());
  EXPECT_TRUE(legal.Allows(Decision::Double));
  EXPECT_FALSE(legal.Allows(Decision::Split));
  EXPECT_EQ(legal, (LegalPlays{Decision::Double}));
  EXPECT_TRUE((LegalPlays{static_cast<Decision>(9), static_cast<Decision>(200)}).IsEmpty());
  EXPECT_FALSE(legal.Allows(static_cast<Decision>(0)));
  EXPECT_FALSE(legal.Allows(static_cast<Decision>(6)));
  EXPECT_FALSE(legal.Allows(static_cast<Decision>(200)));
}

}  // namespace
}  // namespace trainer::engine
