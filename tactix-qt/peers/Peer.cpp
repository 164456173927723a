#include "tactix-qt/peers/Peer.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "tactix-qt/Convert.h"
#include "tactix-qt/QtSite.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/Keys.h"

namespace tactix::qt {

namespace {

constexpr Aspect CommonAspects[] = {Aspect::Geometry, Aspect::ToolTip, Aspect::Font,
                                    Aspect::Colors,   Aspect::Enabled, Aspect::Visible};

std::int16_t ShiftOf(Qt::KeyboardModifiers modifiers) {
  int shift = 0;
  if (modifiers & Qt::ShiftModifier) shift |= ShiftKey;
  if (modifiers & Qt::ControlModifier) shift |= CtrlKey;
  if (modifiers & Qt::AltModifier) shift |= AltKey;
  return static_cast<std::int16_t>(shift);
}

std::int16_t ButtonsOf(Qt::MouseButtons buttons) {
  int result = 0;
  if (buttons & Qt::LeftButton) result |= LeftButton;
  if (buttons & Qt::RightButton) result |= RightButton;
  if (buttons & Qt::MiddleButton) result |= MiddleButton;
  return static_cast<std::int16_t>(result);
}

}  // namespace

Peer::Peer(Widget& widget, QtSite& site, QWidget& native)
    : widget_(&widget),
      site_(site),
      native_(native),
      designed_(widget.Font()),
      fontSource_(designed_ == Font() ? FontSource::Container : FontSource::Design) {
  widget.Observe(this);
  native.setObjectName(ToQt(widget.Name()));
  native.setMouseTracking(true);
}

Peer::~Peer() { Release(); }

void Peer::Release() {
  if (widget_) widget_->Observe(nullptr);
  widget_ = nullptr;
}

void Peer::ShowAll() {
  for (const Aspect aspect : CommonAspects) Update(aspect);
}

bool Peer::IsTabStop() const { return (native_.focusPolicy() & Qt::TabFocus) != 0; }

void Peer::Changed(Widget&, Aspect aspect) {
  if (!widget_) return;
  // What hears of a focus that has to move may end the control.
  const Weak<QtSite> site(site_);
  if (aspect == Aspect::Font) fontSource_ = SourceOfFont();
  site_.WidgetChanged();
  Update(aspect);
  if (site && aspect == Aspect::Font) site_.FontsChanged();
  if (site && widget_ && (aspect == Aspect::Visible || aspect == Aspect::Enabled)) site_.ReachChanged();
}

void Peer::Gone(Widget&) { widget_ = nullptr; }

void Peer::Update(Aspect aspect) {
  const Widget& widget = *widget_;
  switch (aspect) {
    case Aspect::Geometry: {
      // Edges are rounded, not sizes, so that neighbours neither overlap nor leave gaps.
      const float twips = widget.TwipsPerUnit();
      const int left = ToPixels(widget.Left() * twips);
      const int top = ToPixels(widget.Top() * twips);
      native_.setGeometry(left, top, ToPixels((widget.Left() + widget.Width()) * twips) - left,
                          ToPixels((widget.Top() + widget.Height()) * twips) - top);
      break;
    }
    case Aspect::Visible:
      native_.setVisible(widget.Visible());
      break;
    case Aspect::Enabled:
      native_.setEnabled(widget.Enabled());
      break;
    case Aspect::ToolTip:
      native_.setToolTip(ToQt(widget.ToolTipText()));
      break;
    case Aspect::Font:
      ShowFont();
      break;
    case Aspect::Order:
      if (widget.Parent()->Children().back() == widget_) {
        native_.raise();
      } else {
        native_.lower();
      }
      break;
    case Aspect::Caption:
    case Aspect::Colors:
    case Aspect::Default:
    case Aspect::Value:
    case Aspect::Row:
    case Aspect::Text:
    case Aspect::Align:
      break;
    case Aspect::Refresh:
      native_.repaint();
      break;
  }
}

Peer::FontSource Peer::SourceOfFont() const {
  const Font& font = widget_->Font();
  if (font == Font() || font == site_.AmbientFont()) return FontSource::Container;
  return font == designed_ ? FontSource::Design : FontSource::Property;
}

void Peer::ShowFont() {
  if (!widget_) return;
  switch (fontSource_) {
    case FontSource::Container:
      native_.setFont(QFont());
      break;
    case FontSource::Design: {
      const QFont designed = ToQt(designed_);
      const QFont host = site_.HostFont();
      QFont shown = host.resolve(designed);
      shown.setResolveMask(host.resolveMask() | designed.resolveMask());
      native_.setFont(shown);
      break;
    }
    case FontSource::Property:
      native_.setFont(ToQt(widget_->Font()));
      break;
  }
}

QFont Peer::DesignedFont() const {
  if (designed_ != Font()) return ToQt(designed_);
  // Leaves its letters to the container. There is room for them up to this size.
  constexpr qreal LargestUsual = 12;
  QFont usual = native_.font();
  usual.setPointSizeF(LargestUsual);
  return usual;
}

QRect Peer::InSight() const {
  const QRect all = native_.rect();
  const QRect inside = all & native_.parentWidget()->rect().translated(-native_.pos());
  return inside.isEmpty() ? all : inside;
}

bool Peer::Before(QEvent& event) {
  if (!widget_) return false;
  switch (event.type()) {
    case QEvent::KeyPress:
      return KeyPressed(static_cast<QKeyEvent&>(event));
    case QEvent::FocusIn:
      site_.FocusArrived(*widget_);
      return false;
    case QEvent::FocusOut: {
      // A menu or another window only borrows the focus: the control still has it.
      const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) site_.FocusLeft();
      return false;
    }
    default:
      return false;
  }
}

void Peer::After(QEvent& event) {
  if (!widget_) return;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (!native_.isEnabled() || !TakesMouse()) return;
      event.accept();
      return MousePressed(static_cast<QMouseEvent&>(event));
    case QEvent::MouseMove:
      if (!native_.isEnabled() || !TakesMouse()) return;
      event.accept();
      return MouseMoved(static_cast<QMouseEvent&>(event));
    case QEvent::ContextMenu:
      if (static_cast<QContextMenuEvent&>(event).reason() != QContextMenuEvent::Keyboard) return;
      event.accept();
      return MenuKeyPressed();
    default:
      return;
  }
}

bool Peer::KeyPressed(QKeyEvent& event) {
  if (PressDefaultButton(event, site_)) return true;
  if (!IsLetter(event) && !TakesKey(event)) return false;
  const HandlerScope scope;
  const bool taken = widget_->KeyDown({event.key(), ShiftOf(event.modifiers())});
  if (taken) event.accept();
  return taken;
}

MouseState Peer::StateAt(const QPointF& place, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) const {
  const float twips = widget_->TwipsPerUnit();
  return {ButtonsOf(buttons), ShiftOf(modifiers), ToTwips(place.x()) / twips, ToTwips(place.y()) / twips};
}

void Peer::MousePressed(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton && TakesClickFocus()) native_.setFocus(Qt::MouseFocusReason);
  const MouseState state = StateAt(event.position(), event.button(), event.modifiers());
  // Queued: a right press may open a menu, the window may be destroyed while it is open, and Qt uses the window
  // afterwards.
  if (event.button() == Qt::RightButton) return Post(state);
  const HandlerScope scope;
  widget_->MouseDown(state);
}

void Peer::MouseMoved(const QMouseEvent& event) {
  if (!widget_) return;
  const HandlerScope scope;
  widget_->MouseMove(StateAt(native_.mapFromGlobal(event.globalPosition()), event.buttons(), event.modifiers()));
}

void Peer::MenuKeyPressed() { Post(StateAt(native_.rect().center(), Qt::RightButton, Qt::NoModifier)); }

void Peer::Post(const MouseState& state) {
  const auto press = [this, state] {
    const HandlerScope scope;
    if (widget_) widget_->MouseDown(state);
  };
  QMetaObject::invokeMethod(&native_, press, Qt::QueuedConnection);
}

}  // namespace tactix::qt
