#include "trainer/engine/Session.h"

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

namespace trainer::engine {

namespace {

/// Checks the rules before anything is made from them.
const Rules& Checked(const Rules& rules) {
  Validate(rules);
  return rules;
}

Money Checked(Money bet, const Rules& rules) {
  Round::CheckBet(bet, rules);
  return bet;
}

}  // namespace

Session::Session(const Rules& rules, std::uint64_t seed, Money bet)
    : rules_(Checked(rules)),
      bet_(Checked(bet, rules)),
      shoe_(rules.decks, seed),
      strategy_(std::make_shared<BasicStrategy>()) {}

void Session::Deal() {
  predictions_.Forget();
  if (shoe_.NeedsShuffle()) Shuffle();
  isCounted_ = false;
  isInRun_ = true;
  round_.emplace(rules_, shoe_, std::vector<Money>{bet_});
  ++turn_;
  CountIfOver();
}

void Session::Bet(Money bet) { bet_ = Checked(bet, rules_); }

void Session::BeginRun() {
  run_ = 0;
  isInRun_ = false;
}

void Session::Shuffle() {
  shoe_.Shuffle();
  dealer_.Forget();
  roundsAhead_ = 0;
}

const Round& Session::CurrentRound() const {
  if (!round_) throw std::logic_error("no round has been dealt");
  return *round_;
}

Decision Session::Advised() const {
  const Round& round = CurrentRound();
  return strategy_->Advise(round.ActiveHand().hand, round.UpCard(), round.Legal(), rules_);
}

std::optional<Judgement> Session::Decide(Decision decision) {
  if (IsOver() || !round_->Legal().Allows(decision)) return std::nullopt;
  Judgement judgement{Advised(), decision, std::nullopt, std::nullopt};
  const HandPlace place = round_->ActivePlace();
  round_->Play(decision);
  ++turn_;
  if (decision == Decision::Hit || decision == Decision::Double) {
    judgement.hitCardPrediction =
        predictions_.SeeHitCard(round_->HandsOf(place.seat)[place.hand].hand.Cards().back().rank);
  }
  ++tally_.decisions;
  if (judgement.IsRight()) ++tally_.correct;
  if (IsOver()) SeeTheDealersCards(judgement);
  CountIfOver();
  return judgement;
}

void Session::SeeTheDealersCards(Judgement& judgement) {
  const auto cards = round_->DealerHand().Cards();
  judgement.holeCardPrediction = predictions_.SeeHoleCard(cards[1].rank);
  judgement.dealerPrediction = predictions_.SeeDealerHand(Hand({cards[0], cards[1]}));
}

void Session::CountIfOver() {
  if (!round_->IsOver() || isCounted_) return;
  isCounted_ = true;
  ++tally_.hands;
  const Money net = round_->Net();
  tally_.net += net;
  dealer_.Add(round_->DealerHand(), round_->DealerPlayed() ? DealersTurn::Taken : DealersTurn::NotNeeded);
  const int step = net > 0 ? 1 : net < 0 ? -1 : 0;
  roundsAhead_ += step;
  if (step != 0 && isInRun_) run_ = (run_ > 0) == (step > 0) ? run_ + step : step;
  predictions_.Forget();
}

void Session::Follow(std::shared_ptr<const Strategy> strategy) {
  if (!strategy) throw std::invalid_argument("a session needs a strategy to judge by");
  strategy_ = std::move(strategy);
}

std::vector<Card> Session::Seen() const {
  const auto dealt = shoe_.Dealt();
  std::vector<Card> seen(dealt.begin(), dealt.end());
  if (!IsOver()) {
    // The player has not seen a hole card that is still face down.
    const auto hole = std::find(seen.begin(), seen.end(), round_->DealerHand().Cards()[1]);
    if (hole != seen.end()) seen.erase(hole);
  }
  return seen;
}

std::optional<bool> Session::PredictTensRatio(bool high) {
  const std::vector<Card> seen = Seen();
  if (seen.size() >= static_cast<std::size_t>(rules_.decks) * CardsPerDeck) return std::nullopt;
  return predictions_.PredictTensRatio(high, rules_.decks, seen);
}

}  // namespace trainer::engine
