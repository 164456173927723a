#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/@ROOM@/@NAME@.h"

namespace tactix::qt {

/// A number to click as a widget, see WidgetOf and tactix::@NAME@.
class TACTIX_QT_EXPORT @NAME@ : public WidgetOf<tactix::@NAME@> {
  Q_OBJECT
  Q_PROPERTY(int Value READ Value WRITE setValue)

 public:
  explicit @NAME@(QWidget* parent = nullptr);
  ~@NAME@() override;

  /// The number, 0 by default; fails with 6 beyond 16 bits.
  int Value() const;

 public Q_SLOTS:
  void setValue(int value);
  void Value(int value) { setValue(value); }

 Q_SIGNALS:
  /// After each change.
  void ValueChanged(int value);
};

}  // namespace tactix::qt
