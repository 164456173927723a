#pragma once

#include <benchmark/benchmark.h>

#include <QWidget>
#include <cstddef>
#include <cstdint>

namespace tactix::bench {

/// Whether what has changed is also brought to the screen.
enum class Painting { Left, Done };

/// One of two things that do the same, shown in a window of its own.
class Subject {
 public:
  static constexpr std::size_t Rounds = 30;

  virtual ~Subject() = default;

  /// All rounds once; answers the processor time in seconds.
  double Run(Painting painting);
  /// How often its signal has been heard.
  std::int64_t Heard() const { return heard_; }

 protected:
  virtual QWidget& Window() = 0;
  virtual void SetUp(std::size_t round) = 0;
  /// What the user does then.
  virtual void Act() {}

  void Show();

  std::int64_t heard_ = 0;
};

/// Runs both turn and turn about, so that what else the machine does falls on both alike. The time is the first one's,
/// for one round; the counter "beside" is the median ratio of the two. A round in which a signal was not heard is an
/// error.
void InTurns(benchmark::State& state, Subject& subject, Subject& other, Painting painting);

}  // namespace tactix::bench
