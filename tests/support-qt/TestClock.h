#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <cstdint>
#include <functional>
#include <vector>

#include "tactix-qt/QtTimers.h"

namespace tactix::tests {

/// The time by which the controls' timers tick as long as it lives, and by which a test does things. It stands still
/// while there is anything else to do and leaps to what is due next when an event loop would sleep. So no test waits
/// for it, and what happens in which order does not depend on the machine.
///
/// Timers of Qt's own, QTimer among them, are not touched: they know nothing of it.
class TestClock final : public QObject, private qt::TickSource {
 public:
  TestClock();
  ~TestClock() override;

  /// Milliseconds since it was made.
  std::int64_t Now() const { return now_; }
  /// Does something that many milliseconds from now, in the middle of a wait too; never once the clock is gone.
  void After(std::int64_t milliseconds, std::function<void()> action);
  /// Lets time pass.
  void Wait(std::int64_t milliseconds);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  struct Due {
    std::int64_t at;
    std::uint64_t order;
    std::function<void()> action;  // empty for ticks
    QPointer<QObject> receiver;
    std::int64_t interval;
    int id;
  };

  int Start(QObject& receiver, int milliseconds) override;
  void Stop(int id) override;
  void RunNext();

  std::vector<Due> due_;
  QBasicTimer idle_;
  std::int64_t now_ = 0;
  std::uint64_t order_ = 0;
  int lastId_ = 0;
};

}  // namespace tactix::tests
