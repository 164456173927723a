#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "trainer/engine/CardSource.h"
#include "trainer/engine/Decision.h"
#include "trainer/engine/Hand.h"
#include "trainer/engine/Rules.h"

namespace trainer::engine {

/// In cents, or whatever the host's smallest coin is.
using Money = std::int64_t;

/// Blackjack beats a dealer who has none; Bust and Surrendered lose whatever the dealer has.
enum class Outcome : std::uint8_t { Win, Lose, Push, Blackjack, Surrendered, Bust };

struct HandResult {
  Outcome outcome = Outcome::Push;
  Money net = 0;  ///< what the player has more than before the bet

  bool operator==(const HandResult&) const = default;
};

struct PlayerHand {
  Hand hand;
  Money bet = 0;  ///< doubled with the hand
  bool isPlayed = false;
  std::optional<HandResult> result;  ///< for all hands at once, when the round is over
};

/// Both counted from 0. Split hands stand in their order on the table: a hand's new half follows it.
struct HandPlace {
  std::size_t seat = 0;
  std::size_t hand = 0;

  bool operator==(const HandPlace&) const = default;
};

/// One round of blackjack from the deal to the payout. It asks for nothing and calls nobody: while it is not over, the
/// host reads the active hand and its legal plays and plays one of them. Hands of 21 stand by themselves, a split hand
/// gets its second card when it becomes active, and the dealer plays as soon as the last hand is played.
///
/// What the card source throws comes through, and the round is of no use after that.
class Round {
 public:
  static constexpr std::size_t MaximumSeats = 7;
  static constexpr Money MaximumBet = 1'000'000'000;

  /// Deals: one card to each seat, the dealer's up card, a second card to each seat, the hole card. With a dealer's
  /// blackjack, or where no seat has a decision to make, the round is over at once.
  ///
  /// Throws std::invalid_argument, before any card is drawn, for rules out of range, for no seat or more than seven,
  /// and for a bet outside 1 ... MaximumBet, or of which half or a blackjack's payout is no whole number. `cards` must
  /// live as long as the round.
  Round(const Rules& rules, CardSource& cards, const std::vector<Money>& bets);

  /// Throws std::invalid_argument for a bet that the constructor refuses; the rules are in order.
  static void CheckBet(Money bet, const Rules& rules);

  [[nodiscard]] bool IsOver() const { return !active_.has_value(); }

  /// Throw std::logic_error when the round is over.
  [[nodiscard]] HandPlace ActivePlace() const;
  [[nodiscard]] const PlayerHand& ActiveHand() const;

  /// Of the active hand; empty when the round is over.
  [[nodiscard]] LegalPlays Legal() const;

  /// Throws std::logic_error, and changes nothing, if the play is not legal or the round is over.
  void Play(Decision play);

  [[nodiscard]] std::size_t SeatCount() const { return seats_.size(); }
  /// Throws std::out_of_range for a seat that isn't there.
  [[nodiscard]] std::span<const PlayerHand> HandsOf(std::size_t seat) const { return seats_.at(seat); }

  [[nodiscard]] Rank UpCard() const { return dealer_.Cards()[0].rank; }
  /// Up card first, then the hole card, which is face down until the round is over.
  [[nodiscard]] const Hand& DealerHand() const { return dealer_; }
  /// A player's hand was still in play, so that the dealer drew, or stood with what he had. False while the round is
  /// not over, and after a dealer's blackjack: nobody played against that.
  [[nodiscard]] bool DealerPlayed() const { return dealerPlayed_; }

  /// Of the hands that have their result; 0 before the round is over.
  [[nodiscard]] Money NetOf(std::size_t seat) const;
  [[nodiscard]] Money Net() const;

 private:
  PlayerHand& HandAt(HandPlace place) { return seats_[place.seat][place.hand]; }
  void Deal();
  void SplitActiveHand();
  void GoOnFrom(HandPlace place);
  void MakeReady(PlayerHand& player);
  void Finish();
  [[nodiscard]] bool DealerMustPlay() const;
  [[nodiscard]] HandResult ResultOf(const PlayerHand& player) const;

  Rules rules_;
  CardSource& cards_;
  std::vector<std::vector<PlayerHand>> seats_;
  Hand dealer_;
  std::optional<HandPlace> active_;
  bool dealerPlayed_ = false;
};

}  // namespace trainer::engine
