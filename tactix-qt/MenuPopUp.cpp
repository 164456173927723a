#include "tactix-qt/MenuPopUp.h"

#include <QMouseEvent>
#include <QWindow>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Convert.h"
#include "tactix-qt/QtSite.h"
#include "tactix-qt/WaitLoop.h"
#include "tactix-qt/peers/AccessibleNames.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix::qt {

namespace {

MenuPopUp* innermost = nullptr;

template <class T>
T* FromPointer(const QVariant& value) {
  return static_cast<T*>(value.value<void*>());
}

}  // namespace

MenuPopUp::MenuPopUp(Menu& menu, QtSite& site) : menu_(menu), site_(site), outer_(innermost) {
  for (MenuPopUp* open = innermost; open; open = open->outer_) open->Dismiss();
  innermost = this;
  native_.setTitle(ToQt(menu.Caption()));
  native_.menuAction()->setData(QVariant::fromValue(static_cast<void*>(&menu)));
  Fill(native_, menu);
  connect(&native_, &QMenu::triggered, this, [this](const QAction* action) {
    if (MenuEntry* entry = EntryOf(*action)) chosen_ = Weak<MenuEntry>(entry);
    // A screen reader chooses an entry without closing the menu.
    native_.hide();
  });
}

MenuPopUp::~MenuPopUp() { innermost = outer_; }

Menu* MenuPopUp::MenuOf(const QMenu& native) { return FromPointer<Menu>(native.menuAction()->data()); }

MenuEntry* MenuPopUp::EntryOf(const QAction& action) { return FromPointer<MenuEntry>(action.data()); }

void MenuPopUp::Fill(QMenu& native, const MenuEntry& entry) {
  native.installEventFilter(this);
  for (MenuEntry* child : entry.Entries()) {
    QAction* action = nullptr;
    if (child->IsSeparator()) {
      action = native.addSeparator();
    } else if (!child->Entries().empty()) {
      QMenu* const sub = native.addMenu(ToQt(child->Caption()));
      Fill(*sub, *child);
      action = sub->menuAction();
    } else {
      action = native.addAction(ToQt(child->Caption()));
    }
    action->setData(QVariant::fromValue(static_cast<void*>(child)));
    action->setVisible(child->Visible());
    action->setEnabled(child->Enabled());
    if (!child->Checked()) continue;
    action->setCheckable(true);
    action->setChecked(true);
  }
}

void MenuPopUp::Run(const QPoint& global, ControlWidget& within) {
  Menu* const menu = menu_.Get();
  if (!menu) return;
  window_ = within.window();
  menu->Opened(*site_.Get());
  native_.setPalette(within.palette());
  const QString title = ToQt(PlainCaption(menu->Caption()));
  native_.setAccessibleName(title.isEmpty() ? SpokenNameOf(within) : title);
  if (native_.isEmpty()) return menu->Close();
  // Without a transient parent some window systems refuse a pop-up.
  native_.winId();
  native_.windowHandle()->setTransientParent(window_->windowHandle());
  native_.popup(global);
  WaitLoop([this] { return !native_.isVisible(); }).Run();
  native_.hide();
  if (MenuEntry* entry = chosen_.Get(); entry && site_) entry->Choose();
  if (menu_) menu_->Close();
}

void MenuPopUp::Dismiss() {
  chosen_ = {};
  native_.hide();
  if (menu_) menu_->Close();
}

QMenu* MenuPopUp::OpenOn(const QtSite& site) {
  for (MenuPopUp* open = innermost; open; open = open->outer_) {
    if (open->site_.Get() == &site && open->native_.isVisible()) return &open->native_;
  }
  return nullptr;
}

void MenuPopUp::SiteEnds(const QtSite& site) {
  for (MenuPopUp* open = innermost; open; open = open->outer_) {
    if (open->site_.Get() == &site) open->Dismiss();
  }
}

bool MenuPopUp::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::MouseMove) MoveBeyond(static_cast<const QMouseEvent&>(*event));
  return false;
}

void MenuPopUp::MoveBeyond(const QMouseEvent& event) {
  // The open menu has grabbed the mouse, but the control goes on watching it.
  const QPoint global = event.globalPosition().toPoint();
  if (!window_ || !site_) return;
  for (const QMenu* menu : native_.findChildren<QMenu*>()) {
    if (menu->isVisible() && menu->geometry().contains(global)) return;
  }
  if (native_.geometry().contains(global)) return;
  for (QWidget* hit = window_->childAt(window_->mapFromGlobal(global)); hit; hit = hit->parentWidget()) {
    if (auto* peer = dynamic_cast<Peer*>(hit)) return peer->MouseMoved(event);
  }
}

}  // namespace tactix::qt
