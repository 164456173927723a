#pragma once

#include <QFrame>

#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Line.h"

namespace tactix::qt {

class TACTIX_QT_EXPORT LinePeer final : public NativePeer<QFrame, Line> {
 public:
  LinePeer(Line& line, QtSite& site, QWidget* parent);

 protected:
  void Update(Aspect aspect) override;
};

}  // namespace tactix::qt
