#include "tactix-qt/peers/GroupBoxPeer.h"

#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

#include "tactix-qt/Convert.h"

namespace tactix::qt {

GroupBoxPeer::GroupBoxPeer(Frame& frame, QtSite& site, QWidget* parent) : NativePeer(frame, site, parent) {
  setTitle(ToQt(frame.Caption()));
}

void GroupBoxPeer::Update(Aspect aspect) {
  if (aspect == Aspect::Caption) setTitle(ToQt(Model()->Caption()));
  if (aspect == Aspect::Colors) update();
  Peer::Update(aspect);
}

void GroupBoxPeer::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  // Colours are painted here and not set in the palette, which the child widgets would inherit.
  painter.fillRect(rect(), palette().window());
  if (Model() && !IsSystemColor(Model()->BackColor())) painter.fillRect(rect(), ToQt(Model()->BackColor()));
  if (Model() && !IsSystemColor(Model()->ForeColor())) {
    // Some styles use the option's text colour, others its palette.
    option.textColor = ToQt(Model()->ForeColor());
    option.palette.setColor(QPalette::WindowText, option.textColor);
  }
  const QRect label = style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, this);
  const QSize room(width() - 2 * label.left(), label.height());
  const QFont& fitted = fitted_.Fit(title(), font(), room, Qt::TextSingleLine | Qt::TextShowMnemonic, this);
  painter.setFont(fitted);
  option.fontMetrics = QFontMetrics(fitted, this);
  painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

}  // namespace tactix::qt
