#include "tactix-qt/peers/ContainerPeer.h"

#include <QKeyEvent>
#include <QPainter>

#include "tactix-qt/Convert.h"
#include "tactix-qt/peers/LabelPeer.h"

namespace tactix::qt {

ContainerPeer::ContainerPeer(Extender& extender, QtSite& site, QWidget* parent) : NativePeer(extender, site, parent) {
  if (extender.HasKeyMap()) setFocusPolicy(Qt::TabFocus);
}

void ContainerPeer::Update(Aspect aspect) {
  if (aspect == Aspect::Colors) {
    update();
  } else {
    Peer::Update(aspect);
  }
}

void ContainerPeer::keyPressEvent(QKeyEvent* event) {
  if (!Model()) return event->ignore();
  LabelPeer::MoveFocus(*event, *Model(), nullptr);
}

void ContainerPeer::paintEvent(QPaintEvent*) {
  // Painted here and not set in the palette, which the child widgets would inherit.
  if (Model() && !IsSystemColor(Model()->BackColor())) QPainter(this).fillRect(rect(), ToQt(Model()->BackColor()));
}

}  // namespace tactix::qt
