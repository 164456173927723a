#include "tactix-qt/peers/LinePeer.h"

namespace tactix::qt {

LinePeer::LinePeer(Line& line, QtSite& site, QWidget* parent) : NativePeer(line, site, parent) {
  setFrameShadow(QFrame::Sunken);
}

void LinePeer::Update(Aspect aspect) {
  if (aspect == Aspect::Geometry) setFrameShape(Model()->Width() < Model()->Height() ? QFrame::VLine : QFrame::HLine);
  Peer::Update(aspect);
}

}  // namespace tactix::qt
