#pragma once

#include <cstdint>
#include <vector>

#include "tactix/companion/IniFile.h"
#include "tactix/platform/Export.h"

namespace tactix::companion {

enum class BettingRule : std::uint8_t {
  Flat,            ///< flat: one unit on every hand
  TrueCount,       ///< true-count 1 2 4: the first number up to a count of 1, then one number a count
  WinProgression,  ///< win-progression 1 2 3: the first number, then one number a win in a row, and stays on the last
  WinCycle,        ///< win-cycle 1 3 2 6: likewise, but begins again after the last
};

/// How many units to bet on the next hand.
class TACTIX_EXPORT BettingPlan {
 public:
  static constexpr int MostSteps = 20;
  static constexpr int MostUnits = 1000;

  /// Reads the value of an entry, `plan = true-count 1 2 4`; an error names file and line.
  BettingPlan(const IniFile& file, const IniEntry& entry);

  BettingRule Rule() const { return rule_; }
  /// 1 ... MostUnits. The count is a true count that the host works out, a whole number. `run` is how the last hands
  /// ended: 3 after three wins in a row, -2 after two losses, 0 before the first hand. Pushes leave a run as it is.
  int UnitsFor(int count, int run) const;

  bool operator==(const BettingPlan&) const = default;

 private:
  BettingRule rule_ = BettingRule::Flat;
  std::vector<int> units_;
};

}  // namespace tactix::companion
