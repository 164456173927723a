#include "tactix-qt/WaitLoop.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>

namespace tactix::qt {

namespace {

WaitLoop* innermost = nullptr;

}  // namespace

void WaitLoop::Run() {
  if (done_()) return;
  QEventLoop loop;
  loop_ = &loop;
  outer_ = innermost;
  innermost = this;
  QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, [this] {
    if (innermost == this) Check();
  });
  loop.exec();
  innermost = outer_;
  loop_ = nullptr;
  Recheck();
}

void WaitLoop::Recheck() {
  if (innermost) innermost->Check();
}

void WaitLoop::Check() {
  // Once only: each quit() wakes the dispatcher, which would keep a loop that runs inside this one from sleeping.
  if (ended_ || !done_()) return;
  ended_ = true;
  loop_->quit();
}

}  // namespace tactix::qt
