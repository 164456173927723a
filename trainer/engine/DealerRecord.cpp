#include "trainer/engine/DealerRecord.h"

#include <stdexcept>

namespace trainer::engine {

void DealerRecord::Add(const Hand& hand, DealersTurn turn) {
  const auto cards = hand.Cards();
  if (cards.size() < 2) throw std::invalid_argument("a dealer's hand has two cards");
  const Hand firstTwo({cards[0], cards[1]});
  if (firstTwo.IsStiff()) ++stiff_;
  if (firstTwo.Total() >= 17) ++strong_;
  if (turn == DealersTurn::NotNeeded) return;
  if (hand.IsBust()) {
    ++busts_;
  } else {
    ++stood_;
    totals_ += hand.Total();
  }
}

double DealerRecord::BreakPercent() const { return PlayedOut() == 0 ? 0.0 : 100.0 * busts_ / PlayedOut(); }

double DealerRecord::EndingTotal() const { return stood_ == 0 ? 0.0 : static_cast<double>(totals_) / stood_; }

}  // namespace trainer::engine
