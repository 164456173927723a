#pragma once

#include <QObject>
#include <vector>

#include "tactix-qt/Export.h"

namespace tactix {
class Timer;
}

namespace tactix::qt {

/// Stands in for Qt's clock, for tests that drive the time of the controls themselves.
class TACTIX_QT_EXPORT TickSource {
 public:
  virtual ~TickSource() = default;
  /// From now on the receiver gets a QTimerEvent with the returned number every so many milliseconds, at least 1, until
  /// Stop. The number is below 0.
  virtual int Start(QObject& receiver, int milliseconds) = 0;
  virtual void Stop(int id) = 0;
};

/// The running timers of one site. Outlives the site by deleteLater, because a tick may destroy the site.
class TACTIX_QT_EXPORT QtTimers final : public QObject {
 public:
  /// From where timers that start from now on tick, on all sites: null for Qt's clock, as at first. The source must
  /// outlive the timers.
  static void TicksFrom(TickSource* source);
  static TickSource* Ticks();

  void Start(Timer& timer);
  void Stop(const Timer& timer);
  void StopAll();

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  struct Running {
    Timer* timer;
    TickSource* source;  // null for Qt's clock
    int id;
  };
  void End(const Running& running);

  std::vector<Running> running_;
};

}  // namespace tactix::qt
