#include "tactix-qt/peers/PeerTree.h"

#include <QWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "tactix-qt/peers/Accessible.h"
#include "tactix-qt/peers/ContainerPeer.h"
#include "tactix-qt/peers/FramePeer.h"
#include "tactix-qt/peers/GroupBoxPeer.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/LinePeer.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/OptionButtonPeer.h"
#include "tactix-qt/peers/PushButtonPeer.h"
#include "tactix-qt/peers/SpinButtonPeer.h"
#include "tactix-qt/peers/ToolBarPeer.h"

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
    case WidgetKind::OptionButton:
      return make(new OptionButtonPeer(static_cast<OptionButton&>(widget), site, &parent));
    case WidgetKind::Label:
      return make(new LabelPeer(static_cast<Label&>(widget), site, &parent));
    case WidgetKind::ListBox:
      return make(new ListBoxPeer(static_cast<ListBox&>(widget), site, &parent));
    case WidgetKind::ToolBar:
      return make(new ToolBarPeer(static_cast<ToolBar&>(widget), site, &parent));
    case WidgetKind::SpinButton:
      return make(new SpinButtonPeer(static_cast<SpinButton&>(widget), site, &parent));
    case WidgetKind::Line:
      return make(new LinePeer(static_cast<Line&>(widget), site, &parent));
    case WidgetKind::Frame:
      return make(new GroupBoxPeer(static_cast<Frame&>(widget), site, &parent));
  }
  return nullptr;
}

void ListInReadingOrder(const Widget& widget, std::vector<QWidget*>& natives) {
  std::vector<Widget*> children(widget.Children().begin(), widget.Children().end());
  std::stable_sort(children.begin(), children.end(), [](const Widget* a, const Widget* b) {
    return std::pair(a->Top(), a->Left()) < std::pair(b->Top(), b->Left());
  });
  for (const Widget* child : children) {
    const Peer* const peer = Peer::Of(*child);
    if (peer && peer->IsTabStop()) natives.push_back(&peer->Native());
    ListInReadingOrder(*child, natives);
  }
}

}  // namespace

void MakePeers(Widget& widget, QtSite& site, QWidget& native) {
  // Before the first native widget: Qt remembers what it has created for a widget.
  InstallAccessibles();
  for (Widget* child : widget.Children()) {
    if (QWidget* peer = MakePeer(*child, site, native)) MakePeers(*child, site, *peer);
  }
}

void OrderTabs(const Widget& widget, QWidget& native) {
  std::vector<QWidget*> natives = {&native};
  ListInReadingOrder(widget, natives);
  // Qt leaves alone what follows in a circle, past all that is no stop: where there are no others in the window yet,
  // the order could begin anywhere.
  const Qt::FocusPolicy policy = native.focusPolicy();
  native.setFocusPolicy(Qt::TabFocus);
  for (std::size_t i = 1; i < natives.size(); ++i) QWidget::setTabOrder(natives[i - 1], natives[i]);
  native.setFocusPolicy(policy);
}

void ReleasePeers(QWidget& native) {
  if (auto* peer = dynamic_cast<Peer*>(&native)) peer->Release();
  for (QWidget* child : native.findChildren<QWidget*>()) {
    if (auto* peer = dynamic_cast<Peer*>(child)) peer->Release();
  }
}

void ShowFonts(QWidget& native) {
  for (QWidget* child : native.findChildren<QWidget*>()) {
    if (auto* peer = dynamic_cast<Peer*>(child)) peer->ShowFont();
  }
}

QWidget& FocusEntry(const Widget& control, QWidget& native) {
  if (native.focusPolicy() != Qt::NoFocus) return native;
  std::vector<QWidget*> natives;
  ListInReadingOrder(control, natives);
  for (QWidget* child : natives) {
    if (child->isVisibleTo(&native) && child->isEnabledTo(&native)) return *child;
  }
  return native;
}

}  // namespace tactix::qt
