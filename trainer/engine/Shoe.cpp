#include "trainer/engine/Shoe.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <utility>

namespace trainer::engine {

namespace {

int CheckedDecks(int decks) {
  if (decks < Shoe::MinimumDecks || decks > Shoe::MaximumDecks) {
    throw std::invalid_argument("a shoe holds 1 to 8 decks, not " + std::to_string(decks));
  }
  return decks;
}

double CheckedPenetration(double penetration) {
  // Written so that a NaN is refused too.
  if (!(penetration >= Shoe::MinimumPenetration && penetration <= Shoe::MaximumPenetration)) {
    throw std::invalid_argument("the cut card goes in at 0.1 to 0.95 of the shoe, not " + std::to_string(penetration));
  }
  return penetration;
}

std::vector<Card> UnopenedDecks(int decks) {
  std::vector<Card> cards;
  cards.reserve(static_cast<std::size_t>(decks * CardsPerDeck));
  for (int deck = 0; deck < decks; ++deck) {
    for (int suit = 0; suit < SuitCount; ++suit) {
      for (int rank = 1; rank <= RankCount; ++rank) {
        cards.push_back({static_cast<Rank>(rank), static_cast<Suit>(suit)});
      }
    }
  }
  return cards;
}

}  // namespace

Shoe::Shoe(int decks, std::uint64_t seed, double penetration)
    : decks_(CheckedDecks(decks)),
      random_(seed),
      cards_(UnopenedDecks(decks)),
      cutPosition_(
          static_cast<std::size_t>(std::lround(CheckedPenetration(penetration) * static_cast<double>(cards_.size())))) {
  Shuffle();
}

Card Shoe::Draw() {
  if (next_ == cards_.size()) ShuffleDiscards();
  const Card card = cards_[next_];
  ++next_;
  if (next_ >= cutPosition_) cutCardIsOut_ = true;
  return card;
}

Card Shoe::Burn() {
  const Card card = Draw();
  // Puts the burned card at the end of the discards, before the cards on the table.
  const auto begin = cards_.begin();
  const auto end = begin + static_cast<std::ptrdiff_t>(next_);
  std::rotate(begin + static_cast<std::ptrdiff_t>(tableBegin_), end - 1, end);
  ++tableBegin_;
  return card;
}

void Shoe::Shuffle() {
  next_ = 0;
  tableBegin_ = 0;
  cutCardIsOut_ = false;
  ShuffleFrom(0);
}

void Shoe::ShuffleFrom(std::size_t first) {
  for (std::size_t count = cards_.size() - first; count > 1; --count) {
    const auto chosen = static_cast<std::size_t>(random_.Below(count));
    std::swap(cards_[first + chosen], cards_[first + count - 1]);
  }
}

void Shoe::ShuffleDiscards() {
  if (tableBegin_ == 0) throw std::runtime_error("the shoe is empty and all its cards are on the table");
  const auto table = cards_.begin() + static_cast<std::ptrdiff_t>(tableBegin_);
  const auto discards = std::rotate(cards_.begin(), table, cards_.end());
  next_ = static_cast<std::size_t>(discards - cards_.begin());
  tableBegin_ = 0;
  ShuffleFrom(next_);
}

}  // namespace trainer::engine
