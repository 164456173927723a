#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "trainer/engine/Card.h"
#include "trainer/engine/CardSource.h"

namespace trainer::engine {

/// Cards by their rank letters, blanks between them for the reader only: "A 7 T". The suits don't matter to a test that
/// uses these; they go round so that no two neighbours are the same card.
inline std::vector<Card> CardsOf(std::string_view letters) {
  constexpr std::string_view Ranks = "A23456789TJQK";
  std::vector<Card> cards;
  for (const char letter : letters) {
    if (letter == ' ') continue;
    const std::size_t index = Ranks.find(letter);
    if (index == std::string_view::npos) throw std::invalid_argument(std::string("no rank: ") + letter);
    cards.push_back({static_cast<Rank>(index + 1), static_cast<Suit>(cards.size() % 4)});
  }
  return cards;
}

/// Deals the given cards and no others: drawing one too many throws std::out_of_range.
class ScriptedCards final : public CardSource {
 public:
  explicit ScriptedCards(std::string_view letters) : cards_(CardsOf(letters)) {}

  void BeginRound() override { ++rounds_; }
  Card Draw() override { return cards_.at(next_++); }

  [[nodiscard]] std::size_t Remaining() const { return cards_.size() - next_; }
  [[nodiscard]] int Rounds() const { return rounds_; }

 private:
  std::vector<Card> cards_;
  std::size_t next_ = 0;
  int rounds_ = 0;
};

}  // namespace trainer::engine
