#pragma once

#include <QFrame>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"

namespace tactix::qt {

/// A Panel, raised and with its caption in the middle, or a Picture, flat and framed.
class TACTIX_QT_EXPORT FramePeer final : public NativePeer<QFrame, Widget> {
 public:
  FramePeer(Widget& widget, QtSite& site, QWidget* parent);

 protected:
  void Update(Aspect aspect) override;
  bool TakesClickFocus() const override { return focusPolicy() != Qt::NoFocus; }
  void paintEvent(QPaintEvent* event) override;

 private:
  FittedText fitted_;
};

}  // namespace tactix::qt
