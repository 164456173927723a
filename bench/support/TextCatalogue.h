#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix::bench {

/// A catalogue whose descriptions lie ready: asking it costs a copy.
class TextCatalogue final : public StrategyCatalogue {
 public:
  static constexpr std::int16_t LowestSystem = 11;
  static constexpr std::int16_t HighestSystem = 38;

  /// Describes the empty seat and that many strategies, as playing and as betting strategies, and all count systems.
  explicit TextCatalogue(int strategies) {
    for (int i = -1; i < strategies; ++i) {
      const std::string number = std::to_string(i);
      playing_.push_back("Four to eight decks; the dealer stands on soft 17,Basic Strategy with Departures " + number +
                         ",False True");
      betting_.push_back("The count decides on the size of the bet,One to Twelve Units " + number + ",1");
    }
    for (int i = LowestSystem; i <= HighestSystem; ++i) {
      counts_.push_back("A balanced count of the first level,Advanced Point Count " + std::to_string(i) +
                        ",False True 0 1 1 52 ");
    }
  }

  std::string DescribeStrategy(std::int16_t& number) override { return playing_[Place(number)]; }
  std::string DescribeBettingStrategy(std::int16_t& number) override { return betting_[Place(number)]; }
  void DescribeStrategy(std::int16_t number, std::string& text) override {
    text = counts_[static_cast<std::size_t>(number - LowestSystem)];
  }
  StrategyRange GetStrategyRange() override {
    const auto highest = static_cast<std::int16_t>(playing_.size() - 2);
    return {highest, highest, {}};
  }
  void AttachCountStrategyStore(const ObjectRef&) override {}

 private:
  static std::size_t Place(int number) { return static_cast<std::size_t>(number + 1); }

  std::vector<std::string> playing_;
  std::vector<std::string> betting_;
  std::vector<std::string> counts_;
};

}  // namespace tactix::bench
