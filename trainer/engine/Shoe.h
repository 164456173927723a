#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "trainer/engine/Card.h"
#include "trainer/engine/CardSource.h"
#include "trainer/engine/Random.h"

namespace trainer::engine {

/// Whole decks in random order, with a cut card. The same seed and the same calls give the same cards everywhere.
///
/// A shoe that runs out within a round shuffles the discards, which are the cards drawn before the last BeginRound(),
/// and goes on with them. The cards on the table, drawn since then, stay out, so no card is ever there twice.
class Shoe final : public CardSource {
 public:
  static constexpr int MinimumDecks = 1;
  static constexpr int MaximumDecks = 8;
  static constexpr double MinimumPenetration = 0.1;
  static constexpr double MaximumPenetration = 0.95;
  static constexpr double DefaultPenetration = 0.75;

  /// Shuffled and ready to deal. `penetration` is the fraction of the cards that lies before the cut card.
  /// Throws std::invalid_argument for decks outside 1 ... 8 or a penetration outside 0.1 ... 0.95.
  Shoe(int decks, std::uint64_t seed, double penetration = DefaultPenetration);

  void BeginRound() override { tableBegin_ = next_; }

  /// Throws std::runtime_error if the shoe is empty and every card of it is on the table.
  Card Draw() override;

  /// True from the moment the cut card is next until Shuffle(). A shuffle of the discards within a round leaves it
  /// true: that round is still the last one.
  [[nodiscard]] bool NeedsShuffle() const { return cutCardIsOut_; }

  /// Draws the next card and puts it with the discards: it is not part of the round, and a shoe that runs out shuffles
  /// it in again.
  Card Burn();

  /// Takes all cards back, those on the table too.
  void Shuffle();

  [[nodiscard]] int Decks() const { return decks_; }
  [[nodiscard]] std::size_t RemainingCount() const { return cards_.size() - next_; }
  [[nodiscard]] std::size_t DealtCount() const { return next_; }

  /// The cards out of the shoe, oldest first, a dealer's hole card among them: discards and cards on the table; after a
  /// shuffle within a round only those on the table. Valid until the next call of Draw() or Shuffle().
  [[nodiscard]] std::span<const Card> Dealt() const { return {cards_.data(), next_}; }

 private:
  void ShuffleFrom(std::size_t first);
  void ShuffleDiscards();

  int decks_;
  Random random_;
  std::vector<Card> cards_;
  std::size_t cutPosition_;
  std::size_t next_ = 0;
  std::size_t tableBegin_ = 0;
  bool cutCardIsOut_ = false;
};

}  // namespace trainer::engine
