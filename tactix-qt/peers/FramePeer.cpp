#include "tactix-qt/peers/FramePeer.h"

#include <QAccessible>
#include <QPainter>
#include <QStyle>

#include "tactix-qt/Convert.h"
#include "tactix/platform/widgets/Panel.h"

namespace tactix::qt {

FramePeer::FramePeer(Widget& widget, QtSite& site, QWidget* parent) : NativePeer(widget, site, parent) {
  if (widget.Kind() == WidgetKind::Panel) {
    setFrameStyle(int{QFrame::Panel} | int{QFrame::Raised});
    setLineWidth(1);
  } else {
    setFrameStyle(int{QFrame::StyledPanel} | int{QFrame::Plain});
  }
  if (widget.HasKeyMap()) setFocusPolicy(Qt::TabFocus);
}

void FramePeer::Update(Aspect aspect) {
  if (aspect == Aspect::Colors || aspect == Aspect::Caption) update();
  if (aspect == Aspect::Caption) {
    QAccessibleEvent renamed(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&renamed);
  }
  Peer::Update(aspect);
}

void FramePeer::paintEvent(QPaintEvent* event) {
  // Painted here and not set in the palette, which the child widgets would inherit.
  if (Model() && !IsSystemColor(Model()->BackColor())) QPainter(this).fillRect(rect(), ToQt(Model()->BackColor()));
  QFrame::paintEvent(event);
  if (!Model() || Model()->Kind() != WidgetKind::Panel) return;
  const QString caption = ToQt(static_cast<const tactix::Panel*>(Model())->Caption());
  if (caption.isEmpty()) return;
  constexpr int Flags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
  QPainter painter(this);
  painter.setFont(fitted_.Fit(caption, font(), contentsRect().size(), Flags, this));
  style()->drawItemText(&painter, contentsRect(), Flags, palette(), isEnabled(), caption, foregroundRole());
}

}  // namespace tactix::qt
