#include "tactix-qt/peers/LabelPeer.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/AccessibleNames.h"
#include "tactix-qt/peers/Keys.h"
#include "tactix/platform/widgets/Extender.h"

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

const Label* AsClickable(const Widget& widget) {
  if (widget.Kind() != WidgetKind::Label) return nullptr;
  const auto& label = static_cast<const Label&>(widget);
  return label.TakesClicks() ? &label : nullptr;
}

/// The label beside this one in the order of their parent if both stand for one element.
const Label* Companion(const Label& label, std::ptrdiff_t step) {
  if (!label.TakesClicks()) return nullptr;
  const auto siblings = label.Parent()->Children();
  const auto place = std::find(siblings.begin(), siblings.end(), &label) - siblings.begin() + step;
  if (place < 0 || place >= static_cast<std::ptrdiff_t>(siblings.size())) return nullptr;
  const Label* const other = AsClickable(*siblings[static_cast<std::size_t>(place)]);
  return other && other->Name() == label.Name() ? other : nullptr;
}

void ListElements(const Widget& widget, std::vector<LabelPeer*>& elements) {
  for (const Widget* child : widget.Children()) {
    auto* const peer = AsClickable(*child) ? dynamic_cast<LabelPeer*>(Peer::Of(*child)) : nullptr;
    if (peer && !peer->IsSign() && child->Usable()) elements.push_back(peer);
    ListElements(*child, elements);
  }
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

const Label* LabelPeer::Sign() const { return Model() ? Companion(*Model(), -1) : nullptr; }

bool LabelPeer::IsSign() const { return Model() && Companion(*Model(), 1); }

void LabelPeer::MoveFocus(QKeyEvent& event, const Widget& control, const LabelPeer* from) {
  std::vector<LabelPeer*> elements;
  ListElements(control, elements);
  std::stable_sort(elements.begin(), elements.end(), [](const LabelPeer* a, const LabelPeer* b) {
    return std::pair(a->y(), a->x()) < std::pair(b->y(), b->x());
  });
  if (elements.empty() || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return event.ignore();
  const auto here = std::find(elements.begin(), elements.end(), from);
  auto to = here;
  switch (event.key()) {
    case Qt::Key_Home:
      to = elements.begin();
      break;
    case Qt::Key_End:
      to = elements.end() - 1;
      break;
    case Qt::Key_Down:
    case Qt::Key_Right:
      to = here == elements.end() ? elements.begin() : std::min(here + 1, elements.end() - 1);
      break;
    case Qt::Key_Up:
    case Qt::Key_Left:
      to = here == elements.begin() ? here : (here == elements.end() ? elements.end() : here) - 1;
      break;
    default:
      return event.ignore();
  }
  event.accept();
  (*to)->setFocus(Qt::TabFocusReason);
}

void LabelPeer::keyPressEvent(QKeyEvent* event) {
  if (!IsClickable()) return QLabel::keyPressEvent(event);
  const bool isSpace = event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier;
  if (!isSpace && !IsEnter(*event)) return MoveFocus(*event, *Model()->Owner(), this);
  event->accept();
  if (!event->isAutoRepeat()) Click();
}

void LabelPeer::Announce() {
  if (!Model() || !IsAnnounced(*Model()) || !isVisible() || !IsInSight() || SpokenNameOf(*this).isEmpty()) return;
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void LabelPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Caption:
      setText(ToQt(Model()->Caption()));
      Announce();
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
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = room;
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace tactix::qt
