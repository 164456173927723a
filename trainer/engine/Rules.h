#pragma once

namespace trainer::engine {

/// A payout of `numerator` for every `denominator` bet.
struct Ratio {
  int numerator = 1;
  int denominator = 1;

  bool operator==(const Ratio&) const = default;
};

/// What differs from table to table. The same at all of them: the dealer deals himself a hole card and peeks under an
/// ace or a ten-valued card, any first two cards may be doubled, any two cards of equal points may be split, split aces
/// receive one card each and are not split again, and 21 with a split hand's first two cards is no blackjack.
struct Rules {
  int decks = 6;                  ///< 1 ... 8
  bool dealerHitsSoft17 = false;  ///< H17 if true, S17 if false
  bool doubleAfterSplit = true;   ///< DAS
  bool lateSurrender = true;      ///< on the first two cards, after the dealer has peeked
  int maximumHands = 4;           ///< 1 ... 4 hands of one seat, split ones included; 1 forbids splitting
  Ratio blackjackPays = {3, 2};   ///< both 1 ... 100

  bool operator==(const Rules&) const = default;
};

/// Throws std::invalid_argument, with a text that names the field, for a value outside its range.
void Validate(const Rules& rules);

}  // namespace trainer::engine
