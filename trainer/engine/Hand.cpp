#include "trainer/engine/Hand.h"

#include <stdexcept>

namespace trainer::engine {

Hand::Hand(std::vector<Card> cards) {
  cards_.reserve(cards.size());
  for (const Card card : cards) Add(card);
}

void Hand::Add(Card card) {
  cards_.push_back(card);
  hardTotal_ += PointsOf(card.rank);
  hasAce_ = hasAce_ || card.rank == Rank::Ace;
}

bool Hand::IsPair() const { return cards_.size() == 2 && PointsOf(cards_[0].rank) == PointsOf(cards_[1].rank); }

Hand Hand::Split() {
  if (!IsPair()) throw std::logic_error("only a pair can be split");
  Hand first({cards_[0]});
  Hand second({cards_[1]});
  first.isAfterSplit_ = true;
  second.isAfterSplit_ = true;
  *this = first;
  return second;
}

}  // namespace trainer::engine
