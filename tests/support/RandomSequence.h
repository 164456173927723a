#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#if defined(__unix__)
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#endif

namespace tactix::tests {

/// The same numbers from the same seed with every compiler and library.
class SequenceRandom {
 public:
  explicit SequenceRandom(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = state_;
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
  }
  /// 0 ... bound-1.
  std::uint32_t Below(std::uint32_t bound) { return static_cast<std::uint32_t>(Next() % bound); }
  /// low ... high.
  std::int32_t Between(std::int32_t low, std::int32_t high) {
    return low + static_cast<std::int32_t>(Below(static_cast<std::uint32_t>(high - low + 1)));
  }
  bool OneIn(std::uint32_t chances) { return Below(chances) == 0; }

 private:
  std::uint64_t state_;
};

/// Drives fixtures with random operations and checks an invariant after each. Each operation draws what it needs from
/// the generator it is given, so that a step does the same wherever it stands in a sequence. It fails when an operation
/// throws, or the invariant returns a text; the failure then names the seed and the shortest sequence that still fails.
///
///   RandomSequence<Probe> sequence([] { return std::make_unique<Probe>(); });
///   sequence.Add("click", 3, [](Probe& probe, SequenceRandom&) { probe.button.Click(); });
///   sequence.Always([](Probe& probe) { return probe.row < 9 ? "" : "the row is too high"; });
///   EXPECT_TRUE(sequence.Run(20240501, 100'000));
///
/// A crash cannot be shrunk from inside. Run such a test again with TACTIX_ISOLATE=1 in the environment: sequences then
/// run in child processes, and a child that dies counts as a failure too (leaks are not looked for in that mode).
template <class Fixture>
class RandomSequence {
 public:
  using Operation = std::function<void(Fixture&, SequenceRandom&)>;
  using Invariant = std::function<std::string(Fixture&)>;

  explicit RandomSequence(std::function<std::unique_ptr<Fixture>()> makeFixture) : make_(std::move(makeFixture)) {}

  /// Adds an operation that is drawn in proportion to its weight.
  void Add(std::string name, std::uint32_t weight, Operation run) {
    operations_.push_back({std::move(name), weight, std::move(run)});
  }
  /// What must hold after every step: an empty text when it does, what is wrong otherwise.
  void Always(Invariant invariant) { invariants_.push_back(std::move(invariant)); }

  /// Runs that many operations, each `perFixture` of them on a fresh fixture.
  testing::AssertionResult Run(std::uint64_t seed, std::size_t count, std::size_t perFixture = 1000) const {
    SequenceRandom random(seed);
    while (count > 0) {
      std::vector<Step> steps(std::min(count, perFixture));
      for (Step& step : steps) step = {Draw(random), random.Next()};
      count -= steps.size();
      const Failure failure = Replay(steps);
      if (failure.what.empty()) continue;
      steps.resize(std::min(steps.size(), failure.at + 1));
      return Report(seed, Shrink(std::move(steps)));
    }
    return testing::AssertionSuccess();
  }

 private:
  struct Named {
    std::string name;
    std::uint32_t weight;
    Operation run;
  };
  struct Step {
    std::size_t operation;
    std::uint64_t seed;
  };
  struct Failure {
    std::string what;  // empty: none
    std::size_t at = 0;
  };

  std::size_t Draw(SequenceRandom& random) const {
    std::uint32_t total = 0;
    for (const Named& operation : operations_) total += operation.weight;
    std::uint32_t left = random.Below(total);
    std::size_t index = 0;
    while (left >= operations_[index].weight) left -= operations_[index++].weight;
    return index;
  }

  Failure Replay(const std::vector<Step>& steps) const {
#if defined(__unix__)
    if (std::getenv("TACTIX_ISOLATE")) return ReplayIsolated(steps);
#endif
    std::size_t at = 0;
    return {ReplayHere(steps, at), at};
  }

  std::string ReplayHere(const std::vector<Step>& steps, std::size_t& at) const {
    at = 0;
    try {
      const std::unique_ptr<Fixture> fixture = make_();
      for (; at < steps.size(); ++at) {
        SequenceRandom random(steps[at].seed);
        operations_[steps[at].operation].run(*fixture, random);
        for (const Invariant& invariant : invariants_) {
          if (std::string wrong = invariant(*fixture); !wrong.empty()) return wrong;
        }
      }
      return {};
    } catch (const std::exception& exception) {
      return std::string("threw: ") + exception.what();
    }
  }

#if defined(__unix__)
  Failure ReplayIsolated(const std::vector<Step>& steps) const {
    struct Shared {
      std::size_t at;
      char what[500];
    };
    void* const memory = mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto* const shared = new (memory) Shared{};
    const pid_t child = fork();
    if (child == 0) {
      const std::string what = ReplayHere(steps, shared->at);
      std::strncpy(shared->what, what.c_str(), sizeof(shared->what) - 1);
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    Failure failure{shared->what, shared->at};
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) failure.what = "the process died";
    munmap(memory, sizeof(Shared));
    return failure;
  }
#endif

  /// Leaves parts out, ever smaller ones, as long as what is left still fails.
  std::vector<Step> Shrink(std::vector<Step> steps) const {
    for (std::size_t part = steps.size(); part > 0; part = part == 1 ? 0 : (part + 1) / 2) {
      for (bool shrunk = true; shrunk;) {
        shrunk = false;
        for (std::size_t from = 0; from < steps.size() && steps.size() > 1;) {
          std::vector<Step> rest(steps);
          const std::size_t to = std::min(from + part, steps.size());
          using Offset = typename std::vector<Step>::difference_type;
          rest.erase(rest.begin() + static_cast<Offset>(from), rest.begin() + static_cast<Offset>(to));
          const Failure failure = rest.empty() ? Failure{} : Replay(rest);
          if (failure.what.empty()) {
            from = to;
            continue;
          }
          rest.resize(std::min(rest.size(), failure.at + 1));
          steps = std::move(rest);
          shrunk = true;
        }
      }
    }
    return steps;
  }

  testing::AssertionResult Report(std::uint64_t seed, const std::vector<Step>& steps) const {
    const Failure failure = Replay(steps);
    auto result = testing::AssertionFailure();
    result << failure.what << "\nseed " << seed << ", shrunk to " << steps.size() << " steps:";
    for (const Step& step : steps) {
      result << "\n  " << operations_[step.operation].name << " (" << step.seed << ")";
    }
    return result;
  }

  std::function<std::unique_ptr<Fixture>()> make_;
  std::vector<Named> operations_;
  std::vector<Invariant> invariants_;
};

}  // namespace tactix::tests
