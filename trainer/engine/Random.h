#pragma once

#include <cstdint>

namespace trainer::engine {

/// A generator whose numbers are the same on every platform for the same seed (SplitMix64: Steele, Lea, Flood, 2014).
/// The distributions of the standard library differ between its implementations, so nothing here uses them.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  [[nodiscard]] std::uint64_t Next();

  /// Evenly distributed in 0 ... `bound` - 1. Throws std::invalid_argument for a bound of 0.
  [[nodiscard]] std::uint64_t Below(std::uint64_t bound);

 private:
  std::uint64_t state_;
};

}  // namespace trainer::engine
