#include "tactix-qt/peers/PeerTree.h"

#include <QWidget>

#include "tactix-qt/peers/ContainerPeer.h"
#include "tactix-qt/peers/FramePeer.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/PushButtonPeer.h"

namespace tactix::qt {

namespace {

QWidget* MakePeer(Widget& widget, QtSite& site, QWidget& parent) {
  const auto make = [](auto* peer) -> QWidget* {
    peer->ShowAll();
    return peer;
  };
  switch (widget.Kind()) {
    case WidgetKind::Extender:
      return make(new ContainerPeer(static_cast<Extender&>(widget), site, &parent));
    case WidgetKind::Panel:
    case WidgetKind::Picture:
      return make(new FramePeer(widget, site, &parent));
    case WidgetKind::PushButton:
      return make(new PushButtonPeer(static_cast<PushButton&>(widget), site, &parent));
    case WidgetKind::Label:
      return make(new LabelPeer(static_cast<Label&>(widget), site, &parent));
    case WidgetKind::ListBox:
      return make(new ListBoxPeer(static_cast<ListBox&>(widget), site, &parent));
  }
  return nullptr;
}

}  // namespace

void MakePeers(Widget& widget, QtSite& site, QWidget& native) {
  for (Widget* child : widget.Children()) {
    if (QWidget* peer = MakePeer(*child, site, native)) MakePeers(*child, site, *peer);
  }
}

void ReleasePeers(QWidget& native) {
  if (auto* peer = dynamic_cast<Peer*>(&native)) peer->Release();
  for (QWidget* child : native.findChildren<QWidget*>()) {
    if (auto* peer = dynamic_cast<Peer*>(child)) peer->Release();
  }
}

QWidget& FocusEntry(QWidget& native) {
  if (native.focusPolicy() != Qt::NoFocus) return native;
  for (QWidget* child : native.findChildren<QWidget*>()) {
    if ((child->focusPolicy() & Qt::TabFocus) && dynamic_cast<Peer*>(child)) return *child;
  }
  return native;
}

}  // namespace tactix::qt
