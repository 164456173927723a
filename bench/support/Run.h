#pragma once

#include <limits>
#include <span>
#include <string_view>

namespace tactix::bench {

inline constexpr double NoLimit = std::numeric_limits<double>::infinity();

/// A figure of the closing table and what it may be at most. The time of a benchmark is the processor time of one
/// round, median over the repetitions.
struct Figure {
  std::string_view what;
  std::string_view benchmark;
  /// The benchmark by whose time that time is divided; empty for the time itself.
  std::string_view beside = {};
  /// The counter that is meant instead of the time.
  std::string_view counter = {};
  /// In nanoseconds for a time.
  double most = NoLimit;
};

/// Runs the program's benchmarks, several times each and interleaved, and prints the figures behind them. Answers the
/// program's exit code: with --check among the arguments, 1 when a figure is missing or over its limit.
int Run(int argc, char** argv, std::span<const Figure> figures);

}  // namespace tactix::bench
