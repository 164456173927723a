#include "trainer/engine/Round.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "trainer/engine/Dealer.h"

namespace trainer::engine {

namespace {

Money BlackjackPayout(Money bet, const Ratio& pays) { return bet * pays.numerator / pays.denominator; }

const char* NameOf(Decision play) {
  switch (play) {
    case Decision::Hit:
      return "hit";
    case Decision::Stand:
      return "stand";
    case Decision::Split:
      return "split";
    case Decision::Double:
      return "double";
    case Decision::Surrender:
      return "surrender";
  }
  return "an unknown play";
}

bool IsSplitAce(const Hand& hand) { return hand.IsAfterSplit() && hand.Cards()[0].rank == Rank::Ace; }

/// Neither lost nor paid already, so that the dealer's cards decide.
bool IsAlive(const Hand& hand) { return !hand.IsBust() && !hand.IsSurrendered() && !hand.IsBlackjack(); }

}  // namespace

Round::Round(const Rules& rules, CardSource& cards, const std::vector<Money>& bets) : rules_(rules), cards_(cards) {
  Validate(rules_);
  if (bets.empty() || bets.size() > MaximumSeats) {
    throw std::invalid_argument("a round has 1 to 7 seats, not " + std::to_string(bets.size()));
  }
  for (const Money bet : bets) CheckBet(bet, rules_);
  for (const Money bet : bets) {
    PlayerHand player;
    player.bet = bet;
    seats_.push_back({std::move(player)});
  }
  Deal();
}

void Round::CheckBet(Money bet, const Rules& rules) {
  if (bet < 1 || bet > MaximumBet) {
    throw std::invalid_argument("a bet must be 1 to " + std::to_string(MaximumBet) + ", not " + std::to_string(bet));
  }
  if (bet % 2 != 0) throw std::invalid_argument("a bet must be even, so that half of it can be surrendered");
  const Ratio& pays = rules.blackjackPays;
  if (bet * pays.numerator % pays.denominator != 0) {
    throw std::invalid_argument("a bet of " + std::to_string(bet) + " can't be paid " + std::to_string(pays.numerator) +
                                " to " + std::to_string(pays.denominator) + " exactly");
  }
}

void Round::Deal() {
  cards_.BeginRound();
  for (int pass = 0; pass < 2; ++pass) {
    for (auto& hands : seats_) hands[0].hand.Add(cards_.Draw());
    dealer_.Add(cards_.Draw());
  }
  if (dealer_.IsBlackjack()) {
    Finish();
  } else {
    GoOnFrom({0, 0});
  }
}

HandPlace Round::ActivePlace() const {
  if (!active_) throw std::logic_error("the round is over: no hand is active");
  return *active_;
}

const PlayerHand& Round::ActiveHand() const {
  const HandPlace place = ActivePlace();
  return seats_[place.seat][place.hand];
}

LegalPlays Round::Legal() const {
  if (!active_) return {};
  const Hand& hand = ActiveHand().hand;
  LegalPlays legal = {Decision::Hit, Decision::Stand};
  if (hand.Cards().size() != 2) return legal;
  const std::size_t handCount = seats_[active_->seat].size();
  if (hand.IsPair() && handCount < static_cast<std::size_t>(rules_.maximumHands)) legal.Add(Decision::Split);
  if (!hand.IsAfterSplit() || rules_.doubleAfterSplit) legal.Add(Decision::Double);
  if (!hand.IsAfterSplit() && rules_.lateSurrender) legal.Add(Decision::Surrender);
  return legal;
}

void Round::Play(Decision play) {
  const HandPlace place = ActivePlace();
  if (!Legal().Allows(play)) throw std::logic_error(std::string(NameOf(play)) + " is not legal with this hand");
  PlayerHand& player = HandAt(place);
  switch (play) {
    case Decision::Hit:
      player.hand.Add(cards_.Draw());
      break;
    case Decision::Stand:
      player.isPlayed = true;
      break;
    case Decision::Split:
      SplitActiveHand();
      break;
    case Decision::Double:
      player.hand.Add(cards_.Draw());
      player.hand.MarkDoubled();
      player.bet *= 2;
      player.isPlayed = true;
      break;
    case Decision::Surrender:
      player.hand.MarkSurrendered();
      player.isPlayed = true;
      break;
  }
  GoOnFrom(place);
}

void Round::SplitActiveHand() {
  auto& hands = seats_[active_->seat];
  const auto index = static_cast<std::ptrdiff_t>(active_->hand);
  PlayerHand second;
  second.bet = hands[active_->hand].bet;
  second.hand = hands[active_->hand].hand.Split();
  hands.insert(hands.begin() + index + 1, std::move(second));
}

void Round::GoOnFrom(HandPlace place) {
  for (; place.seat < seats_.size(); place = {place.seat + 1, 0}) {
    for (; place.hand < seats_[place.seat].size(); ++place.hand) {
      PlayerHand& player = HandAt(place);
      MakeReady(player);
      if (player.isPlayed) continue;
      active_ = place;
      return;
    }
  }
  active_.reset();
  Finish();
}

void Round::MakeReady(PlayerHand& player) {
  if (player.hand.Cards().size() == 1) {
    player.hand.Add(cards_.Draw());
    if (IsSplitAce(player.hand)) player.isPlayed = true;
  }
  if (player.hand.Total() >= 21) player.isPlayed = true;
}

bool Round::DealerMustPlay() const {
  for (const auto& hands : seats_) {
    if (std::any_of(hands.begin(), hands.end(), [](const PlayerHand& player) { return IsAlive(player.hand); })) {
      return true;
    }
  }
  return false;
}

void Round::Finish() {
  dealerPlayed_ = !dealer_.IsBlackjack() && DealerMustPlay();
  if (dealerPlayed_) {
    while (DealerDraws(dealer_, rules_)) dealer_.Add(cards_.Draw());
  }
  for (auto& hands : seats_) {
    for (PlayerHand& player : hands) {
      player.isPlayed = true;
      player.result = ResultOf(player);
    }
  }
}

HandResult Round::ResultOf(const PlayerHand& player) const {
  const Hand& hand = player.hand;
  if (hand.IsSurrendered()) return {Outcome::Surrendered, -player.bet / 2};
  if (hand.IsBust()) return {Outcome::Bust, -player.bet};
  if (hand.IsBlackjack() != dealer_.IsBlackjack()) {
    if (dealer_.IsBlackjack()) return {Outcome::Lose, -player.bet};
    return {Outcome::Blackjack, BlackjackPayout(player.bet, rules_.blackjackPays)};
  }
  if (dealer_.IsBust() || hand.Total() > dealer_.Total()) return {Outcome::Win, player.bet};
  if (hand.Total() < dealer_.Total()) return {Outcome::Lose, -player.bet};
  return {Outcome::Push, 0};
}

Money Round::NetOf(std::size_t seat) const {
  Money net = 0;
  for (const PlayerHand& player : HandsOf(seat)) {
    if (player.result) net += player.result->net;
  }
  return net;
}

Money Round::Net() const {
  Money net = 0;
  for (std::size_t seat = 0; seat < seats_.size(); ++seat) net += NetOf(seat);
  return net;
}

}  // namespace trainer::engine
