#include "tactix-qt/peers/SpinButtonPeer.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QWheelEvent>
#include <cstdint>
#include <cstdlib>
#include <exception>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"
#include "tactix/counting/SpinCounter.h"
#include "tactix/platform/UserAction.h"

namespace tactix::qt {

namespace {

/// The lowest number that stepping down reaches where negative numbers are allowed.
constexpr int LowestNegative = -999;

}  // namespace

SpinButtonPeer::SpinButtonPeer(SpinButton& spin, QtSite& site, QWidget* parent)
    : NativePeer(spin, site, parent),
      up_(
          Qt::UpArrow, [this] { StepUp(); }, this),
      down_(
          Qt::DownArrow, [this] { StepDown(); }, this) {
  // A mouse press does not give it the focus: the spin does.
  setFocusPolicy(Qt::TabFocus);
  up_.setObjectName(QStringLiteral("UpButton"));
  down_.setObjectName(QStringLiteral("DownButton"));
  if (SpinCounter* counter = Counter()) {
    numberChanged_ = counter->Events.CounterValueHasChanged.Connect([this](const std::int16_t& number) {
      QAccessibleValueChangeEvent changed(this, int{number});
      QAccessible::updateAccessibility(&changed);
    });
  }
}

SpinCounter* SpinButtonPeer::Counter() const {
  const Extender* const owner = Model() ? Model()->Owner() : nullptr;
  return owner ? dynamic_cast<SpinCounter*>(&owner->ItsControl()) : nullptr;
}

QVariant SpinButtonPeer::Number() const {
  SpinCounter* const counter = Counter();
  if (!counter) return {};
  try {
    return int{counter->CounterValue()};
  } catch (const std::exception&) {
    // The reader has only asked: nobody is told that the host supplies no number.
    return {};
  }
}

void SpinButtonPeer::Number(int number) {
  SpinCounter* const counter = Counter();
  if (!counter || !Model()->Usable() || number < LowestNumber().toInt() || number > HighestNumber().toInt()) return;
  const HandlerScope scope;
  RunUserAction(counter->ItsSite(), [&] { counter->CounterValue(static_cast<std::int16_t>(number)); });
}

QVariant SpinButtonPeer::LowestNumber() const {
  const SpinCounter* const counter = Counter();
  return counter ? QVariant(counter->AllowNegNumbers() ? LowestNegative : 0) : QVariant();
}

QVariant SpinButtonPeer::HighestNumber() const {
  const SpinCounter* const counter = Counter();
  return counter ? QVariant(int{counter->MaximumLimit()}) : QVariant();
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
