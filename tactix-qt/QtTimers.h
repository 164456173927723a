#pragma once

#include <QObject>
#include <vector>

#include "tactix-qt/Export.h"

namespace tactix {
class Timer;
}

namespace tactix::qt {

/// The running timers of one site. Outlives the site by deleteLater, because a tick may destroy the site.
class TACTIX_QT_EXPORT QtTimers final : public QObject {
 public:
  void Start(Timer& timer);
  void Stop(const Timer& timer);
  void StopAll();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  struct Running {
    Timer* timer;
    int id;
  };
  std::vector<Running> running_;
};

}  // namespace tactix::qt
