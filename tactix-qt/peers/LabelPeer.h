#pragma once

#include <QLabel>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Label.h"

namespace tactix::qt {

/// A label whose text wraps and shrinks instead of being cut, also where the control leaves only a part of it in sight.
/// One that takes clicks is clicked by a press and a release on it and is underlined under the mouse; any other leaves
/// the mouse to its parent.
class TACTIX_QT_EXPORT LabelPeer final : public NativePeer<QLabel, Label> {
 public:
  LabelPeer(Label& label, QtSite& site, QWidget* parent);

  bool IsClickable() const { return Model() && Model()->TakesClicks(); }
  /// The user clicks it.
  void Click();

  /// Where its text is drawn; for tests.
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  bool TakesMouse() const override { return IsClickable(); }
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect TextRoom() const;
  int TextFlags() const;

  FittedText fitted_;
};

}  // namespace tactix::qt
