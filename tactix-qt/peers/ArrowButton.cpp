#include "tactix-qt/peers/ArrowButton.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <utility>

namespace tactix::qt {

namespace {

constexpr int ArrowMargin = 2;

}  // namespace

ArrowButton::ArrowButton(Qt::ArrowType arrow, std::function<void()> step, QWidget* parent)
    : QPushButton(parent), step_(std::move(step)), arrow_(arrow) {
  setFocusPolicy(Qt::NoFocus);
  setAutoDefault(false);
  setAutoRepeatDelay(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatThreshold, nullptr, this));
  setAutoRepeatInterval(style()->styleHint(QStyle::SH_SpinBox_ClickAutoRepeatRate, nullptr, this));
  connect(this, &QAbstractButton::pressed, this, [this] { Step(); });
}

void ArrowButton::Step() {
  ++stepping_;
  step_();
  --stepping_;
}

void ArrowButton::mousePressEvent(QMouseEvent* event) {
  // Only while the mouse holds it: a press by a screen reader is a single step.
  if (event->button() == Qt::LeftButton) setAutoRepeat(true);
  QPushButton::mousePressEvent(event);
}

void ArrowButton::mouseReleaseEvent(QMouseEvent* event) {
  QPushButton::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) setAutoRepeat(false);
}

void ArrowButton::timerEvent(QTimerEvent* event) {
  // Repeats only while the mouse really holds it (a dialog that a step has opened gets the release), and never while a
  // step is still running.
  const bool isHeld = stepping_ == 0 && (QGuiApplication::mouseButtons() & Qt::LeftButton);
  if (autoRepeat() && !isHeld) LetGo();
  QPushButton::timerEvent(event);
}

void ArrowButton::LetGo() {
  setAutoRepeat(false);
  setDown(false);
}

void ArrowButton::hideEvent(QHideEvent* event) {
  LetGo();
  QPushButton::hideEvent(event);
}

void ArrowButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  if (parentWidget()->hasFocus()) option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  QStyleOption arrow;
  arrow.initFrom(this);
  const int side = std::max(std::min(width(), height()) - 2 * ArrowMargin, 1);
  arrow.rect = QRect(0, 0, side, side);
  arrow.rect.moveCenter(rect().center());
  if (isDown()) {
    arrow.rect.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                         style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
  }
  style()->drawPrimitive(arrow_ == Qt::UpArrow ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &arrow,
                         &painter, this);
}

}  // namespace tactix::qt
