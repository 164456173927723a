#pragma once

#include <QLabel>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Label.h"

namespace tactix::qt {

class TACTIX_QT_EXPORT LabelPeer final : public NativePeer<QLabel, Label> {
 public:
  LabelPeer(Label& label, QtSite& site, QWidget* parent);

  /// Where its text is drawn; for tests.
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  int TextFlags() const;

  FittedText fitted_;
};

}  // namespace tactix::qt
