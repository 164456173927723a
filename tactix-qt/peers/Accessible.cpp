#include "tactix-qt/peers/Accessible.h"

#include <QAccessibleWidget>
#include <QAction>
#include <QToolButton>
#include <functional>

#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/ToolBarPeer.h"

namespace tactix::qt {

namespace {

/// A widget that a screen reader can press.
class Pressable : public QAccessibleWidget {
 public:
  explicit Pressable(QWidget& widget) : QAccessibleWidget(&widget) {}

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (CanBePressed()) names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& name) override {
    if (name != pressAction()) return QAccessibleWidget::doAction(name);
    // Queued: the screen reader waits for this call to return, and a click may take long.
    if (CanBePressed()) QMetaObject::invokeMethod(widget(), Press(), Qt::QueuedConnection);
  }

 protected:
  virtual bool CanBePressed() const { return widget()->isEnabled(); }
  /// What a press does to the widget. The function may run after this object is gone.
  virtual std::function<void()> Press() const = 0;
};

/// A button of a toolbar. With Qt's own class for it, a press would check the button without clicking it.
class ToolBarButton final : public Pressable {
 public:
  explicit ToolBarButton(QToolButton& button) : Pressable(button), button_(button) {}

  QAccessible::Role role() const override {
    return button_.isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
  }

  QAccessible::State state() const override {
    QAccessible::State state = Pressable::state();
    state.focusable = button_.isEnabled();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    return state;
  }

 protected:
  std::function<void()> Press() const override {
    return [&button = button_] { button.click(); };
  }

 private:
  QToolButton& button_;
};

/// A label, which is a button while it takes clicks. A control may begin to listen after Qt has created this object.
class LabelText final : public Pressable {
 public:
  explicit LabelText(LabelPeer& label) : Pressable(label), label_(label) {}

  QAccessible::Role role() const override {
    return label_.IsClickable() ? QAccessible::Button : QAccessible::StaticText;
  }

 protected:
  bool CanBePressed() const override { return label_.IsClickable() && Pressable::CanBePressed(); }
  std::function<void()> Press() const override {
    return [&label = label_] { label.Click(); };
  }

 private:
  LabelPeer& label_;
};

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* const button = qobject_cast<QToolButton*>(object)) {
    const bool isOfABar = button->defaultAction() && dynamic_cast<ToolBarPeer*>(button->parentWidget());
    return isOfABar ? new ToolBarButton(*button) : nullptr;
  }
  auto* const label = dynamic_cast<LabelPeer*>(object);
  return label ? new LabelText(*label) : nullptr;
}

}  // namespace

void InstallAccessibles() {
  static const bool installed = [] {
    QAccessible::installFactory(&MakeAccessible);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace tactix::qt
