#include "tactix-qt/peers/AccessibleTree.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/MenuPopUp.h"
#include "tactix-qt/peers/AccessibleNames.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/RootPeer.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/platform/widgets/Extender.h"

namespace tactix::qt {

namespace {

/// The spin button says the number.
bool IsNumberOfASpinButton(const Widget& label) {
  const Extender* const owner = label.Owner();
  return owner && dynamic_cast<const SpinCounter*>(&owner->ItsControl());
}

/// Whether a control inside another one consists of a single list, which says it all.
bool IsOneList(const Widget& extender) {
  return extender.Children().size() == 1 && extender.Children().front()->Kind() == WidgetKind::ListBox;
}

bool IsHeard(const LabelPeer& label) {
  // A control may leave labels beyond its edge for later.
  return !label.IsSign() && label.IsInSight() && !IsNumberOfASpinButton(*label.ItsWidget()) &&
         !SpokenNameOf(label).isEmpty();
}

bool IsHeard(const Peer& peer) {
  const Widget* const widget = peer.ItsWidget();
  if (!widget) return false;
  switch (widget->Kind()) {
    case WidgetKind::Label:
      return IsHeard(static_cast<const LabelPeer&>(peer));
    case WidgetKind::Extender:
      return !dynamic_cast<const RootPeer*>(&peer) && !IsOneList(*widget) && !SpokenNameOf(peer).isEmpty();
    case WidgetKind::Panel:
    case WidgetKind::Frame:
      return !SpokenNameOf(peer).isEmpty();
    case WidgetKind::Picture:
    case WidgetKind::Line:
      return false;
    default:
      return true;
  }
}

void Collect(const QWidget& native, std::vector<QWidget*>& exposed) {
  for (QObject* child : native.children()) {
    auto* const widget = qobject_cast<QWidget*>(child);
    if (!widget || widget->isWindow()) continue;
    if (IsExposed(*widget)) {
      exposed.push_back(widget);
    } else if (dynamic_cast<Peer*>(widget)) {
      Collect(*widget, exposed);
    }
  }
}

}  // namespace

bool IsExposed(const QWidget& native) {
  if (const auto* peer = dynamic_cast<const Peer*>(&native)) return IsHeard(*peer);
  // Of what Qt's own widgets consist of, only the buttons of a toolbar.
  const QWidget* const parent = native.parentWidget();
  return !dynamic_cast<const Peer*>(parent) || qobject_cast<const QToolButton*>(&native);
}

std::vector<QWidget*> ExposedChildren(const QWidget& native) {
  std::vector<QWidget*> exposed;
  Collect(native, exposed);
  if (!qobject_cast<const QToolBar*>(&native)) {
    std::stable_sort(exposed.begin(), exposed.end(), [&native](const QWidget* a, const QWidget* b) {
      const QPoint placeOfA = a->mapTo(&native, QPoint());
      const QPoint placeOfB = b->mapTo(&native, QPoint());
      return std::pair(placeOfA.y(), placeOfA.x()) < std::pair(placeOfB.y(), placeOfB.x());
    });
  }
  if (const auto* shell = qobject_cast<const ControlWidget*>(&native)) {
    if (QMenu* menu = MenuPopUp::OpenOn(shell->ItsSite())) exposed.push_back(menu);
  }
  return exposed;
}

QWidget* ExposedParent(const QWidget& native) {
  QWidget* at = native.parentWidget();
  while (at && !IsExposed(*at)) at = at->parentWidget();
  return at;
}

}  // namespace tactix::qt
