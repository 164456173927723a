#include "tactix-qt/peers/OptionButtonPeer.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"

namespace tactix::qt {

OptionButtonPeer::OptionButtonPeer(OptionButton& button, QtSite& site, QWidget* parent)
    : NativePeer(button, site, parent) {
  // A mouse press does not give it the focus: the click does, which comes after the release.
  setFocusPolicy(Qt::TabFocus);
  setAutoExclusive(false);
  setText(ToQt(button.Caption()));
  setChecked(button.Value());
  connect(this, &QAbstractButton::clicked, this, [this] { Click(); });
}

void OptionButtonPeer::Click() {
  const HandlerScope scope;
  if (Model()) Model()->Click();
}

void OptionButtonPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      setText(ToQt(Model()->Caption()));
      break;
    case Aspect::Value:
      setChecked(Model()->Value());
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

bool OptionButtonPeer::event(QEvent* event) {
  // Clicks at once: Qt would show the button pressed for a tenth of a second first.
  if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
    Click();
    return true;
  }
  return NativePeer::event(event);
}

int OptionButtonPeer::TextFlags() const {
  const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  return Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap |
         (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

QRect OptionButtonPeer::TextRoom() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  return style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
}

QRect OptionButtonPeer::TextRect() {
  const QFont& fitted = fitted_.Fit(text(), font(), TextRoom().size(), TextFlags(), this);
  return FittedText::Measure(text(), fitted, TextRoom(), TextFlags(), this);
}

void OptionButtonPeer::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QPainter painter(this);
  QStyleOptionButton mark = option;
  mark.rect = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
  style()->drawPrimitive(QStyle::PE_IndicatorRadioButton, &mark, &painter, this);
  const QRect room = TextRoom();
  painter.setFont(fitted_.Fit(text(), font(), room.size(), TextFlags(), this));
  style()->drawItemText(&painter, room, TextFlags(), palette(), isEnabled(), text(), QPalette::WindowText);
  if (!(option.state & QStyle::State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = text().isEmpty() ? mark.rect.adjusted(-1, -1, 1, 1) : room;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace tactix::qt
