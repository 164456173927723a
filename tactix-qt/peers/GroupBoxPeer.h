#pragma once

#include <QGroupBox>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Frame.h"

namespace tactix::qt {

/// A group box. It covers what is under it, and its caption shrinks instead of being cut.
class TACTIX_QT_EXPORT GroupBoxPeer final : public NativePeer<QGroupBox, Frame> {
 public:
  GroupBoxPeer(Frame& frame, QtSite& site, QWidget* parent);

 protected:
  void Update(Aspect aspect) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  FittedText fitted_;
};

}  // namespace tactix::qt
