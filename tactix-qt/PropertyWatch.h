#pragma once

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>
#include <map>

#include "tactix/platform/Weak.h"

namespace tactix::qt {

class ControlWidget;

/// Emits the NOTIFY signals of a widget's properties. It keeps the value of each property whose signal is connected,
/// compares it whenever something may have changed, and costs nothing while none is connected.
class PropertyWatch : public Trackable {
 public:
  explicit PropertyWatch(ControlWidget& widget) : widget_(widget) {}

  /// Watches the properties that the signal belongs to; signals of no property are passed over.
  void Add(const QMetaMethod& signal);
  /// A signal has lost a listener. Looked into later: Qt holds a lock of its own while it says so.
  void ListenerGone() { mayBeUnheard_ = true; }
  /// Forgets all of them: the control ends.
  void Stop() { watched_.clear(); }

  /// Emits the signals of the properties that have changed. Their handlers may do anything, destroying the widget
  /// included.
  void Compare();
  /// Does so once the event loop runs: for changes in the middle of something that must not be disturbed.
  void CompareLater();

  /// Whether a value is being read for comparison. What fails in that concerns nobody.
  bool IsReading() const { return reading_; }

 private:
  /// Forgets the properties whose signal nothing hears any more.
  void ForgetTheUnheard();
  QVariant Read(int index);
  void Emit(int index, const QVariant& value);

  ControlWidget& widget_;
  /// By the properties' indices.
  std::map<int, QVariant> watched_;
  bool reading_ = false;
  bool comparisonIsPosted_ = false;
  bool mayBeUnheard_ = false;
};

}  // namespace tactix::qt
