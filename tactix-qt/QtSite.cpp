#include "tactix-qt/QtSite.h"

#include <QApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Convert.h"
#include "tactix-qt/MenuPopUp.h"
#include "tactix-qt/QtTimers.h"
#include "tactix-qt/WaitLoop.h"
#include "tactix-qt/peers/Peer.h"
#include "tactix/platform/UserAction.h"

namespace tactix::qt {

namespace {

std::vector<QtSite*>& AllSites() {
  static std::vector<QtSite*> sites;
  return sites;
}

std::function<void()>& BeepHook() {
  static std::function<void()> hook;
  return hook;
}

Color AmbientColor(const QWidget& widget, QPalette::ColorRole role, Color systemColor) {
  // A widget takes its parents' colours over, but not that they were set.
  for (const QWidget* at = &widget; at; at = at->isWindow() ? nullptr : at->parentWidget()) {
    if (at->palette().isBrushSet(QPalette::Active, role)) return FromQt(widget.palette().color(QPalette::Active, role));
  }
  return systemColor;
}

}  // namespace

void QtSite::DeleteLater::operator()(QObject* object) const { object->deleteLater(); }

QtSite::QtSite(ControlWidget& widget) : widget_(widget), timers_(new QtTimers) { AllSites().push_back(this); }

QtSite::~QtSite() {
  std::erase(AllSites(), this);
  MenuPopUp::SiteEnds(*this);
  timers_->StopAll();
}

void QtSite::BeepWith(std::function<void()> beep) { BeepHook() = std::move(beep); }

void QtSite::Attach(Control& control) { widget_.ControlAttached(control); }

void QtSite::Detach(Control& control) { widget_.ControlDetached(control); }

Font QtSite::AmbientFont() const { return FromQt(widget_.font()); }

// Qt adds what a widget inherits from those around it to the resolve mask.
QFont QtSite::HostFont() const { return widget_.font(); }

Color QtSite::AmbientForeColor() const { return AmbientColor(widget_, QPalette::WindowText, WindowTextColor); }

Color QtSite::AmbientBackColor() const { return AmbientColor(widget_, QPalette::Window, ButtonFaceColor); }

void QtSite::PropertyChanged(std::string_view name) { widget_.NotifyPropertyChanged(name); }

void QtSite::PropertyTouched() { widget_.NotifyTouched(); }

void QtSite::StartTimer(Timer& timer) { timers_->Start(timer); }

void QtSite::StopTimer(Timer& timer) { timers_->Stop(timer); }

void QtSite::RunUntil(const std::function<bool()>& done) { WaitLoop(done).Run(); }

void QtSite::Beep() {
  if (const auto beep = BeepHook()) {
    beep();
  } else {
    QApplication::beep();
  }
}

void QtSite::PopUp(Menu& menu, Widget& within, float x, float y) {
  const Peer* const peer = Peer::Of(within);
  const QWidget& native = peer ? peer->Native() : static_cast<QWidget&>(widget_);
  const float twips = within.Kind() == WidgetKind::Extender ? static_cast<Extender&>(within).TwipsPerInnerUnit()
                                                            : within.TwipsPerUnit();
  MenuPopUp(menu, *this).Run(native.mapToGlobal(QPoint(ToPixels(x * twips), ToPixels(y * twips))), widget_);
}

float QtSite::ScreenWidth() const { return ToTwips(widget_.screen()->size().width()); }

float QtSite::ScreenHeight() const { return ToTwips(widget_.screen()->size().height()); }

void QtSite::SetFocus(Widget* widget) {
  const Weak<QtSite> self(this);
  const Weak<Widget> target(widget);
  arrived_ = {};
  settingFocus_ = true;
  if (const Peer* peer = widget ? Peer::Of(*widget) : nullptr) {
    peer->Native().setFocus(Qt::OtherFocusReason);
  } else if (QWidget* focused = widget_.window()->focusWidget(); !widget && focused && widget_.isAncestorOf(focused)) {
    focused->clearFocus();
  }
  if (!self) return;
  settingFocus_ = false;
  focus_.MoveTo(target.Get());
}

Widget* QtSite::Focus() const {
  Widget* const arrived = arrived_.Get();
  return arrived ? arrived : focus_.Focus();
}

void QtSite::FocusArrived(Widget& widget) {
  if (settingFocus_) return;
  arrived_ = Weak<Widget>(widget);
  // Later: a control may wait, or end, when it hears of its focus, and Qt is still busy with moving it.
  if (!std::exchange(arrivalIsPosted_, true)) {
    QMetaObject::invokeMethod(
        &widget_, [this] { ReportArrival(); }, Qt::QueuedConnection);
  }
}

void QtSite::ReportArrival() {
  arrivalIsPosted_ = false;
  Widget* const widget = std::exchange(arrived_, {}).Get();
  if (!widget) return;
  RunUserAction(*this, [this, widget] { focus_.MoveTo(widget); });
}

void QtSite::FocusLeft() {
  if (settingFocus_) return;
  // Not isAncestorOf(): a list that drops down is a window, and the focus is still the control's.
  for (const QWidget* now = QApplication::focusWidget(); now; now = now->parentWidget()) {
    if (now == &widget_) return;
  }
  arrived_ = {};
  focus_.MoveTo(nullptr);
}

void QtSite::ReachChanged() { widget_.FindFocusEntry(); }

void QtSite::FontsChanged() { widget_.FontsChanged(); }

void QtSite::MadeDefault(PushButton& button) {
  const Weak<QtSite> self(this);
  const Weak<PushButton> kept(button);
  const QWidget* const window = widget_.window();
  // Sites may come and go while a button gives its flag up.
  std::vector<Weak<QtSite>> others;
  for (QtSite* site : AllSites()) {
    if (site->widget_.window() == window && site->default_) others.emplace_back(site);
  }
  for (const Weak<QtSite>& site : others) {
    PushButton* const before = site ? site->default_.Get() : nullptr;
    if (!before || before == &button) continue;
    site->default_ = {};
    before->DEFAULT(false);
  }
  if (self && kept) default_ = kept;
}

PushButton* QtSite::UsableDefault() const {
  PushButton* const button = default_.Get();
  const Peer* const peer = button ? Peer::Of(*button) : nullptr;
  // The control may be on a page of the host's that is not shown.
  return peer && button->DEFAULT() && button->Usable() && peer->Native().isVisible() && peer->Native().isEnabled()
             ? button
             : nullptr;
}

PushButton* QtSite::DefaultButton() const {
  const QWidget* const window = widget_.window();
  for (const QtSite* site : AllSites()) {
    if (site->widget_.window() != window) continue;
    if (PushButton* button = site->UsableDefault()) return button;
  }
  return nullptr;
}

void QtSite::Unhandled(const Error& error) { widget_.NotifyUnhandled(error); }

}  // namespace tactix::qt
