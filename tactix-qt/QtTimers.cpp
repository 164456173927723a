#include "tactix-qt/QtTimers.h"

#include <QTimerEvent>
#include <algorithm>

#include "tactix-qt/WaitLoop.h"
#include "tactix/platform/Timer.h"

namespace tactix::qt {

void QtTimers::Start(Timer& timer) {
  Stop(timer);
  // Qt's interval 0 would run without ever sleeping, and a timer ticks until it is disabled.
  running_.push_back({&timer, startTimer(std::max(timer.Interval(), 1), Qt::PreciseTimer)});
}

void QtTimers::Stop(const Timer& timer) {
  for (auto at = running_.begin(); at != running_.end(); ++at) {
    if (at->timer != &timer) continue;
    killTimer(at->id);
    running_.erase(at);
    return;
  }
}

void QtTimers::StopAll() {
  for (const Running& running : running_) killTimer(running.id);
  running_.clear();
}

void QtTimers::timerEvent(QTimerEvent* event) {
  const auto at = std::find_if(running_.begin(), running_.end(),
                               [event](const Running& running) { return running.id == event->timerId(); });
  if (at == running_.end()) return;
  at->timer->Elapse();
  WaitLoop::Recheck();
}

}  // namespace tactix::qt
