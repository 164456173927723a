#pragma once

#include <QAccessibleWidget>
#include <QWidget>
#include <functional>

#include "tactix-qt/Export.h"

namespace tactix::qt {

/// What a screen reader hears of a ControlWidget or of a widget inside one. See AccessibleNames and AccessibleTree.
class TACTIX_QT_EXPORT AccessiblePart : public QAccessibleWidget {
 public:
  AccessiblePart(QWidget& native, QAccessible::Role role) : QAccessibleWidget(&native, role) {}

  QAccessibleInterface* parent() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

  /// The host's name for it comes first.
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;

 protected:
  /// Its name where the host has given it none.
  virtual QString OwnName() const;

  /// Runs an action of the reader's once the reader has got its answer, since an action may take long or end the
  /// control. The function may run after this object is gone.
  void AfterTheCall(const std::function<void()>& action);
};

/// One that a screen reader can press.
class TACTIX_QT_EXPORT PressablePart : public AccessiblePart {
 public:
  using AccessiblePart::AccessiblePart;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;

 protected:
  virtual bool CanBePressed() const { return widget()->isEnabled(); }
  /// What a press does to the widget.
  virtual std::function<void()> Press() const = 0;
};

}  // namespace tactix::qt
