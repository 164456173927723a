#pragma once

#include <QPushButton>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/PushButton.h"

namespace tactix::qt {

/// A push button whose caption wraps and shrinks instead of being cut.
class TACTIX_QT_EXPORT PushButtonPeer final : public NativePeer<QPushButton, PushButton> {
 public:
  PushButtonPeer(PushButton& button, QtSite& site, QWidget* parent);

  /// Where its text is drawn; for tests.
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Click();
  QRect TextRoom() const;
  int TextFlags() const;

  FittedText fitted_;
};

}  // namespace tactix::qt
