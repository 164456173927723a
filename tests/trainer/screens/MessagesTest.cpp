#include "trainer/screens/Messages.h"

#include <gtest/gtest.h>

#include <optional>

#include "tests/trainer/engine/ScriptedCards.h"

namespace trainer::screens {
namespace {

using engine::CardsOf;
using engine::Decision;
using engine::Hand;
using engine::Rank;

TEST(MessagesTest, APlayIsSaidAsAPlayerSaysIt) {
  struct Row {
    Decision play;
    const char* cards;
    Rank upCard;
    const char* text;
  };
  const Row rows[] = {
      {Decision::Stand, "T 6", Rank::King, "Stand on 16 against 10"},
      {Decision::Hit, "A 6", Rank::Ace, "Hit soft 17 against ace"},
      {Decision::Split, "8 8", Rank::Six, "Split a pair of 8s against 6"},
      {Decision::Stand, "T K", Rank::Two, "Stand on a pair of 10s against 2"},
      {Decision::Double, "5 6", Rank::Five, "Double 11 against 5"},
      {Decision::Surrender, "9 7", Rank::Ten, "Surrender 16 against 10"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(PlayText(row.play, Hand(CardsOf(row.cards)), row.upCard).toStdString(), row.text);
  }
}

TEST(MessagesTest, AJudgementNamesTheStrategyAndThePredictions) {
  struct Row {
    Decision chosen;
    std::optional<bool> hitCard;
    std::optional<bool> holeCard;
    std::optional<bool> dealer;
    const char* strategy;
    const char* text;
  };
  const Row rows[] = {
      {Decision::Hit, {}, {}, {}, "", "Right: Hit 12 against 7."},
      {Decision::Stand, {}, {}, {}, "", "Better: Hit 12 against 7."},
      {Decision::Hit, true, {}, {}, "", "Right: Hit 12 against 7. Hit card predicted right."},
      {Decision::Stand, {}, false, {}, "", "Better: Hit 12 against 7. Hole card predicted wrong."},
      {Decision::Hit, {}, {}, true, "", "Right: Hit 12 against 7. Dealer's hand predicted right."},
      {Decision::Hit,
       false,
       true,
       {},
       "Never Bust",
       "Right by Never Bust: Hit 12 against 7. Hit card predicted wrong. Hole card predicted right."},
  };
  for (const Row& row : rows) {
    const engine::Judgement judgement{Decision::Hit, row.chosen, row.hitCard, row.holeCard, row.dealer};
    EXPECT_EQ(JudgementText(judgement, Hand(CardsOf("T 2")), Rank::Seven, QLatin1String(row.strategy)).toStdString(),
              row.text);
  }
}

TEST(MessagesTest, ARoundIsToldWhenTheDealEndsIt) {
  struct Row {
    const char* cards;  // player, up card, player, hole card
    const char* text;
  };
  const Row rows[] = {
      {"A 9 K 9", "Blackjack pays 3 to 2."},
      {"9 A 9 K", "The dealer has blackjack."},
      {"A A K K", "Blackjack for you and for the dealer: a push."},
      {"9 9 9 9", ""},
  };
  for (const Row& row : rows) {
    engine::ScriptedCards cards(row.cards);
    const engine::Round round({}, cards, {1000});
    EXPECT_EQ(DealtRoundText(round, {}).toStdString(), row.text) << row.cards;
  }
}

TEST(MessagesTest, ThePayoutIsThatOfTheRules) {
  EXPECT_EQ(PayoutText({.blackjackPays = {6, 5}}).toStdString(), "Blackjack pays 6 to 5");
}

}  // namespace
}  // namespace trainer::screens
