#include "tactix-qt/peers/AccessibleParts.h"

#include <vector>

#include "tactix-qt/peers/AccessibleNames.h"
#include "tactix-qt/peers/AccessibleTree.h"
#include "tactix-qt/peers/Peer.h"

namespace tactix::qt {

QAccessibleInterface* AccessiblePart::parent() const {
  return QAccessible::queryAccessibleInterface(ExposedParent(*widget()));
}

int AccessiblePart::childCount() const { return static_cast<int>(ExposedChildren(*widget()).size()); }

QAccessibleInterface* AccessiblePart::child(int index) const {
  const std::vector<QWidget*> children = ExposedChildren(*widget());
  const auto place = static_cast<std::size_t>(index);
  return place < children.size() ? QAccessible::queryAccessibleInterface(children[place]) : nullptr;
}

int AccessiblePart::indexOfChild(const QAccessibleInterface* child) const {
  const std::vector<QWidget*> children = ExposedChildren(*widget());
  for (std::size_t i = 0; i < children.size(); ++i) {
    if (child && child->object() == children[i]) return static_cast<int>(i);
  }
  return -1;
}

QString AccessiblePart::OwnName() const {
  const auto* const peer = dynamic_cast<const Peer*>(widget());
  return peer ? SpokenNameOf(*peer) : QString();
}

QString AccessiblePart::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
  return widget()->accessibleName().isEmpty() ? OwnName() : widget()->accessibleName();
}

QAccessible::State AccessiblePart::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  if (!IsExposed(*widget()) && !widget()->hasFocus()) state.invisible = true;
  return state;
}

void AccessiblePart::AfterTheCall(const std::function<void()>& action) {
  QMetaObject::invokeMethod(widget(), action, Qt::QueuedConnection);
}

QStringList PressablePart::actionNames() const {
  QStringList names = AccessiblePart::actionNames();
  if (CanBePressed()) names.prepend(pressAction());
  return names;
}

void PressablePart::doAction(const QString& name) {
  if (name != pressAction()) return AccessiblePart::doAction(name);
  if (CanBePressed()) AfterTheCall(Press());
}

}  // namespace tactix::qt
