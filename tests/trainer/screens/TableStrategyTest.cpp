#include "trainer/screens/TableStrategy.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tactix/companion/Companion.h"
#include "tactix/companion/IniStrategyCatalogue.h"
#include "tests/trainer/engine/ScriptedCards.h"
#include "trainer/engine/Words.h"

namespace trainer::screens {
namespace {

using engine::CardsOf;
using engine::Decision;
using engine::Hand;
using engine::LegalPlays;
using engine::Rank;
using engine::Rules;
using tactix::companion::DefaultStrategies;
using tactix::companion::DefaultStrategiesName;
using tactix::companion::IniStrategyCatalogue;
using tactix::companion::PlayCode;

constexpr Rank UpCards[] = {Rank::Two,   Rank::Three, Rank::Four, Rank::Five, Rank::Six,
                            Rank::Seven, Rank::Eight, Rank::Nine, Rank::Ten,  Rank::Ace};

/// All hands that a total, or a pair, can be dealt and drawn as.
std::vector<Hand> EveryHand() {
  std::vector<Hand> hands;
  const std::string ranks = "A23456789T";
  for (std::size_t i = 0; i < ranks.size(); ++i) {
    for (std::size_t j = i; j < ranks.size(); ++j) {
      const std::string two = {ranks[i], ranks[j]};
      hands.emplace_back(CardsOf(two));
      for (std::size_t k = j; k < ranks.size(); ++k) {
        Hand three(CardsOf(two + ranks[k]));
        if (three.Total() < 21) hands.push_back(std::move(three));
      }
    }
  }
  return hands;
}

/// What a hand may be allowed, from its first two cards to the last of its split hands.
std::vector<LegalPlays> EveryLegalSet(const Hand& hand, const Rules& rules) {
  const LegalPlays hitOrStand = {Decision::Hit, Decision::Stand};
  if (hand.Cards().size() > 2) return {hitOrStand};
  LegalPlays doubling = hitOrStand;
  doubling.Add(Decision::Double);
  LegalPlays afterSplit = rules.doubleAfterSplit ? doubling : hitOrStand;
  // Four hands hold every card of a rank that one deck has, tens apart: a pair among them can always be split again.
  const bool isSplittable = hand.IsPair() && rules.decks == 1 && hand.Total() != 20;
  std::vector<LegalPlays> sets;
  if (!isSplittable) sets.push_back(afterSplit);
  if (hand.IsPair()) {
    LegalPlays again = afterSplit;
    again.Add(Decision::Split);
    sets.push_back(again);
    doubling.Add(Decision::Split);
  }
  sets.push_back(doubling);
  doubling.Add(Decision::Surrender);
  sets.push_back(doubling);
  return sets;
}

TEST(TableStrategyTest, TheBuiltInBasicStrategiesAgreeWithTheEnginesCharts) {
  struct Row {
    std::int16_t number;
    Rules rules;
  };
  const Row rows[] = {
      {0, {.decks = 6, .dealerHitsSoft17 = false}}, {0, {.decks = 4, .dealerHitsSoft17 = false}},
      {0, {.decks = 8, .dealerHitsSoft17 = false}}, {1, {.decks = 6, .dealerHitsSoft17 = true}},
      {2, {.decks = 1, .dealerHitsSoft17 = true}},  {3, {.decks = 1, .dealerHitsSoft17 = false}},
  };
  const IniStrategyCatalogue catalogue(DefaultStrategies(), DefaultStrategiesName);
  const engine::BasicStrategy chart;
  const std::vector<Hand> hands = EveryHand();
  int compared = 0;
  for (const Row& row : rows) {
    ASSERT_TRUE(catalogue.TableOf(row.number));
    const TableStrategy table("a table", *catalogue.TableOf(row.number));
    for (const bool doubleAfterSplit : {true, false}) {
      Rules rules = row.rules;
      rules.doubleAfterSplit = doubleAfterSplit;
      for (const Hand& hand : hands) {
        for (const LegalPlays& legal : EveryLegalSet(hand, rules)) {
          for (const Rank upCard : UpCards) {
            ++compared;
            EXPECT_EQ(table.Advise(hand, upCard, legal, rules), chart.Advise(hand, upCard, legal, rules))
                << catalogue.CaptionOf(row.number) << (doubleAfterSplit ? " DAS" : "") << ": " << WordFor(hand)
                << " of " << hand.Cards().size() << " cards against " << WordFor(upCard)
                << (legal.Allows(Decision::Split) ? ", split" : "")
                << (legal.Allows(Decision::Double) ? ", double" : "")
                << (legal.Allows(Decision::Surrender) ? ", surrender" : "");
          }
        }
      }
    }
  }
  EXPECT_GT(compared, 10000);
}

TEST(TableStrategyTest, TheBuiltInPlainStrategiesAgreeWithTheEngines) {
  const IniStrategyCatalogue catalogue(DefaultStrategies(), DefaultStrategiesName);
  const TableStrategy mimicTable("mimic", *catalogue.TableOf(4));
  const TableStrategy neverBustTable("never bust", *catalogue.TableOf(5));
  const engine::MimicTheDealer mimic;
  const engine::NeverBust neverBust;
  const Rules rules{};
  for (const Hand& hand : EveryHand()) {
    for (const LegalPlays& legal : EveryLegalSet(hand, rules)) {
      for (const Rank upCard : UpCards) {
        EXPECT_EQ(mimicTable.Advise(hand, upCard, legal, rules), mimic.Advise(hand, upCard, legal, rules))
            << WordFor(hand);
        EXPECT_EQ(neverBustTable.Advise(hand, upCard, legal, rules), neverBust.Advise(hand, upCard, legal, rules))
            << WordFor(hand);
      }
    }
  }
}

/// A table that says `code` for eights, and hit or stand for all else.
TableStrategy SayingOfEights(const std::string& code) {
  const std::string tens = " = " + code + ' ' + code + ' ' + code + ' ' + code + ' ' + code + ' ' + code + ' ' + code +
                           ' ' + code + ' ' + code + ' ' + code + '\n';
  const std::string hits = " = H H H H H H H H H H\n";
  const std::string stands = " = S S S S S S S S S S\n";
  const std::string text = "[Playing 0]\ncaption = One\nplays = one\n[Table one]\nhard 4-16" + hits + "hard 17-21" +
                           stands + "soft 12-17" + hits + "soft 18-21" + stands + "pair 2-7" + hits + "pair 8" + tens +
                           "pair 9-10" + stands + "pair A" + hits;
  const IniStrategyCatalogue catalogue(text, "test");
  return TableStrategy("one", *catalogue.TableOf(0));
}

TEST(TableStrategyTest, EveryCodeFallsBackWhereItsPlayIsForbidden) {
  const LegalPlays all = {Decision::Hit, Decision::Stand, Decision::Split, Decision::Double, Decision::Surrender};
  const LegalPlays noDouble = {Decision::Hit, Decision::Stand, Decision::Split, Decision::Surrender};
  const LegalPlays noSurrender = {Decision::Hit, Decision::Stand, Decision::Split, Decision::Double};
  const LegalPlays onlySplit = {Decision::Hit, Decision::Stand, Decision::Split};
  struct Row {
    const char* code;
    const LegalPlays& legal;
    bool doubleAfterSplit;
    Decision advice;
  };
  const Row rows[] = {
      {"H", all, true, Decision::Hit},
      {"S", all, true, Decision::Stand},
      {"D", all, true, Decision::Double},
      {"D", noDouble, true, Decision::Hit},
      {"Ds", all, true, Decision::Double},
      {"Ds", noDouble, true, Decision::Stand},
      {"P", all, true, Decision::Split},
      {"P", all, false, Decision::Split},
      {"Ph", all, true, Decision::Split},
      {"Ph", all, false, Decision::Hit},
      {"Pd", all, true, Decision::Split},
      {"Pd", all, false, Decision::Double},
      {"Pd", noDouble, false, Decision::Hit},
      {"Ps", all, true, Decision::Split},
      {"Ps", all, false, Decision::Stand},
      {"R", all, true, Decision::Surrender},
      {"R", noSurrender, true, Decision::Hit},
      {"Rs", all, true, Decision::Surrender},
      {"Rs", noSurrender, true, Decision::Stand},
      {"Rp", all, true, Decision::Surrender},
      {"Rp", onlySplit, true, Decision::Split},
  };
  const Hand eights(CardsOf("8 8"));
  for (const Row& row : rows) {
    const Rules rules{.doubleAfterSplit = row.doubleAfterSplit};
    EXPECT_EQ(SayingOfEights(row.code).Advise(eights, Rank::Six, row.legal, rules), row.advice)
        << row.code << (row.doubleAfterSplit ? " DAS" : "");
  }
}

TEST(TableStrategyTest, APairThatCannotBeSplitIsLookedUpByItsTotal) {
  const TableStrategy strategy = SayingOfEights("P");
  EXPECT_EQ(strategy.Advise(Hand(CardsOf("8 8")), Rank::Six, {Decision::Hit, Decision::Stand}, {}), Decision::Hit);
  EXPECT_EQ(strategy.Name(), "one");
}

}  // namespace
}  // namespace trainer::screens
