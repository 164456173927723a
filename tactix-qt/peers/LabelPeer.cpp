#include "tactix-qt/peers/LabelPeer.h"

#include <QPainter>
#include <QStyle>

#include "tactix-qt/Convert.h"

namespace tactix::qt {

LabelPeer::LabelPeer(Label& label, QtSite& site, QWidget* parent) : NativePeer(label, site, parent) {
  // No setWordWrap(): it wraps as it paints, and QLabel would lay every new text out for a size hint that nobody asks.
  setTextFormat(Qt::PlainText);
  setText(ToQt(label.Caption()));
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
  painter.setFont(fitted_.Fit(text(), font(), contentsRect().size(), TextFlags(), this));
  style()->drawItemText(&painter, contentsRect(), TextFlags(), palette(), isEnabled(), text(), foregroundRole());
}

}  // namespace tactix::qt
