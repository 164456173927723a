#include "trainer/engine/Card.h"

#include <cstddef>
#include <string_view>

namespace trainer::engine {

std::string NameOf(Card card) {
  constexpr std::string_view RankLetters = "A23456789TJQK";
  constexpr std::string_view SuitLetters = "cdhs";
  return {RankLetters[static_cast<std::size_t>(card.rank) - 1], SuitLetters[static_cast<std::size_t>(card.suit)]};
}

}  // namespace trainer::engine
