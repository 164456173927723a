#pragma once

#include <QLabel>

#include "tactix-qt/FittedText.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Label.h"

namespace tactix::qt {

/// A label whose text wraps and shrinks instead of being cut, also where the control leaves only a part of it in sight.
/// One that takes clicks is clicked by a press and a release on it and is underlined under the mouse; any other leaves
/// the mouse to its parent.
///
/// Labels that take clicks are reached from the focus of their control by the arrow keys, Home and End, and pressed by
/// Space and Enter; Tab does not stop at them. Two such labels of one name, a sign and a word, are one element.
class TACTIX_QT_EXPORT LabelPeer final : public NativePeer<QLabel, Label> {
 public:
  LabelPeer(Label& label, QtSite& site, QWidget* parent);

  bool IsClickable() const { return Model() && Model()->TakesClicks(); }
  /// The user clicks it.
  void Click();

  /// The label before this one that is the sign of the same element; null where there is none.
  const Label* Sign() const;
  /// Whether it is such a sign itself.
  bool IsSign() const;
  /// Whether any of it lies inside its parent.
  bool IsInSight() const { return rect().intersects(parentWidget()->rect().translated(-pos())); }

  /// Moves the focus among the elements that take clicks in a control, from one of them or, with null, from the
  /// control, and accepts the event; leaves other keys alone.
  static void MoveFocus(QKeyEvent& event, const Widget& control, const LabelPeer* from);

  /// Where its text is drawn; for tests.
  QRect TextRect();

 protected:
  void Update(Aspect aspect) override;
  bool TakesMouse() const override { return IsClickable(); }
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override { update(); }
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect TextRoom() const;
  int TextFlags() const;
  void Announce();

  FittedText fitted_;
};

}  // namespace tactix::qt
