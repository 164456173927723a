#include "tactix-qt/QtTimers.h"

#include <QTimerEvent>
#include <algorithm>

#include "tactix-qt/WaitLoop.h"
#include "tactix/platform/Timer.h"

namespace tactix::qt {

namespace {

TickSource* ticks = nullptr;

}  // namespace

void QtTimers::TicksFrom(TickSource* source) { ticks = source; }

TickSource* QtTimers::Ticks() { return ticks; }

void QtTimers::Start(Timer& timer) {
  Stop(timer);
  // Qt's interval 0 would run without ever sleeping, and a timer ticks until it is disabled.
  const int interval = std::max(timer.Interval(), 1);
  running_.push_back({&timer, ticks, ticks ? ticks->Start(*this, interval) : startTimer(interval, Qt::PreciseTimer)});
}

void QtTimers::End(const Running& running) {
  running.source ? running.source->Stop(running.id) : killTimer(running.id);
}

void QtTimers::Stop(const Timer& timer) {
  for (auto at = running_.begin(); at != running_.end(); ++at) {
    if (at->timer != &timer) continue;
    End(*at);
    running_.erase(at);
    return;
  }
}

void QtTimers::StopAll() {
  for (const Running& running : running_) End(running);
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
