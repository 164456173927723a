#pragma once

#include <QRadioButton>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/OptionButton.h"

namespace tactix::qt {

/// A radio button whose caption wraps and shrinks instead of being cut. Its child widget decides whether it is marked;
/// Qt does not unmark others. It takes clicks on its whole area.
class TACTIX_QT_EXPORT OptionButtonPeer final : public NativePeer<QRadioButton, OptionButton> {
 public:
  OptionButtonPeer(OptionButton& button, QtSite& site, QWidget* parent);

  /// Where its text is drawn; for tests.
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  bool event(QEvent* event) override;
  void nextCheckState() override {}
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void paintEvent(QPaintEvent* event) override;

 private:
  void Click();
  QRect TextRoom() const;
  int TextFlags() const;

  FittedText fitted_;
};

}  // namespace tactix::qt
