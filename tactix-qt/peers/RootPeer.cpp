#include "tactix-qt/peers/RootPeer.h"

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Convert.h"

namespace tactix::qt {

RootPeer::RootPeer(Extender& extender, ControlWidget& shell)
    : ContainerPeer(extender, shell.ItsSite(), &shell), shell_(shell) {
  Peer::Update(Aspect::Font);
}

void RootPeer::Update(Aspect aspect) {
  const Extender& extender = *Model();
  switch (aspect) {
    case Aspect::Geometry:
      shell_.ExtenderMoved();
      break;
    case Aspect::Visible:
      shell_.setVisible(extender.Visible());
      break;
    case Aspect::Enabled:
      shell_.setEnabled(extender.Enabled());
      break;
    case Aspect::ToolTip:
      shell_.setToolTip(ToQt(extender.ToolTipText()));
      break;
    default:
      ContainerPeer::Update(aspect);
      break;
  }
}

}  // namespace tactix::qt
