#include "tactix-qt/peers/ToolBarPeer.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QFontInfo>
#include <QLayout>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>
#include <map>
#include <span>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/PictureIcon.h"
#include "tactix-qt/Retirement.h"
#include "tactix-qt/peers/Keys.h"

namespace tactix::qt {

namespace {

/// How buttons look, best first: the first look with which they fit into the bar's thickness is taken.
struct Look {
  Qt::ToolButtonStyle style;
  int pictureSide;
};
constexpr Look RowLooks[] = {{Qt::ToolButtonTextUnderIcon, 24},
                             {Qt::ToolButtonTextUnderIcon, 20},
                             {Qt::ToolButtonTextUnderIcon, 16},
                             {Qt::ToolButtonTextBesideIcon, 16},
                             {Qt::ToolButtonTextBesideIcon, 12}};
constexpr Look ColumnLooks[] = {{Qt::ToolButtonTextBesideIcon, 24},
                                {Qt::ToolButtonTextBesideIcon, 20},
                                {Qt::ToolButtonTextBesideIcon, 16},
                                {Qt::ToolButtonTextUnderIcon, 24},
                                {Qt::ToolButtonTextUnderIcon, 16}};
constexpr qreal SmallestLetters = 4;
constexpr qreal LetterStep = 0.5;

QString WholeText(const ToolButton& button) {
  return ToQt(button.ToolTipText().empty() ? button.Caption() : button.ToolTipText());
}

}  // namespace

ToolBarPeer::ToolBarPeer(ToolBar& bar, QtSite& site, QWidget* parent)
    : NativePeer(bar, site, parent), more_(findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"))) {
  setMovable(false);
  setFocusPolicy(Qt::TabFocus);
  more_->setCheckable(false);
  more_->setToolTip(QStringLiteral("More buttons"));
  more_->setAccessibleName(more_->toolTip());
  more_->installEventFilter(this);
  for (const auto& button : bar.Buttons()) Add(*button);
  ShowOrientation();
  ShowPictures();
}

void ToolBarPeer::Add(const ToolButton& button) {
  const std::size_t index = actions_.size();
  auto* const action = new QAction(this);
  actions_.push_back(action);
  if (button.Style() == ToolButtonStyle::Separator) {
    action->setSeparator(true);
  } else {
    // The menu at the end shows the text, the bar the icon text: "Low" alone would say too little in a menu.
    action->setText(WholeText(button).replace(QLatin1Char('&'), QLatin1String("&&")));
    action->setIconText(ToQt(button.Caption()));
    action->setToolTip(WholeText(button));
    // In a group of its own, so that a click on a pressed button does not make Qt unpress it. The child widget decides
    // which others are unpressed.
    (new QActionGroup(action))->addAction(action);
    connect(action, &QAction::triggered, this, [this, index] { Click(index); });
  }
  ShowState(*action, button);
  addAction(action);
  if (QToolButton* native = NativeOf(*action)) {
    native->setAccessibleName(WholeText(button));
    native->setMouseTracking(true);
    native->installEventFilter(this);
  }
}

QAction* ToolBarPeer::ActionOf(const ToolButton& button) {
  const auto* const peer = dynamic_cast<const ToolBarPeer*>(Peer::Of(button.Bar()));
  if (!peer) return nullptr;
  const auto buttons = button.Bar().Buttons();
  const auto at = std::find_if(buttons.begin(), buttons.end(), [&](const auto& each) { return each.get() == &button; });
  const auto index = static_cast<std::size_t>(at - buttons.begin());
  return index < peer->actions_.size() ? peer->actions_[index] : nullptr;
}

QToolButton* ToolBarPeer::NativeOf(QAction& action) const {
  return qobject_cast<QToolButton*>(widgetForAction(&action));
}

QToolButton* ToolBarPeer::NativeOf(const ToolButton& button) {
  QAction* const action = ActionOf(button);
  return action ? static_cast<ToolBarPeer*>(Peer::Of(button.Bar()))->NativeOf(*action) : nullptr;
}

// Changes of the child widget.

void ToolBarPeer::Update(Aspect aspect) {
  switch (aspect) {
    case Aspect::Align:
      ShowOrientation();
      break;
    case Aspect::Colors: {
      QPalette own;
      if (!IsSystemColor(Model()->ForeColor())) own.setColor(QPalette::ButtonText, ToQt(Model()->ForeColor()));
      if (!IsSystemColor(Model()->BackColor())) own.setColor(QPalette::Window, ToQt(Model()->BackColor()));
      setPalette(own);
      break;
    }
    default:
      break;
  }
  Peer::Update(aspect);
}

void ToolBarPeer::ButtonChanged(ToolBar&, ToolButton& button) {
  QAction* const action = Model() ? ActionOf(button) : nullptr;
  if (!action) return;
  QToolButton* const native = NativeOf(*action);
  // A button that is hidden or disabled passes the focus to its neighbour; Qt would move it out of the bar.
  if (native && native == window()->focusWidget() && !(button.Visible() && button.Enabled())) {
    if (QToolButton* neighbour = Neighbour(*native)) neighbour->setFocus(Qt::OtherFocusReason);
  }
  ShowState(*action, button);
}

void ToolBarPeer::ShowState(QAction& action, const ToolButton& button) {
  action.setVisible(button.Visible());
  action.setEnabled(button.Enabled());
  // A push button is checkable only while it is pressed, or Qt would check it at each click.
  action.setCheckable(button.Style() == ToolButtonStyle::Group || button.Value());
  action.setChecked(button.Value());
}

void ToolBarPeer::ShowMore() {
  // Qt's own arrows are black, even on a dark background.
  more_->setIcon(PictureIcon(orientation() == Qt::Vertical ? "more-down" : "more-right", palette()));
}

void ToolBarPeer::ShowPictures() {
  ShowMore();
  const ToolBar* const bar = Model();
  if (!bar || !bar->Pictures()) return;
  std::map<std::int16_t, QIcon> icons;
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const std::int16_t picture = bar->Buttons()[i]->Picture();
    if (picture < 1 || picture > bar->Pictures()->Count()) continue;
    QIcon& icon = icons[picture];
    if (icon.isNull()) icon = PictureIcon(bar->Pictures()->Name(picture), palette());
    actions_[i]->setIcon(icon);
  }
}

void ToolBarPeer::ShowOrientation() {
  setOrientation(Model()->IsVertical() ? Qt::Vertical : Qt::Horizontal);
  ShowMore();
  Fit();
}

// Room.

bool ToolBarPeer::FitsWith(const QFont& letters) {
  QSize needed;
  for (QAction* action : actions_) {
    QToolButton* const native = NativeOf(*action);
    if (!native) continue;
    native->setFont(letters);
    needed = needed.expandedTo(native->sizeHint());
  }
  const bool isColumn = orientation() == Qt::Vertical;
  for (QAction* action : actions_) {
    // The same width for all, so that the pictures stand below each other.
    if (QToolButton* native = NativeOf(*action)) native->setMinimumWidth(isColumn ? needed.width() : 0);
  }
  needed = needed.grownBy(layout()->contentsMargins());
  return isColumn ? needed.width() <= width() : needed.height() <= height();
}

void ToolBarPeer::Fit() {
  if (std::exchange(fitting_, true)) return;
  const auto looks = orientation() == Qt::Vertical ? std::span<const Look>(ColumnLooks) : RowLooks;
  bool fits = false;
  for (auto look = looks.begin(); look != looks.end() && !fits; ++look) {
    setToolButtonStyle(look->style);
    setIconSize(QSize(look->pictureSide, look->pictureSide));
    fits = FitsWith(QFont());
  }
  QFont letters = font();
  qreal size = letters.pointSizeF() > 0 ? letters.pointSizeF() : QFontInfo(letters).pointSizeF();
  while (!fits && size > SmallestLetters) {
    size -= LetterStep;
    letters.setPointSizeF(size);
    fits = FitsWith(letters);
  }
  fitting_ = false;
}

void ToolBarPeer::resizeEvent(QResizeEvent* event) {
  Fit();
  QToolBar::resizeEvent(event);
}

void ToolBarPeer::changeEvent(QEvent* event) {
  QToolBar::changeEvent(event);
  switch (event->type()) {
    case QEvent::PaletteChange:
      ShowPictures();
      break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
      Fit();
      break;
    default:
      break;
  }
}

void ToolBarPeer::hideEvent(QHideEvent* event) {
  QToolBar::hideEvent(event);
  // Otherwise the menu would stay open, and the press that opened it would not return.
  if (QMenu* menu = more_->menu()) menu->close();
}

// What the user does.

void ToolBarPeer::Click(std::size_t index) {
  const HandlerScope scope;
  if (Model()) Model()->Buttons()[index]->Click();
}

bool ToolBarPeer::eventFilter(QObject* object, QEvent* event) {
  auto* const native = qobject_cast<QToolButton*>(object);
  if (!native || !Model()) return false;
  switch (event->type()) {
    case QEvent::KeyPress:
      return Before(*event) || KeyPressed(*native, static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      lastFocused_ = native;
      // The bar hands its focus to a button, so Shift+Tab must not stop at the bar: it would lead back here.
      setFocusPolicy(Qt::NoFocus);
      return Before(*event);
    case QEvent::FocusOut:
      setFocusPolicy(Qt::TabFocus);
      return Before(*event);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      // Only the presses that the native button keeps for itself: Qt hands the others on to the bar.
      const auto& press = static_cast<QMouseEvent&>(*event);
      if (press.button() == Qt::LeftButton || !native->isEnabled()) {
        Post(StateAt(native->mapToParent(press.position()), press.button(), press.modifiers()));
      }
      return false;
    }
    case QEvent::MouseMove:
      if (!native->isEnabled()) MouseMoved(static_cast<QMouseEvent&>(*event));
      return false;
    case QEvent::ContextMenu:
      if (static_cast<QContextMenuEvent&>(*event).reason() != QContextMenuEvent::Keyboard) return false;
      event->accept();
      Post(StateAt(native->geometry().center(), Qt::RightButton, Qt::NoModifier));
      return true;
    default:
      return false;
  }
}

void ToolBarPeer::contextMenuEvent(QContextMenuEvent* event) {
  // Accepted, or a main window around the bar would show its own menu, for hiding toolbars.
  event->accept();
}

bool ToolBarPeer::focusNextPrevChild(bool next) {
  QWidget* const focused = window()->focusWidget();
  if (!focused || !isAncestorOf(focused)) return QToolBar::focusNextPrevChild(next);
  // On from the bar and not from its button: the host's tab order knows the bar only.
  const QPointer<QWidget> before(focused);
  const QPointer<ToolBarPeer> self(this);
  leaving_ = true;
  setFocus(Qt::OtherFocusReason);
  if (!self) return true;
  leaving_ = false;
  if (QToolBar::focusNextPrevChild(next)) return true;
  if (before) before->setFocus(Qt::OtherFocusReason);
  return false;
}

void ToolBarPeer::focusInEvent(QFocusEvent* event) {
  if (leaving_) return;
  const std::vector<QToolButton*> stops = Stops();
  if (stops.empty()) return;
  const auto last = std::find(stops.begin(), stops.end(), lastFocused_);
  (last == stops.end() ? stops.front() : *last)->setFocus(event->reason());
}

bool ToolBarPeer::KeyPressed(QToolButton& native, QKeyEvent& event) {
  if (IsEnter(event)) {
    event.accept();
    if (!event.isAutoRepeat()) native.click();
    return true;
  }
  const std::vector<QToolButton*> stops = Stops();
  const auto here = std::find(stops.begin(), stops.end(), &native);
  if (here == stops.end() || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  const bool mirrored = layoutDirection() == Qt::RightToLeft;
  auto to = here;
  switch (event.key()) {
    case Qt::Key_Home:
      to = stops.begin();
      break;
    case Qt::Key_End:
      to = stops.end() - 1;
      break;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (event.key() == Qt::Key_Down || event.key() == (mirrored ? Qt::Key_Left : Qt::Key_Right)) {
        if (here + 1 != stops.end()) ++to;
      } else if (here != stops.begin()) {
        --to;
      }
      break;
    default:
      return false;
  }
  event.accept();
  (*to)->setFocus(Qt::TabFocusReason);
  return true;
}

std::vector<QToolButton*> ToolBarPeer::Stops() const {
  std::vector<QToolButton*> stops;
  const auto add = [&stops](QToolButton* native) {
    if (native && native->isVisible() && native->isEnabled()) stops.push_back(native);
  };
  for (QAction* action : actions_) add(NativeOf(*action));
  add(more_);
  return stops;
}

QToolButton* ToolBarPeer::Neighbour(const QToolButton& native) const {
  const std::vector<QToolButton*> stops = Stops();
  const auto here = std::find(stops.begin(), stops.end(), &native);
  if (stops.size() < 2 || here == stops.end()) return nullptr;
  return here + 1 == stops.end() ? *(here - 1) : *(here + 1);
}

}  // namespace tactix::qt
