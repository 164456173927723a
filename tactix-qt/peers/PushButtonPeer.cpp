#include "tactix-qt/peers/PushButtonPeer.h"

#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QStyleOptionButton>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"

namespace tactix::qt {

namespace {

constexpr int Margin = 2;

}  // namespace

PushButtonPeer::PushButtonPeer(PushButton& button, QtSite& site, QWidget* parent) : NativePeer(button, site, parent) {
  // A mouse press does not give it the focus: the click does, which comes after the release.
  setFocusPolicy(Qt::TabFocus);
  setAutoDefault(false);
  setText(ToQt(button.Caption()));
  setDefault(button.DEFAULT());
  connect(this, &QAbstractButton::clicked, this, [this] { Click(); });
}

void PushButtonPeer::Click() {
  const HandlerScope scope;
  if (Model()) Model()->Click();
}

void PushButtonPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      setText(ToQt(Model()->Caption()));
      break;
    case Aspect::Default:
      setDefault(Model()->DEFAULT());
      break;
    case Aspect::Colors: {
      QPalette own;
      if (!IsSystemColor(Model()->ForeColor())) own.setColor(QPalette::ButtonText, ToQt(Model()->ForeColor()));
      if (!IsSystemColor(Model()->BackColor())) own.setColor(QPalette::Button, ToQt(Model()->BackColor()));
      setPalette(own);
      break;
    }
    default:
      break;
  }
  Peer::Update(aspect);
}

bool PushButtonPeer::event(QEvent* event) {
  // Clicks at once: Qt would show the button pressed for a tenth of a second first.
  if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
    Click();
    return true;
  }
  return NativePeer::event(event);
}

int PushButtonPeer::TextFlags() const {
  const bool underlines = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
  return Qt::AlignCenter | Qt::TextWordWrap | (underlines ? Qt::TextShowMnemonic : Qt::TextHideMnemonic);
}

QRect PushButtonPeer::TextRoom() const { return rect().adjusted(Margin, Margin, -Margin, -Margin); }

QRect PushButtonPeer::TextRect() {
  const QFont& fitted = fitted_.Fit(text(), font(), TextRoom().size(), TextFlags(), this);
  return FittedText::Measure(text(), fitted, TextRoom(), TextFlags(), this);
}

void PushButtonPeer::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  QRect room = TextRoom();
  painter.setFont(fitted_.Fit(text(), font(), room.size(), TextFlags(), this));
  if (option.state & QStyle::State_Sunken) {
    room.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                   style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
  }
  style()->drawItemText(&painter, room, TextFlags(), palette(), isEnabled(), text(), QPalette::ButtonText);
  if (!(option.state & QStyle::State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace tactix::qt
