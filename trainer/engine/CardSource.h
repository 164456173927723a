#pragma once

#include "trainer/engine/Card.h"

namespace trainer::engine {

/// Where a round takes its cards from: a shoe, or a fixed run of cards for a drill that practises certain hands.
class CardSource {
 public:
  CardSource() = default;
  CardSource(const CardSource&) = default;
  CardSource(CardSource&&) = default;
  CardSource& operator=(const CardSource&) = default;
  CardSource& operator=(CardSource&&) = default;
  virtual ~CardSource() = default;

  /// Called before the first card of a round: the cards drawn earlier have left the table.
  virtual void BeginRound() = 0;

  virtual Card Draw() = 0;
};

}  // namespace trainer::engine
