#include "tactix-qt/peers/Accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QAction>
#include <QToolButton>
#include <functional>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/peers/AccessibleNames.h"
#include "tactix-qt/peers/AccessibleParts.h"
#include "tactix-qt/peers/AccessibleTree.h"
#include "tactix-qt/peers/LabelPeer.h"
#include "tactix-qt/peers/ListBoxPeer.h"
#include "tactix-qt/peers/OptionButtonPeer.h"
#include "tactix-qt/peers/PushButtonPeer.h"
#include "tactix-qt/peers/RootPeer.h"
#include "tactix-qt/peers/SpinButtonPeer.h"
#include "tactix-qt/peers/ToolBarPeer.h"

namespace tactix::qt {

namespace {

/// A control as its host sees it.
class WholeControl final : public AccessiblePart {
 public:
  explicit WholeControl(ControlWidget& shell) : AccessiblePart(shell, QAccessible::Grouping), shell_(shell) {}

  QAccessibleInterface* parent() const override { return QAccessibleWidget::parent(); }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    // The focus of a control that maps no keys is that of a child widget.
    const bool isItsOwn = dynamic_cast<const RootPeer*>(shell_.focusProxy()) != nullptr;
    state.focusable = state.focusable && isItsOwn;
    state.focused = state.focused && isItsOwn;
    return state;
  }

 protected:
  QString OwnName() const override { return SpokenNameOf(shell_); }

 private:
  ControlWidget& shell_;
};

/// The native widget that has the focus of a control as a whole. No reader finds it, but one that follows the focus
/// hears the control's name.
class FocusOfControl final : public AccessiblePart {
 public:
  explicit FocusOfControl(RootPeer& root) : AccessiblePart(root, QAccessible::Grouping) {}

 protected:
  QString OwnName() const override {
    const auto* const shell = qobject_cast<const ControlWidget*>(widget()->parentWidget());
    return shell ? SpokenNameOf(*shell) : QString();
  }
};

/// A push button or an option button.
class Button final : public PressablePart {
 public:
  Button(QAbstractButton& button, QAccessible::Role role) : PressablePart(button, role), button_(button) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Accelerator ? Shortcut() : PressablePart::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = PressablePart::state();
    state.pressed = button_.isDown();
    state.checkable = button_.isCheckable();
    state.checked = button_.isChecked();
    const auto* const push = qobject_cast<const QPushButton*>(&button_);
    state.defaultButton = push && push->isDefault();
    return state;
  }

  QStringList keyBindingsForAction(const QString& action) const override {
    return action == pressAction() && !Shortcut().isEmpty() ? QStringList{Shortcut()} : QStringList();
  }

 protected:
  std::function<void()> Press() const override {
    return [&button = button_] { button.click(); };
  }

 private:
  QString Shortcut() const { return button_.shortcut().toString(QKeySequence::NativeText); }

  QAbstractButton& button_;
};

/// A button of a toolbar. With Qt's own class for it, a press would check the button without clicking it.
class ToolBarButton final : public PressablePart {
 public:
  explicit ToolBarButton(QToolButton& button) : PressablePart(button, QAccessible::Button), button_(button) {}

  QAccessible::Role role() const override {
    return button_.isCheckable() ? QAccessible::RadioButton : QAccessible::Button;
  }

  QAccessible::State state() const override {
    QAccessible::State state = PressablePart::state();
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
class LabelText final : public PressablePart {
 public:
  explicit LabelText(LabelPeer& label) : PressablePart(label, QAccessible::StaticText), label_(label) {}

  QAccessible::Role role() const override {
    if (label_.IsClickable()) return QAccessible::Button;
    return label_.ItsWidget() && IsAnnounced(*label_.ItsWidget()) ? QAccessible::AlertMessage : QAccessible::StaticText;
  }

  QAccessible::State state() const override {
    QAccessible::State state = PressablePart::state();
    state.focusable = CanBePressed();
    return state;
  }

  QStringList actionNames() const override {
    QStringList names = PressablePart::actionNames();
    if (CanBePressed() && !names.contains(setFocusAction())) names.append(setFocusAction());
    return names;
  }

 protected:
  bool CanBePressed() const override { return label_.IsClickable() && PressablePart::CanBePressed(); }
  std::function<void()> Press() const override {
    return [&label = label_] { label.Click(); };
  }

 private:
  LabelPeer& label_;
};

/// A drop-down list. A press opens it.
class DropDownList final : public PressablePart {
 public:
  explicit DropDownList(ListBoxPeer& box) : PressablePart(box, QAccessible::ComboBox), box_(box) {}

  int childCount() const override { return box_.IsOpen() ? 1 : 0; }
  QAccessibleInterface* child(int index) const override {
    return box_.IsOpen() && index == 0 ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return box_.IsOpen() && child && child->object() == box_.view() ? 0 : -1;
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? box_.ShownText() : PressablePart::text(kind);
  }

  QAccessible::State state() const override {
    QAccessible::State state = PressablePart::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = box_.IsOpen();
    state.collapsed = !box_.IsOpen();
    return state;
  }

 protected:
  std::function<void()> Press() const override {
    return [&box = box_] { box.showPopup(); };
  }

 private:
  ListBoxPeer& box_;
};

/// A pair of arrow buttons, with the number that they step where they belong to a counter.
class SpinBox final : public AccessiblePart, public QAccessibleValueInterface {
 public:
  explicit SpinBox(SpinButtonPeer& spin) : AccessiblePart(spin, QAccessible::SpinBox), spin_(spin) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface && spin_.StepsANumber()) {
      return static_cast<QAccessibleValueInterface*>(this);
    }
    return AccessiblePart::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? currentValue().toString() : AccessiblePart::text(kind);
  }

  QStringList actionNames() const override {
    QStringList names = AccessiblePart::actionNames();
    if (spin_.isEnabled()) names << increaseAction() << decreaseAction();
    return names;
  }

  void doAction(const QString& name) override {
    if (name != increaseAction() && name != decreaseAction()) return AccessiblePart::doAction(name);
    const bool up = name == increaseAction();
    AfterTheCall([&spin = spin_, up] { up ? spin.StepUp() : spin.StepDown(); });
  }

  QVariant currentValue() const override { return spin_.Number(); }
  QVariant minimumValue() const override { return spin_.LowestNumber(); }
  QVariant maximumValue() const override { return spin_.HighestNumber(); }
  QVariant minimumStepSize() const override { return 1; }
  void setCurrentValue(const QVariant& value) override {
    AfterTheCall([&spin = spin_, number = value.toInt()] { spin.Number(number); });
  }

 private:
  SpinButtonPeer& spin_;
};

QAccessibleInterface* MakeAccessibleOf(Peer& peer) {
  if (auto* root = dynamic_cast<RootPeer*>(&peer)) return new FocusOfControl(*root);
  if (auto* label = dynamic_cast<LabelPeer*>(&peer)) return new LabelText(*label);
  if (auto* button = dynamic_cast<PushButtonPeer*>(&peer)) return new Button(*button, QAccessible::Button);
  if (auto* button = dynamic_cast<OptionButtonPeer*>(&peer)) return new Button(*button, QAccessible::RadioButton);
  if (auto* box = dynamic_cast<ListBoxPeer*>(&peer)) return new DropDownList(*box);
  if (auto* spin = dynamic_cast<SpinButtonPeer*>(&peer)) return new SpinBox(*spin);
  const bool isABar = dynamic_cast<ToolBarPeer*>(&peer) != nullptr;
  return new AccessiblePart(peer.Native(), isABar ? QAccessible::ToolBar : QAccessible::Grouping);
}

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* shell = qobject_cast<ControlWidget*>(object)) return new WholeControl(*shell);
  if (auto* peer = dynamic_cast<Peer*>(object)) return MakeAccessibleOf(*peer);
  auto* const button = qobject_cast<QToolButton*>(object);
  const bool isOfABar = button && button->defaultAction() && dynamic_cast<ToolBarPeer*>(button->parentWidget());
  return isOfABar ? new ToolBarButton(*button) : nullptr;
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
