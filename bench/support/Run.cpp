#include "bench/support/Run.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tactix::bench {

namespace {

struct Result {
  double nanoseconds = 0;
  std::map<std::string, double, std::less<>> counters;
};

/// Shows the medians and keeps them.
class Medians final : public benchmark::ConsoleReporter {
 public:
  Medians() : ConsoleReporter(OO_Tabular) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    std::vector<Run> shown;
    for (const Run& run : runs) {
      if (run.error_occurred || run.aggregate_name == "median") shown.push_back(run);
      if (run.error_occurred || run.aggregate_name != "median") continue;
      Result& result = results_[run.run_name.function_name];
      const bool byHand = run.run_name.time_type == "manual_time";
      const double time = byHand ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
      result.nanoseconds = time / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
      for (const auto& [name, counter] : run.counters) result.counters[name] = counter.value;
    }
    ConsoleReporter::ReportRuns(shown);
  }

  /// Nothing where a benchmark did not run.
  std::optional<double> ValueOf(const Figure& figure) const {
    const auto found = results_.find(figure.benchmark);
    if (found == results_.end()) return std::nullopt;
    const Result& result = found->second;
    if (!figure.counter.empty()) {
      const auto counter = result.counters.find(figure.counter);
      return counter == result.counters.end() ? std::nullopt : std::optional(counter->second);
    }
    if (figure.beside.empty()) return result.nanoseconds;
    const auto other = results_.find(figure.beside);
    return other == results_.end() ? std::nullopt : std::optional(result.nanoseconds / other->second.nanoseconds);
  }

 private:
  std::map<std::string, Result, std::less<>> results_;
};

std::string TextOf(const Figure& figure, double value) {
  struct Unit {
    double nanoseconds;
    const char* name;
  };
  constexpr Unit Units[] = {{1e6, " ms"}, {1e3, " µs"}, {1, " ns"}};
  const char* name = "";
  if (figure.counter.empty() && figure.beside.empty()) {
    const Unit* unit = std::find_if(std::begin(Units), std::end(Units) - 1,
                                    [value](const Unit& each) { return value >= each.nanoseconds; });
    value /= unit->nanoseconds;
    name = unit->name;
  }
  char digits[32];
  std::snprintf(digits, sizeof digits, "%.3g", value);
  return std::string(digits) + name;
}

/// "µ" is two bytes and one column.
std::string Padded(std::string text, std::size_t columns) {
  const auto continuations = std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) == 0x80; });
  const std::size_t width = text.size() - static_cast<std::size_t>(continuations);
  return std::move(text) + std::string(columns > width ? columns - width : 1, ' ');
}

/// Whether all figures are there and within their limits.
bool Print(std::span<const Figure> figures, const Medians& medians) {
  bool good = true;
  std::printf("\n");
  for (const Figure& figure : figures) {
    const std::optional<double> value = medians.ValueOf(figure);
    std::string line = Padded(std::string(figure.what), 62) + Padded(value ? TextOf(figure, *value) : "missing", 12);
    const bool within = value && *value <= figure.most;
    if (figure.most != NoLimit) {
      line += Padded("limit " + TextOf(figure, figure.most), 15) + (within  ? "ok"
                                                                    : value ? "EXCEEDED"
                                                                            : "NOT MEASURED");
    }
    std::printf("%s\n", line.c_str());
    good = good && within;
  }
  return good;
}

}  // namespace

int Run(int argc, char** argv, std::span<const Figure> figures) {
  // Before the caller's own arguments, which win.
  std::vector<std::string> texts = {argv[0], "--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                                    "--benchmark_enable_random_interleaving=true",
                                    "--benchmark_display_aggregates_only=true"};
  bool checks = false;
  for (int i = 1; i < argc; ++i) {
    if (std::string_view(argv[i]) == "--check") {
      checks = true;
    } else {
      texts.emplace_back(argv[i]);
    }
  }
  std::vector<char*> arguments;
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  int count = static_cast<int>(texts.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  benchmark::Shutdown();
  return Print(figures, medians) || !checks ? 0 : 1;
}

}  // namespace tactix::bench
