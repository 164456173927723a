#pragma once

#include <string_view>

#include "trainer/engine/Card.h"
#include "trainer/engine/Decision.h"
#include "trainer/engine/Hand.h"
#include "trainer/engine/Rules.h"

namespace trainer::engine {

/// A way to play. It keeps no state, so one object advises any number of hands.
class Strategy {
 public:
  Strategy() = default;
  Strategy(const Strategy&) = default;
  Strategy(Strategy&&) = default;
  Strategy& operator=(const Strategy&) = default;
  Strategy& operator=(Strategy&&) = default;
  virtual ~Strategy() = default;

  /// For a list that the player picks from.
  [[nodiscard]] virtual std::string_view Name() const = 0;

  /// The best play of `legal` by this strategy. Throws std::invalid_argument if `legal` is empty.
  [[nodiscard]] Decision Advise(const Hand& hand, Rank upCard, const LegalPlays& legal, const Rules& rules) const;

 private:
  /// May answer with a play that is not legal; Advise() then hits, and where that is not legal either, takes the first
  /// legal play in the order of the decisions' numbers.
  [[nodiscard]] virtual Decision Wish(const Hand& hand, Rank upCard, const LegalPlays& legal,
                                      const Rules& rules) const = 0;
};

/// The play that loses least in the long run, looked up in the chart for the rules (see BasicCharts.h).
class BasicStrategy final : public Strategy {
 public:
  [[nodiscard]] std::string_view Name() const override { return "Basic strategy"; }

 private:
  [[nodiscard]] Decision Wish(const Hand& hand, Rank upCard, const LegalPlays& legal,
                              const Rules& rules) const override;
};

/// Plays like the dealer: draws to 17, to soft 17 too where the dealer does, and never doubles, splits or surrenders.
class MimicTheDealer final : public Strategy {
 public:
  [[nodiscard]] std::string_view Name() const override { return "Mimic the dealer"; }

 private:
  [[nodiscard]] Decision Wish(const Hand& hand, Rank upCard, const LegalPlays& legal,
                              const Rules& rules) const override;
};

/// Never draws a card that could bust the hand: stands on hard 12 and more and on soft 18 and more. Never doubles,
/// splits or surrenders.
class NeverBust final : public Strategy {
 public:
  [[nodiscard]] std::string_view Name() const override { return "Never bust"; }

 private:
  [[nodiscard]] Decision Wish(const Hand& hand, Rank upCard, const LegalPlays& legal,
                              const Rules& rules) const override;
};

}  // namespace trainer::engine
