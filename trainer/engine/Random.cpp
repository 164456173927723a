#include "trainer/engine/Random.h"

#include <stdexcept>

namespace trainer::engine {

std::uint64_t Random::Next() {
  state_ += 0x9E3779B97F4A7C15U;
  std::uint64_t mixed = state_;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31U);
}

std::uint64_t Random::Below(std::uint64_t bound) {
  if (bound == 0) throw std::invalid_argument("the bound of a random number must be at least 1");
  // The 2^64 mod bound smallest values are skipped; with them the low remainders would come up more often.
  const std::uint64_t firstFair = (0U - bound) % bound;
  std::uint64_t value = Next();
  while (value < firstFair) value = Next();
  return value % bound;
}

}  // namespace trainer::engine
