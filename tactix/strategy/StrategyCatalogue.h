#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <type_traits>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"

namespace tactix {

/// How far the catalogue's numbers go. Ten bytes; the lists use the first four.
struct StrategyRange {
  std::int16_t HighestBettingStrategy = 0;
  std::int16_t HighestPlayingStrategy = 0;
  std::array<std::uint8_t, 6> Unused{};

  bool operator==(const StrategyRange&) const = default;
};
static_assert(sizeof(StrategyRange) == 10 && std::is_trivially_copyable_v<StrategyRange>);

/// The application's strategies, described in texts that the lists take apart. The host supplies it, or
/// companion::Install does. Playing and betting strategies are numbered from -1 (the empty seat) up; count systems have
/// a table and a numbering of their own. Numbers should be without gaps: a compact list and a list of betting
/// strategies leave rows out where nothing is described, and report a row's place as its number, so that every row
/// behind a gap stands for a lower number than it was described under.
///
/// A catalogue overrides GetStrategyRange, and of the descriptions those that it has. DescribePlayingStrategy and
/// DescribeCountSystem are the same as the two DescribeStrategy, but do not hide each other.
///
/// Any call may fail with an Error, throw something else, call back into the list that asks, destroy the list or its
/// window, and put another catalogue in this one's place; the list keeps the catalogue until its answer is there.
class TACTIX_EXPORT StrategyCatalogue {
 public:
  virtual ~StrategyCatalogue();

  /// A playing strategy: "note,caption,shifted present", shifted and present as texts of flags ("True", "False"). Empty
  /// when the slot is empty. May write to the number.
  virtual std::string DescribeStrategy(std::int16_t& number) { return DescribePlayingStrategy(number); }
  /// A betting strategy: "note,caption,1" or "note,caption,0" for a strategy that is not present; a "\" behind that
  /// marks a description that is stored shifted.
  virtual std::string DescribeBettingStrategy(std::int16_t& number);
  /// A count system, 11 to 38: "description,caption,shifted listed n n n n " with four whole numbers and one blank
  /// after the last. Empties the text when there is none.
  virtual void DescribeStrategy(std::int16_t number, std::string& text) { text = DescribeCountSystem(number); }
  /// What DescribeStrategy describes, without a way to write to the number. Empty by default.
  virtual std::string DescribePlayingStrategy(std::int16_t number);
  virtual std::string DescribeCountSystem(std::int16_t number);

  virtual StrategyRange GetStrategyRange() = 0;
  /// Called once for each fill of a count strategy list.
  virtual void AttachCountStrategyStore(const ObjectRef& store);
};

}  // namespace tactix
