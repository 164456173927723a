#pragma once

#include <QVariant>
#include <QWidget>

#include "tactix-qt/peers/ArrowButton.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/widgets/SpinButton.h"

namespace tactix {
class SpinCounter;
}

namespace tactix::qt {

/// A pair of arrow buttons, one above the other, that also turns with the mouse wheel and takes the arrow keys. Where
/// the control leaves only a part of it in sight, both buttons share that part.
class TACTIX_QT_EXPORT SpinButtonPeer final : public NativePeer<QWidget, SpinButton> {
 public:
  SpinButtonPeer(SpinButton& spin, QtSite& site, QWidget* parent);

  void StepUp() { Spin(&SpinButton::SpinUp); }
  void StepDown() { Spin(&SpinButton::SpinDown); }

  // For screen readers: the number of the counter to which it belongs. Where there is none, or the host supplies no
  // number, it reads as nothing.
  bool StepsANumber() const { return Counter() != nullptr; }
  QVariant Number() const;
  void Number(int number);
  QVariant LowestNumber() const;
  QVariant HighestNumber() const;

  /// For tests.
  ArrowButton& UpButton() { return up_; }
  ArrowButton& DownButton() { return down_; }

 protected:
  void Update(Aspect aspect) override;
  bool TakesKey(const QKeyEvent& event) const override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  using Direction = void (SpinButton::*)();

  void Spin(Direction direction);
  SpinCounter* Counter() const;
  void Arrange();

  ArrowButton up_;
  ArrowButton down_;
  int wheel_ = 0;
  ScopedConnection numberChanged_;
};

}  // namespace tactix::qt
