#pragma once

#include <cstdint>
#include <initializer_list>

namespace trainer::engine {

/// The numbers are those that the trainer's records and its decision controls use.
enum class Decision : std::uint8_t { Hit = 1, Stand = 2, Split = 3, Double = 4, Surrender = 5 };

/// The plays that a hand may make now, as a set.
class LegalPlays {
 public:
  constexpr LegalPlays() = default;
  constexpr LegalPlays(std::initializer_list<Decision> plays) {
    for (const Decision play : plays) Add(play);
  }

  constexpr void Add(Decision play) { bits_ |= BitOf(play); }
  [[nodiscard]] constexpr bool Allows(Decision play) const { return (bits_ & BitOf(play)) != 0; }
  [[nodiscard]] constexpr bool IsEmpty() const { return bits_ == 0; }

  bool operator==(const LegalPlays&) const = default;

 private:
  static constexpr std::uint32_t BitOf(Decision play) {
    const auto number = static_cast<std::uint32_t>(play);
    // A number that is no decision has no bit, so it is never legal.
    return number >= 1 && number <= 5 ? 1U << number : 0U;
  }

  std::uint32_t bits_ = 0;
};

}  // namespace trainer::engine
