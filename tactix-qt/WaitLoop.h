#pragma once

#include <functional>

#include "tactix-qt/Export.h"

class QEventLoop;

namespace tactix::qt {

/// Runs the event loop, asleep between events, until a condition holds or the application quits. Nests.
class TACTIX_QT_EXPORT WaitLoop {
 public:
  explicit WaitLoop(const std::function<bool()>& done) : done_(done) {}
  WaitLoop(const WaitLoop&) = delete;
  WaitLoop& operator=(const WaitLoop&) = delete;

  void Run();

  /// Looks at the innermost wait's condition now instead of when the events run out.
  static void Recheck();

 private:
  void Check();

  const std::function<bool()>& done_;
  QEventLoop* loop_ = nullptr;
  WaitLoop* outer_ = nullptr;
  bool ended_ = false;
};

}  // namespace tactix::qt
