#include "trainer/engine/Round.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/trainer/engine/ScriptedCards.h"
#include "trainer/engine/Shoe.h"

namespace trainer::engine {
namespace {

constexpr Decision H = Decision::Hit;
constexpr Decision S = Decision::Stand;
constexpr Decision D = Decision::Double;
constexpr Decision R = Decision::Surrender;

constexpr Rules H17 = {.dealerHitsSoft17 = true};

std::string NamesOf(const Hand& hand) {
  std::string names;
  for (const Card card : hand.Cards()) names += NameOf(card)[0];
  return names;
}

// A row's cards are in the order of the deal: player, up card, player, hole card, then as they are drawn.

TEST(RoundTest, PaysEveryOutcome) {
  struct Row {
    const char* name;
    Rules rules;
    const char* cards;
    std::vector<Decision> plays;
    Outcome outcome;
    Money net;
    const char* dealer;
  };
  const Row rows[] = {
      {"higher total wins", {}, "T T T 9", {S}, Outcome::Win, 100, "T9"},
      {"lower total loses", {}, "T T 8 9", {S}, Outcome::Lose, -100, "T9"},
      {"equal totals push", {}, "T T 9 9", {S}, Outcome::Push, 0, "T9"},
      {"dealer busts", {}, "T 6 3 T 9", {S}, Outcome::Win, 100, "6T9"},
      {"player busts and the dealer draws nothing", {}, "T 6 6 T 9", {H}, Outcome::Bust, -100, "6T"},
      {"blackjack pays 3 to 2", {}, "A 9 K 7", {}, Outcome::Blackjack, 150, "97"},
      {"blackjack pays 6 to 5", {.blackjackPays = {6, 5}}, "A 9 K 7", {}, Outcome::Blackjack, 120, "97"},
      {"blackjack against a ten without an ace", {}, "A T K 7", {}, Outcome::Blackjack, 150, "T7"},
      {"blackjack against blackjack pushes", {}, "A A K K", {}, Outcome::Push, 0, "AK"},
      {"dealer's blackjack under an ace", {}, "T A T K", {}, Outcome::Lose, -100, "AK"},
      {"dealer's blackjack under a ten", {}, "T K T A", {}, Outcome::Lose, -100, "KA"},
      {"21 in three cards stands by itself", {}, "6 T 5 9 T", {H}, Outcome::Win, 100, "T9"},
      {"21 pushes with the dealer's 21", {}, "6 T 5 6 T 5", {H}, Outcome::Push, 0, "T65"},
      {"surrender costs half and the dealer draws nothing", {}, "T 6 6 T", {R}, Outcome::Surrendered, -50, "6T"},
      {"doubled and won", {}, "6 6 5 T 8 9", {D}, Outcome::Win, 200, "6T9"},
      {"doubled and lost", {}, "6 T 5 T 8", {D}, Outcome::Lose, -200, "TT"},
      {"doubled and pushed", {}, "6 T 5 8 7", {D}, Outcome::Push, 0, "T8"},
      {"doubled and bust", {}, "T T 5 8 7", {D}, Outcome::Bust, -200, "T8"},
      {"doubled to 21", {}, "6 T 5 8 T", {D}, Outcome::Win, 200, "T8"},
      {"two hits", {}, "2 T 3 9 4 T", {H, H, S}, Outcome::Push, 0, "T9"},
      {"dealer stands on soft 17", {}, "T 6 8 A", {S}, Outcome::Win, 100, "6A"},
      {"dealer hits soft 17", H17, "T 6 8 A 3", {S}, Outcome::Lose, -100, "6A3"},
      {"dealer hits soft 17 and stands on hard 17", H17, "T 6 8 A T", {S}, Outcome::Win, 100, "6AT"},
      {"dealer stands on soft 18 with H17 too", H17, "T 7 8 A", {S}, Outcome::Push, 0, "7A"},
      {"dealer draws to 17", {}, "T 2 8 2 2 T A", {S}, Outcome::Win, 100, "222TA"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ScriptedCards cards(row.cards);
    Round round(row.rules, cards, {100});
    for (const Decision play : row.plays) round.Play(play);
    ASSERT_TRUE(round.IsOver());
    ASSERT_EQ(round.HandsOf(0).size(), 1U);
    const PlayerHand& hand = round.HandsOf(0)[0];
    ASSERT_TRUE(hand.result.has_value());
    EXPECT_EQ(*hand.result, (HandResult{row.outcome, row.net}));
    EXPECT_TRUE(hand.isPlayed);
    EXPECT_EQ(round.NetOf(0), row.net);
    EXPECT_EQ(round.Net(), row.net);
    EXPECT_EQ(NamesOf(round.DealerHand()), row.dealer);
    EXPECT_EQ(round.Legal(), LegalPlays{});
    EXPECT_EQ(cards.Remaining(), 0U);
    EXPECT_EQ(cards.Rounds(), 1);
  }
}

TEST(RoundTest, TheDealerHasHisTurnWhileAPlayersHandIsInPlay) {
  constexpr Decision P = Decision::Split;
  struct Row {
    const char* name;
    const char* cards;
    std::vector<Decision> plays;
    bool played;
  };
  const Row rows[] = {
      {"stands with what he has", "T T T 9", {S}, true},
      {"draws", "T 6 3 T 9", {S}, true},
      {"draws and busts against a doubled hand", "6 6 5 T 8 9", {D}, true},
      {"17 against a hand that went over", "T T 6 7 T", {H}, false},
      {"stiff against a hand that went over", "T 6 6 T T", {H}, false},
      {"17 against a surrendered hand", "T T 6 7", {R}, false},
      {"19 against a blackjack", "A T K 9", {}, false},
      {"his own blackjack", "T A T K", {}, false},
      {"both have blackjack", "A A K K", {}, false},
      {"one split hand went over, one did not", "8 T 8 7  6 T  T", {P, H, S}, true},
      {"both split hands went over", "8 T 8 7  6 T  6 T", {P, H, H}, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ScriptedCards cards(row.cards);
    Round round({}, cards, {100});
    for (const Decision play : row.plays) {
      EXPECT_FALSE(round.DealerPlayed());
      round.Play(play);
    }
    ASSERT_TRUE(round.IsOver());
    EXPECT_EQ(round.DealerPlayed(), row.played);
    EXPECT_EQ(cards.Remaining(), 0U);
  }
}

TEST(RoundTest, DealsInCasinoOrder) {
  ScriptedCards cards("2 3 4 5 6 7 8 9");
  const Round round({}, cards, {100, 200, 300});
  EXPECT_EQ(round.SeatCount(), 3U);
  EXPECT_EQ(NamesOf(round.HandsOf(0)[0].hand), "26");
  EXPECT_EQ(NamesOf(round.HandsOf(1)[0].hand), "37");
  EXPECT_EQ(NamesOf(round.HandsOf(2)[0].hand), "48");
  EXPECT_EQ(NamesOf(round.DealerHand()), "59");
  EXPECT_EQ(round.UpCard(), Rank::Five);
  EXPECT_EQ(round.HandsOf(1)[0].bet, 200);
  EXPECT_THROW((void)round.HandsOf(3), std::out_of_range);
}

TEST(RoundTest, PlaysTheSeatsInTurnAndSkipsThoseWithNothingToDecide) {
  //                  seats   up  seats   hole  drawn
  ScriptedCards cards("A T 9 T  7  K 6 9 5  T     8 6");
  Round round({}, cards, {100, 100, 100, 200});
  EXPECT_FALSE(round.HandsOf(0)[0].result.has_value());
  EXPECT_EQ(round.Net(), 0);
  EXPECT_EQ(round.ActivePlace(), (HandPlace{1, 0}));
  round.Play(H);
  EXPECT_TRUE(round.HandsOf(1)[0].hand.IsBust());
  EXPECT_EQ(round.ActivePlace(), (HandPlace{2, 0}));
  EXPECT_EQ(NamesOf(round.ActiveHand().hand), "99");
  round.Play(S);
  EXPECT_EQ(round.ActivePlace(), (HandPlace{3, 0}));
  round.Play(H);
  ASSERT_TRUE(round.IsOver());
  EXPECT_EQ(round.NetOf(0), 150);
  EXPECT_EQ(round.NetOf(1), -100);
  EXPECT_EQ(round.NetOf(2), 100);
  EXPECT_EQ(round.NetOf(3), 200);
  EXPECT_EQ(round.Net(), 350);
}

TEST(RoundTest, DealersBlackjackEndsTheRoundForEverySeat) {
  ScriptedCards cards("A T 9 A K 6 9 K");
  const Round round({}, cards, {100, 100, 100});
  EXPECT_TRUE(round.IsOver());
  EXPECT_EQ(round.HandsOf(0)[0].result, (HandResult{Outcome::Push, 0}));
  EXPECT_EQ(round.HandsOf(1)[0].result, (HandResult{Outcome::Lose, -100}));
  EXPECT_EQ(round.HandsOf(2)[0].result, (HandResult{Outcome::Lose, -100}));
}

TEST(RoundTest, LegalPlaysOfTheFirstTwoCardsAndAfterwards) {
  struct Row {
    const char* name;
    Rules rules;
    const char* cards;
    LegalPlays first;
    LegalPlays afterAHit;
  };
  constexpr Rules NoSurrender = {.lateSurrender = false};
  constexpr Rules NoSplit = {.maximumHands = 1};
  constexpr Decision P = Decision::Split;
  const Row rows[] = {
      {"no pair", {}, "5 T 4 9 2", {H, S, D, R}, {H, S}},
      {"pair", {}, "4 T 4 9 2", {H, S, D, R, P}, {H, S}},
      {"ten-valued cards pair", {}, "K 9 J 9 A", {H, S, D, R, P}, {}},
      {"soft hand", {}, "A T 4 9 2", {H, S, D, R}, {H, S}},
      {"no surrender at this table", NoSurrender, "4 T 4 9 2", {H, S, D, P}, {H, S}},
      {"no splitting at this table", NoSplit, "4 T 4 9 2", {H, S, D, R}, {H, S}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ScriptedCards cards(row.cards);
    Round round(row.rules, cards, {100});
    EXPECT_EQ(round.Legal(), row.first);
    round.Play(H);
    EXPECT_EQ(round.Legal(), row.afterAHit);
  }
}

TEST(RoundTest, AnIllegalPlayThrowsAndChangesNothing) {
  struct Row {
    Decision play;
    const char* complaint;
  };
  const Row rows[] = {
      {Decision::Split, "split is not legal with this hand"},
      {Decision::Double, "double is not legal with this hand"},
      {Decision::Surrender, "surrender is not legal with this hand"},
      {static_cast<Decision>(9), "an unknown play is not legal with this hand"},
  };
  ScriptedCards cards("2 T 3 9 4 5");
  Round round({}, cards, {100});
  round.Play(H);
  for (const Row& row : rows) {
    try {
      round.Play(row.play);
      ADD_FAILURE() << row.complaint;
    } catch (const std::logic_error& error) {
      EXPECT_STREQ(error.what(), row.complaint);
    }
    EXPECT_EQ(NamesOf(round.ActiveHand().hand), "234");
    EXPECT_EQ(round.ActiveHand().bet, 100);
    EXPECT_FALSE(round.ActiveHand().hand.IsSurrendered());
    EXPECT_FALSE(round.ActiveHand().hand.IsDoubled());
    EXPECT_EQ(cards.Remaining(), 1U);
    EXPECT_FALSE(round.IsOver());
  }
  round.Play(S);
  EXPECT_THROW(round.Play(S), std::logic_error);
  EXPECT_THROW((void)round.ActivePlace(), std::logic_error);
  EXPECT_THROW((void)round.ActiveHand(), std::logic_error);
}

TEST(RoundTest, RefusesBetsSeatsAndRulesBeforeItDealsACard) {
  struct Row {
    const char* name;
    Rules rules;
    std::vector<Money> bets;
    bool isFine;
  };
  constexpr Rules EvenMoney = {.blackjackPays = {1, 1}};
  constexpr Rules SixToFive = {.blackjackPays = {6, 5}};
  const Row rows[] = {
      {"no seat", {}, {}, false},
      {"eight seats", {}, std::vector<Money>(8, 100), false},
      {"seven seats", {}, std::vector<Money>(7, 100), true},
      {"no bet", {}, {0}, false},
      {"negative bet", {}, {-100}, false},
      {"odd bet", {}, {101}, false},
      {"odd bet where a blackjack could be paid", EvenMoney, {101}, false},
      {"least even bet", {}, {2}, true},
      {"second bet is odd", {}, {100, 5}, false},
      {"not payable 6 to 5", SixToFive, {12}, false},
      {"payable 6 to 5", SixToFive, {10}, true},
      {"greatest bet", {}, {Round::MaximumBet}, true},
      {"over the greatest bet", {}, {Round::MaximumBet + 2}, false},
      {"rules out of range", {.decks = 9}, {100}, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    ScriptedCards cards("2 3 2 3 2 3 2 3 2 3 2 3 2 3 2 3");
    if (row.isFine) {
      EXPECT_NO_THROW(Round(row.rules, cards, row.bets));
    } else {
      EXPECT_THROW(Round(row.rules, cards, row.bets), std::invalid_argument);
      EXPECT_EQ(cards.Remaining(), 16U);
      EXPECT_EQ(cards.Rounds(), 0);
    }
  }
}

TEST(RoundTest, AShoeThatRunsOutShufflesItsDiscardsAndTheRoundGoesOn) {
  Shoe shoe(1, 23);
  for (int round = 0; round < 200; ++round) {
    Round game({.decks = 1}, shoe, {100, 100, 100});
    while (!game.IsOver()) game.Play(game.ActiveHand().hand.Total() < 17 ? H : S);
    std::vector<std::string> table;
    const auto add = [&table](const Hand& hand) {
      for (const Card card : hand.Cards()) table.push_back(NameOf(card));
    };
    add(game.DealerHand());
    for (std::size_t seat = 0; seat < 3; ++seat) add(game.HandsOf(seat)[0].hand);
    std::sort(table.begin(), table.end());
    EXPECT_EQ(std::unique(table.begin(), table.end()), table.end()) << "a card lay on the table twice";
  }
}

}  // namespace
}  // namespace trainer::engine
