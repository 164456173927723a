#include "tactix-qt/peers/LabelPeer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <cmath>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"

namespace tactix::qt {

namespace {

qreal Luminance(const QColor& color) {
  const auto linear = [](auto part) { return std::pow(static_cast<qreal>(part), 2.2); };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// Black or white, whichever contrasts more with a background that a control has set: the palette's text colour might
/// be too close to it.
QColor TextColorOn(const QColor& ground) {
  constexpr qreal EvenContrast = 0.179;
  return Luminance(ground) > EvenContrast ? Qt::black : Qt::white;
}

Qt::Alignment AlignmentOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::Left:
      return Qt::AlignLeft;
    case TextAlignment::Center:
      return Qt::AlignHCenter;
    case TextAlignment::Right:
      return Qt::AlignRight;
  }
  return Qt::AlignLeft;
}

}  // namespace

LabelPeer::LabelPeer(Label& label, QtSite& site, QWidget* parent) : NativePeer(label, site, parent) {
  // No setWordWrap(): this class wraps in its own painting, and QLabel would lay out every new text for a size hint
  // that nobody uses.
  setTextFormat(Qt::PlainText);
  setText(ToQt(label.Caption()));
  Update(Aspect::Align);
}

bool LabelPeer::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Enter:
      if (IsClickable()) setCursor(Qt::PointingHandCursor);
      update();
      break;
    case QEvent::Leave:
      unsetCursor();
      update();
      break;
    default:
      break;
  }
  return NativePeer::event(event);
}

void LabelPeer::mousePressEvent(QMouseEvent* event) {
  if (!IsClickable() || event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
  // The press focuses what is around the label, as if there were no label: the control may map keys.
  for (QWidget* at = parentWidget(); at; at = at->parentWidget()) {
    if (at->focusPolicy() == Qt::NoFocus || !dynamic_cast<Peer*>(at)) continue;
    return at->setFocus(Qt::MouseFocusReason);
  }
}

void LabelPeer::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QLabel::mouseReleaseEvent(event);
  if (rect().contains(event->position().toPoint())) Click();
}

void LabelPeer::Click() {
  const HandlerScope scope;
  if (Model()) Model()->Click();
}

void LabelPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      setText(ToQt(Model()->Caption()));
      break;
    case Aspect::Align:
      setAlignment(AlignmentOf(Model()->Alignment()) | Qt::AlignVCenter);
      break;
    case Aspect::Colors: {
      QPalette own;
      const QColor text = OwnColor(Model()->ForeColor());
      const QColor ground = OwnColor(Model()->BackColor());
      if (text.isValid()) {
        own.setColor(QPalette::WindowText, text);
      } else if (ground.isValid()) {
        own.setColor(QPalette::WindowText, TextColorOn(ground));
      }
      if (ground.isValid()) own.setColor(QPalette::Window, ground);
      setAutoFillBackground(ground.isValid());
      setPalette(own);
      break;
    }
    default:
      break;
  }
  Peer::Update(aspect);
}

int LabelPeer::TextFlags() const { return static_cast<int>(alignment()) | Qt::TextWordWrap | Qt::TextShowMnemonic; }

QRect LabelPeer::TextRoom() const { return contentsRect() & InSight(); }

QRect LabelPeer::TextRect() {
  const QRect room = TextRoom();
  const QFont& fitted = fitted_.Fit(text(), font(), room.size(), TextFlags(), this);
  return FittedText::Measure(text(), fitted, room, TextFlags(), this);
}

void LabelPeer::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect room = TextRoom();
  QFont fitted = fitted_.Fit(text(), font(), room.size(), TextFlags(), this);
  if (underMouse() && isEnabled() && IsClickable()) fitted.setUnderline(true);
  painter.setFont(fitted);
  style()->drawItemText(&painter, room, TextFlags(), palette(), isEnabled(), text(), foregroundRole());
}

}  // namespace tactix::qt
