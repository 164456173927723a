#include "tests/support-qt/TestClock.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimerEvent>
#include <algorithm>
#include <utility>

#include "tests/support-qt/Gestures.h"

namespace tactix::tests {

TestClock::TestClock() {
  qt::QtTimers::TicksFrom(this);
  // Between the two a loop sleeps, or would but for the timer, which comes after all other events.
  const QAbstractEventDispatcher* const events = QAbstractEventDispatcher::instance();
  connect(events, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
    if (!due_.empty()) idle_.start(0, this);
  });
  connect(events, &QAbstractEventDispatcher::awake, this, [this] { idle_.stop(); });
}

TestClock::~TestClock() {
  // The next test's clock may be there already.
  if (qt::QtTimers::Ticks() == this) qt::QtTimers::TicksFrom(nullptr);
}

void TestClock::After(std::int64_t milliseconds, std::function<void()> action) {
  due_.push_back({now_ + milliseconds, ++order_, std::move(action), nullptr, 0, 0});
}

void TestClock::Wait(std::int64_t milliseconds) {
  QEventLoop loop;
  After(milliseconds, [&loop] { loop.quit(); });
  loop.exec();
  Settle();
}

int TestClock::Start(QObject& receiver, int milliseconds) {
  // Below 0, where Qt's own are not.
  due_.push_back({now_ + milliseconds, ++order_, {}, &receiver, milliseconds, --lastId_});
  return lastId_;
}

void TestClock::Stop(int id) {
  std::erase_if(due_, [id](const Due& due) { return due.id == id; });
}

void TestClock::timerEvent(QTimerEvent*) {
  idle_.stop();
  RunNext();
}

void TestClock::RunNext() {
  const auto next = std::min_element(due_.begin(), due_.end(), [](const Due& a, const Due& b) {
    return std::pair(a.at, a.order) < std::pair(b.at, b.order);
  });
  if (next == due_.end()) return;
  now_ = std::max(now_, next->at);
  if (next->action) {
    const auto action = std::move(next->action);
    due_.erase(next);
    return action();
  }
  next->at += next->interval;
  next->order = ++order_;
  QTimerEvent tick(next->id);
  if (QObject* const receiver = next->receiver) QCoreApplication::sendEvent(receiver, &tick);
}

}  // namespace tactix::tests
