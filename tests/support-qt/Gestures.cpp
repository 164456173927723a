#include "tests/support-qt/Gestures.h"

#include <QtTest/qtestspontaneevent.h>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLayout>
#include <QMenu>
#include <QPointer>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>
#include <functional>
#include <vector>

#include "tactix-qt/MenuPopUp.h"
#include "tactix-qt/peers/Peer.h"

namespace tactix::tests {

namespace {

Qt::KeyboardModifiers ModifiersOf(std::int16_t shift) {
  Qt::KeyboardModifiers modifiers;
  if (shift & ShiftKey) modifiers |= Qt::ShiftModifier;
  if (shift & CtrlKey) modifiers |= Qt::ControlModifier;
  if (shift & AltKey) modifiers |= Qt::AltModifier;
  return modifiers;
}

Qt::MouseButton ButtonOf(std::int16_t button) {
  if (button == RightButton) return Qt::RightButton;
  return button == MiddleButton ? Qt::MiddleButton : Qt::LeftButton;
}

QAction* ActionOf(const QMenu& menu, const MenuEntry& entry) {
  for (QAction* action : menu.actions()) {
    if (qt::MenuPopUp::EntryOf(*action) == &entry) return action;
  }
  return nullptr;
}

/// Where the mouse was last, on the screen.
QPoint& LastPlace() {
  static QPoint place;
  return place;
}

bool OpenList(QComboBox& box) {
  return box.isVisible() && QTest::qWaitFor([&box] { return box.view()->isVisible(); });
}

void PressIn(QWidget& popUp, Qt::Key key) { PressKey(*popUp.window(), key); }

QToolButton& MoreButtonOf(const QToolBar& bar) {
  return *bar.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
}

/// Does something in the menu at a toolbar's end while it is open: a press that opens it comes back when it has closed.
void InMenuAtTheEnd(const QToolBar& bar, const std::function<void()>& press,
                    const std::function<void(QMenu&)>& action) {
  QMenu* const menu = MoreButtonOf(bar).menu();
  if (!menu) return;
  const auto act = [menu = QPointer<QMenu>(menu), action] {
    if (!menu || !menu->isVisible()) return;
    action(*menu);
    if (menu && menu->isVisible()) LeaveMenu(*menu);
  };
  QObject untilItIsBack;
  QObject::connect(menu, &QMenu::aboutToShow, &untilItIsBack,
                   [&untilItIsBack, act] { QMetaObject::invokeMethod(&untilItIsBack, act, Qt::QueuedConnection); });
  press();
}

}  // namespace

QWidget* NativeOf(const Widget& widget) {
  const qt::Peer* const peer = qt::Peer::Of(widget);
  return peer ? &peer->Native() : nullptr;
}

std::optional<QPoint> ReachablePlace(const QWidget& native) {
  if (!native.isVisible()) return std::nullopt;
  const QRect area = native.rect();
  const QPoint places[] = {area.center(), area.topLeft() + QPoint(3, 3), area.topRight() + QPoint(-3, 3),
                           area.bottomLeft() + QPoint(3, -3), area.bottomRight() + QPoint(-3, -3)};
  for (const QPoint& place : places) {
    const QPoint inWindow = native.mapTo(native.window(), place);
    if (native.window()->childAt(inWindow) == &native) return inWindow;
  }
  return std::nullopt;
}

void Drag(QWidget& window, const QPoint& from, const QPoint& to, std::int16_t button, std::int16_t shift) {
  const QPointer<QWindow> handle = window.windowHandle();
  LastPlace() = window.mapToGlobal(to);
  QTest::mousePress(handle, ButtonOf(button), ModifiersOf(shift), from);
  if (handle && to != from) QTest::mouseEvent(QTest::MouseMove, handle, Qt::NoButton, ModifiersOf(shift), to);
  if (handle) {
    QTest::mouseRelease(handle, ButtonOf(button), ModifiersOf(shift), to);
  } else {
    // The window has gone under the press. The button goes up all the same, or the next press would be a second one.
    QWindow elsewhere;
    elsewhere.resize(2, 2);
    QTest::mouseRelease(&elsewhere, ButtonOf(button), ModifiersOf(shift), QPoint(1, 1));
  }
}

void ClickAt(QWidget& window, const QPoint& place, std::int16_t button, std::int16_t shift) {
  Drag(window, place, place, button, shift);
}

void MoveTo(QWidget& window, const QPoint& place, std::int16_t shift) {
  const QPointer<QWindow> handle = window.windowHandle();
  // A move to where the mouse is already is none.
  const QPoint there = window.mapToGlobal(place) == LastPlace() ? place + QPoint(1, 0) : place;
  LastPlace() = window.mapToGlobal(there);
  QTest::mouseEvent(QTest::MouseMove, handle, Qt::NoButton, ModifiersOf(shift), there);
}

void TurnWheel(QWidget& window, const QPoint& place, int eighths) {
  QWheelEvent turn(place, window.mapToGlobal(place), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                   false);
  // Only what comes from outside goes on to the parents of a widget that ignores it.
  QSpontaneKeyEvent::setSpontaneous(&turn);
  qApp->notify(window.windowHandle(), &turn);
}

void PressKey(QWidget& window, std::int32_t code, std::int16_t shift) {
  const std::int32_t key = code >= 'a' && code <= 'z' ? code - 'a' + 'A' : code;
  QTest::keyClick(window.windowHandle(), static_cast<Qt::Key>(key), ModifiersOf(shift));
}

void PickByMouse(QComboBox& box, int row) {
  const std::optional<QPoint> place = ReachablePlace(box);
  if (!place || !box.isEnabled()) return;
  const QPointer<QComboBox> still(&box);
  ClickAt(*box.window(), *place);
  if (!still || !OpenList(box)) return;
  QAbstractItemView& view = *box.view();
  const QModelIndex index = box.model()->index(row, box.modelColumn());
  if (!index.isValid()) return PressIn(view, Qt::Key_Escape);
  view.scrollTo(index);
  const QRect item = view.visualRect(index) & view.viewport()->rect();
  const QPoint inPopUp = view.viewport()->mapTo(view.window(), item.center());
  // The list ignores the release of the click that has opened it until the mouse has been moved some way.
  MoveTo(*view.window(), inPopUp + QPoint(item.width() / 4, 0));
  MoveTo(*view.window(), inPopUp);
  ClickAt(*view.window(), inPopUp);
}

void PickByReturn(QComboBox& box, int row) {
  if (!box.isVisible() || !box.isEnabled()) return;
  const QPointer<QComboBox> still(&box);
  PressKey(*box.window(), Qt::Key_F4);
  if (!still || !OpenList(box)) return;
  if (row < 0 || row >= box.count()) return PressIn(*box.view(), Qt::Key_Escape);
  PressIn(*box.view(), Qt::Key_Home);
  for (int i = 0; i < row; ++i) PressIn(*box.view(), Qt::Key_Down);
  PressIn(*box.view(), Qt::Key_Return);
}

void ClickOnBar(QToolBar& bar, QAction& action) {
  bar.layout()->activate();
  const QWidget* const native = bar.widgetForAction(&action);
  if (const auto place = native ? ReachablePlace(*native) : std::nullopt) return ClickAt(*bar.window(), *place);
  const QToolButton& more = MoreButtonOf(bar);
  const auto place = action.isVisible() ? ReachablePlace(more) : std::nullopt;
  if (!place || !more.isEnabled()) return;
  InMenuAtTheEnd(
      bar, [&bar, &place] { ClickAt(*bar.window(), *place); },
      [&action](QMenu& menu) {
        const QPoint item = menu.actionGeometry(&action).center();
        MoveTo(menu, item);
        ClickAt(menu, item);
      });
}

void PressOnBar(QToolBar& bar, QAction& action) {
  QWidget* native = bar.widgetForAction(&action);
  if (!action.isVisible() || !native) return;
  bar.layout()->activate();
  const bool isInMenu = !native->isVisible();
  if (isInMenu) native = &MoreButtonOf(bar);
  if (!native->isVisible() || !native->isEnabled()) return;
  const auto press = [&bar, native] {
    native->setFocus(Qt::TabFocusReason);
    PressKey(*bar.window(), Qt::Key_Space);
  };
  if (!isInMenu) return press();
  InMenuAtTheEnd(bar, press, [&action](QMenu& menu) {
    for (int i = 0; i < menu.actions().size() && menu.activeAction() != &action; ++i) PressIn(menu, Qt::Key_Down);
    if (menu.activeAction() == &action) PressIn(menu, Qt::Key_Return);
  });
}

QMenu* OpenMenuOf(const Menu& menu) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* const popUp = qobject_cast<QMenu*>(widget);
    if (popUp && !popUp->parent() && popUp->isVisible() && qt::MenuPopUp::MenuOf(*popUp) == &menu) return popUp;
  }
  return nullptr;
}

void ClickEntry(QMenu& root, const MenuEntry& entry) {
  std::vector<const MenuEntry*> path;
  for (const MenuEntry* at = &entry; at->Parent(); at = at->Parent()) path.insert(path.begin(), at);
  QPointer<QMenu> menu(&root);
  for (const MenuEntry* step : path) {
    const QAction* const action = ActionOf(*menu, *step);
    if (!action || !action->isVisible()) return;
    const QRect item = menu->actionGeometry(const_cast<QAction*>(action));
    MoveTo(*menu, item.center() - QPoint(1, 0));
    MoveTo(*menu, item.center());
    if (!menu) return;
    ClickAt(*menu, item.center());
    QMenu* const sub = action->menu();
    if (!sub || !QTest::qWaitFor([sub] { return sub->isVisible(); })) return;
    menu = sub;
  }
}

void LeaveMenu(QMenu& root) {
  const QPointer<QMenu> menu(&root);
  // One Escape for each level that is open.
  for (int level = 0; level < 4 && menu && menu->isVisible(); ++level) PressKey(*menu, Qt::Key_Escape);
}

void Settle() {
  for (int round = 0; round < 3; ++round) QCoreApplication::processEvents();
}

}  // namespace tactix::tests
