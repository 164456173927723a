#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <deque>
#include <utility>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/MenuPopUp.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/SpinButtonPeer.h"
#include "tactix-qt/peers/ToolBarPeer.h"
#include "tests/support-qt/Gestures.h"
#include "tests/support-qt/TestClock.h"
#include "tests/support/Robot.h"

namespace tactix::tests {

namespace {

/// Real widgets in a real window on Qt's offscreen platform, on a clock of the test's.
class QtRobot final : public Robot, private QObject {
 public:
  QtRobot() {
    qt::QtSite::BeepWith([this] { ++beeps_; });
    qApp->installEventFilter(this);
  }
  ~QtRobot() override {
    qt::QtSite::BeepWith({});
    delete window_;
    Settle();
  }

  tactix::Site& NewSite() override {
    MakeWindow();
    auto* const host = new qt::ControlWidget(window_);
    hosts_.emplace_back(host);
    connect(host, &qt::ControlWidget::propertyChanged, this, [this](const QString& name) {
      changes_.push_back(name.toStdString());
      if (const auto handler = onPropertyChanged_) handler();
    });
    connect(host, &qt::ControlWidget::unhandledError, this,
            [this](const QString& text, int code) { errors_.emplace_back(code, text.toStdString()); });
    return host->ItsSite();
  }

  void Show(Control& control) override {
    int top = 1;
    int right = 900;
    for (const QPointer<qt::ControlWidget>& host : hosts_) {
      if (!host) continue;
      if (&host->ItsSite() == &control.ItsSite().Outermost()) {
        host->Host(control);
        host->move(0, top);
      }
      if (!host->Hosted()) continue;
      top = std::max(top, host->geometry().bottom() + 1);
      right = std::max(right, host->geometry().right() + 1);
    }
    window_->resize(std::max(window_->width(), right), std::max(top, 400));
    for (const QPointer<qt::ControlWidget>& host : hosts_) {
      if (host && host->Hosted() == &control && control.Extender().Visible()) host->show();
    }
    window_->show();
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_));
    Settle();
  }

  void DestroyWindow(const std::function<void()>& destroyControls) override {
    destroyControls();
    delete window_;
  }

  void Click(PushButton& button) override {
    if (const auto place = PlaceOf(button)) ClickAt(*window_, *place);
    Settle();
  }

  void Click(ToolButton& button) override {
    auto* const bar = qobject_cast<QToolBar*>(NativeOf(button.Bar()));
    QAction* const action = qt::ToolBarPeer::ActionOf(button);
    if (bar && action) ClickOnBar(*bar, *action);
    Settle();
  }

  void Click(Label& label) override {
    if (const auto place = PlaceOf(label)) ClickAt(*window_, *place);
    Settle();
  }

  void PressByKey(ToolButton& button) override {
    auto* const bar = qobject_cast<QToolBar*>(NativeOf(button.Bar()));
    QAction* const action = qt::ToolBarPeer::ActionOf(button);
    Activate();
    if (bar && action && bar->isVisible()) PressOnBar(*bar, *action);
    Settle();
  }

  void MouseDown(ToolButton& button, std::int16_t mouseButton, std::int16_t shift) override {
    const QWidget* const native = qt::ToolBarPeer::NativeOf(button);
    if (const auto place = native ? ReachablePlace(*native) : std::nullopt) {
      Drag(*window_, *place, mouseButton == LeftButton ? QPoint(window_->width() - 1, 0) : *place, mouseButton, shift);
    }
    Settle();
  }

  void Click(OptionButton& button) override {
    if (const auto place = PlaceOf(button)) ClickAt(*window_, *place);
    Settle();
  }

  void MouseDown(Widget& widget, std::int16_t button, std::int16_t shift) override {
    if (const auto place = PlaceOf(widget)) {
      // Let go beside a push button, so that it takes the press for no click.
      const bool clicks = widget.Kind() == WidgetKind::PushButton && button == LeftButton;
      Drag(*window_, *place, clicks ? QPoint(window_->width() - 1, 0) : *place, button, shift);
    }
    Settle();
  }

  void MouseMove(Widget& widget, std::int16_t shift) override {
    if (const auto place = PlaceOf(widget)) MoveTo(*window_, *place, shift);
    Settle();
  }

  void PressKey(std::int32_t code, std::int16_t shift) override {
    Activate();
    if (window_ && window_->isVisible()) tests::PressKey(*window_, code, shift);
    Settle();
  }

  void PickRow(ListBox& list, std::int32_t row, PickBy by) override {
    auto* const box = qobject_cast<QComboBox*>(NativeOf(list));
    if (!box || !box->isVisible() || !box->isEnabled()) return;
    if (by == PickBy::Mouse) {
      PickByMouse(*box, row);
      return Settle();
    }
    const Weak<ListBox> target(list);
    Activate();
    box->setFocus(Qt::TabFocusReason);
    Settle();
    if (!target) return;
    if (by == PickBy::ReturnKey) {
      PickByReturn(*box, row);
    } else if (row == list.ListIndex() + 1) {
      PressKey(DownArrowKey, 0);
    } else if (row == list.ListIndex() - 1) {
      PressKey(UpArrowKey, 0);
    }
    Settle();
  }

  void SpinUp(SpinButton& spin, SpinBy by) override { Spin(spin, &qt::SpinButtonPeer::UpButton, UpArrowKey, by); }

  void SpinDown(SpinButton& spin, SpinBy by) override { Spin(spin, &qt::SpinButtonPeer::DownButton, DownArrowKey, by); }

  void OnNextMenu(std::function<void(Menu&)> script) override { scripts_.push_back(std::move(script)); }

  void Choose(Menu& menu, MenuEntry& entry) override {
    if (QMenu* open = OpenMenuOf(menu)) ClickEntry(*open, entry);
  }

  void After(std::int64_t milliseconds, std::function<void()> action) override {
    clock_.After(milliseconds, std::move(action));
  }

  void Wait(std::int64_t milliseconds) override { clock_.Wait(milliseconds); }

  void OnPropertyChanged(std::function<void()> handler) override { onPropertyChanged_ = std::move(handler); }

  int Beeps() const override { return beeps_; }
  std::vector<std::string> Changes() const override { return changes_; }
  std::vector<Error> Errors() const override { return errors_; }

  Widget* Focus() const override {
    for (const QPointer<qt::ControlWidget>& host : hosts_) {
      if (Widget* focused = host ? host->ItsSite().Focus() : nullptr) return focused;
    }
    return nullptr;
  }

  bool SeesShown(const Widget& widget) const override {
    const QWidget* const native = NativeOf(widget);
    return native && native->isVisible();
  }

  std::string SeesText(const Widget& widget) const override {
    const QWidget* const native = NativeOf(widget);
    if (!native) return {};
    if (const auto* list = dynamic_cast<const qt::ListBoxPeer*>(native)) return list->ShownText().toStdString();
    const QVariant text = native->property("text");
    return PlainCaption((text.isValid() ? text : native->property("title")).toString().toStdString());
  }

  bool SeesEnabled(const Widget& widget) const override {
    const QWidget* const native = NativeOf(widget);
    return native && native->isEnabled();
  }

  bool SeesShown(const ToolButton& button) const override {
    // Also where there is no room for it: in the menu at the bar's end.
    const QAction* const action = qt::ToolBarPeer::ActionOf(button);
    return action && action->isVisible() && SeesShown(button.Bar());
  }

  std::string SeesText(const ToolButton& button) const override {
    const QToolButton* const native = qt::ToolBarPeer::NativeOf(button);
    return native ? native->text().toStdString() : std::string();
  }

  bool SeesEnabled(const ToolButton& button) const override {
    const QToolButton* const native = qt::ToolBarPeer::NativeOf(button);
    return native && native->isEnabled();
  }

  bool SeesPressed(const ToolButton& button) const override {
    const QToolButton* const native = qt::ToolBarPeer::NativeOf(button);
    return native && native->isChecked();
  }

  bool SeesMarked(const OptionButton& button) const override {
    const auto* const native = qobject_cast<QRadioButton*>(NativeOf(button));
    return native && native->isChecked();
  }

  bool SeesChecked(Menu& menu, const MenuEntry& entry) const override {
    const QMenu* const open = OpenMenuOf(menu);
    if (!open) return false;
    for (const QAction* action : open->findChildren<QAction*>()) {
      if (qt::MenuPopUp::EntryOf(*action) == &entry) return action->isChecked();
    }
    return false;
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* const menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(object) : nullptr;
    if (menu && !menu->parent()) {
      const auto drive = [this, open = QPointer<QMenu>(menu)] { DriveMenu(open); };
      QMetaObject::invokeMethod(this, drive, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  void MakeWindow() {
    if (window_) return;
    window_ = new QWidget;
    window_->setObjectName(QStringLiteral("window"));
    // The focus starts outside of the controls.
    auto* const desk = new QWidget(window_);
    desk->setGeometry(0, 0, 1, 1);
    desk->setFocusPolicy(Qt::StrongFocus);
    desk->setFocus();
  }

  /// The offscreen platform leaves no window active behind a menu that closes; a real one gives it back.
  void Activate() {
    if (!window_ || window_->isActiveWindow() || QApplication::activePopupWidget()) return;
    window_->activateWindow();
    static_cast<void>(QTest::qWaitForWindowActive(window_));
  }

  void Spin(SpinButton& spin, qt::ArrowButton& (qt::SpinButtonPeer::*half)(), std::int32_t key, SpinBy by) {
    auto* const pair = dynamic_cast<qt::SpinButtonPeer*>(NativeOf(spin));
    const std::optional<QPoint> place = pair ? ReachablePlace((pair->*half)()) : std::nullopt;
    if (!place) return;
    if (by == SpinBy::Mouse) {
      // A click is no holding, however slow the machine is.
      (pair->*half)().setAutoRepeatDelay(60'000);
      ClickAt(*window_, *place);
    } else if (by == SpinBy::Wheel) {
      TurnWheel(*window_, *place,
                key == UpArrowKey ? QWheelEvent::DefaultDeltasPerStep : -QWheelEvent::DefaultDeltasPerStep);
    } else if (pair->isEnabled()) {
      Activate();
      const Weak<SpinButton> target(spin);
      pair->setFocus(Qt::TabFocusReason);
      Settle();
      if (target) PressKey(key, 0);
    }
    Settle();
  }

  std::optional<QPoint> PlaceOf(const Widget& widget) const {
    const QWidget* const native = NativeOf(widget);
    return native ? ReachablePlace(*native) : std::nullopt;
  }

  void DriveMenu(const QPointer<QMenu>& open) {
    Menu* const menu = open ? qt::MenuPopUp::MenuOf(*open) : nullptr;
    if (!menu) return;
    if (!scripts_.empty()) {
      const auto script = std::move(scripts_.front());
      scripts_.pop_front();
      script(*menu);
    }
    if (open) LeaveMenu(*open);
  }

  TestClock clock_;
  QPointer<QWidget> window_;
  std::vector<QPointer<qt::ControlWidget>> hosts_;
  std::deque<std::function<void(Menu&)>> scripts_;
  std::function<void()> onPropertyChanged_;
  std::vector<std::string> changes_;
  std::vector<Error> errors_;
  int beeps_ = 0;
};

}  // namespace

std::unique_ptr<Robot> Robot::Make() { return std::make_unique<QtRobot>(); }

}  // namespace tactix::tests
