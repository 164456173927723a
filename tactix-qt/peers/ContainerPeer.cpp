#include "tactix-qt/peers/ContainerPeer.h"

#include <QPainter>

#include "tactix-qt/Convert.h"

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

void ContainerPeer::paintEvent(QPaintEvent*) {
  // Painted here and not set in the palette, which the child widgets would inherit.
  if (Model() && !IsSystemColor(Model()->BackColor())) QPainter(this).fillRect(rect(), ToQt(Model()->BackColor()));
}

}  // namespace tactix::qt
