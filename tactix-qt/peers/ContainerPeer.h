#pragma once

#include <QWidget>

#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Extender.h"

namespace tactix::qt {

/// A control inside another one: a plain widget that holds the child widgets.
class TACTIX_QT_EXPORT ContainerPeer : public NativePeer<QWidget, Extender> {
 public:
  ContainerPeer(Extender& extender, QtSite& site, QWidget* parent);

 protected:
  void Update(Aspect aspect) override;
  bool TakesClickFocus() const override { return focusPolicy() != Qt::NoFocus; }
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tactix::qt
