#include "tactix-qt/peers/FramePeer.h"

#include <QPainter>

#include "tactix-qt/Convert.h"

namespace tactix::qt {

FramePeer::FramePeer(Widget& widget, QtSite& site, QWidget* parent) : NativePeer(widget, site, parent) {
  if (widget.Kind() == WidgetKind::Panel) {
    setFrameStyle(int{QFrame::Panel} | int{QFrame::Raised});
    setLineWidth(1);
  } else {
    setFrameStyle(int{QFrame::StyledPanel} | int{QFrame::Plain});
  }
  if (widget.HasKeyMap()) setFocusPolicy(Qt::TabFocus);
}

void FramePeer::Update(Aspect aspect) {
  if (aspect == Aspect::Colors) {
    update();
  } else {
    Peer::Update(aspect);
  }
}

void FramePeer::paintEvent(QPaintEvent* event) {
  // Not by the palette: the child widgets would inherit it.
  if (Model() && !IsSystemColor(Model()->BackColor())) QPainter(this).fillRect(rect(), ToQt(Model()->BackColor()));
  QFrame::paintEvent(event);
}

}  // namespace tactix::qt
