#include "tactix-qt/peers/SpinButtonPeer.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QWheelEvent>
#include <cstdlib>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"

namespace tactix::qt {

namespace {

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  auto* const peer = dynamic_cast<SpinButtonPeer*>(object);
  return peer ? new QAccessibleWidget(peer, QAccessible::SpinBox) : nullptr;
}

}  // namespace

SpinButtonPeer::SpinButtonPeer(SpinButton& spin, QtSite& site, QWidget* parent)
    : NativePeer(spin, site, parent),
      up_(
          Qt::UpArrow, [this] { Spin(&SpinButton::SpinUp); }, this),
      down_(
          Qt::DownArrow, [this] { Spin(&SpinButton::SpinDown); }, this) {
  static const bool isAccessible = (QAccessible::installFactory(MakeAccessible), true);
  static_cast<void>(isAccessible);
  // A mouse press does not give it the focus: the spin does.
  setFocusPolicy(Qt::TabFocus);
  up_.setAccessibleName(QStringLiteral("Up"));
  down_.setAccessibleName(QStringLiteral("Down"));
  up_.setObjectName(QStringLiteral("UpButton"));
  down_.setObjectName(QStringLiteral("DownButton"));
}

void SpinButtonPeer::Spin(Direction direction) {
  const HandlerScope scope;
  if (Model()) (Model()->*direction)();
}

void SpinButtonPeer::Update(Aspect aspect) {
  if (aspect == Aspect::Colors) {
    QPalette own;
    if (!IsSystemColor(Model()->ForeColor())) own.setColor(QPalette::ButtonText, ToQt(Model()->ForeColor()));
    if (!IsSystemColor(Model()->BackColor())) own.setColor(QPalette::Button, ToQt(Model()->BackColor()));
    setPalette(own);
  }
  Peer::Update(aspect);
}

bool SpinButtonPeer::TakesKey(const QKeyEvent& event) const {
  if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier) return false;
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

void SpinButtonPeer::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  // The unused part of a turn is dropped when the wheel turns the other way.
  if ((turn > 0) != (wheel_ > 0)) wheel_ = 0;
  wheel_ += turn;
  event->accept();
  const HandlerScope scope;
  while (Model() && std::abs(wheel_) >= QWheelEvent::DefaultDeltasPerStep) {
    const bool up = wheel_ > 0;
    wheel_ -= up ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep;
    Spin(up ? &SpinButton::SpinUp : &SpinButton::SpinDown);
  }
}

void SpinButtonPeer::Arrange() {
  const QRect room = InSight();
  const int half = room.height() / 2;
  up_.setGeometry(room.left(), room.top(), room.width(), half);
  down_.setGeometry(room.left(), room.top() + half, room.width(), room.height() - half);
}

void SpinButtonPeer::resizeEvent(QResizeEvent*) { Arrange(); }

void SpinButtonPeer::moveEvent(QMoveEvent*) { Arrange(); }

}  // namespace tactix::qt
