#include "tactix-qt/peers/LabelPeer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/Accessible.h"

namespace tactix::qt {

LabelPeer::LabelPeer(Label& label, QtSite& site, QWidget* parent) : NativePeer(label, site, parent) {
  // No setWordWrap(): it wraps as it paints, and QLabel would lay every new text out for a size hint that nobody asks.
  setTextFormat(Qt::PlainText);
  setText(ToQt(label.Caption()));
  InstallAccessibles();
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
  // Its control, which may map keys, gets the focus as if there were no label.
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
    case Aspect::Colors: {
      QPalette own;
      if (!IsSystemColor(Model()->ForeColor())) own.setColor(QPalette::WindowText, ToQt(Model()->ForeColor()));
      if (!IsSystemColor(Model()->BackColor())) own.setColor(QPalette::Window, ToQt(Model()->BackColor()));
      setAutoFillBackground(!IsSystemColor(Model()->BackColor()));
      setPalette(own);
      break;
    }
    default:
      break;
  }
  Peer::Update(aspect);
}

int LabelPeer::TextFlags() const { return static_cast<int>(alignment()) | Qt::TextWordWrap | Qt::TextShowMnemonic; }

QRect LabelPeer::TextRect() {
  const QRect room = contentsRect();
  const QFont& fitted = fitted_.Fit(text(), font(), room.size(), TextFlags(), this);
  return FittedText::Measure(text(), fitted, room, TextFlags(), this);
}

void LabelPeer::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  drawFrame(&painter);
  QFont fitted = fitted_.Fit(text(), font(), contentsRect().size(), TextFlags(), this);
  if (underMouse() && isEnabled() && IsClickable()) fitted.setUnderline(true);
  painter.setFont(fitted);
  style()->drawItemText(&painter, contentsRect(), TextFlags(), palette(), isEnabled(), text(), foregroundRole());
}

}  // namespace tactix::qt
