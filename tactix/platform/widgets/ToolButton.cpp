#include "tactix/platform/widgets/ToolButton.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/widgets/ToolBar.h"

namespace tactix {

namespace {

/// Late-bound access to a button that may be gone.
class ToolButtonHandle final : public Object {
 public:
  explicit ToolButtonHandle(ToolButton& button) : button_(button) {}

  Variant Get(std::string_view name) override {
    const ToolButton& button = Target();
    if (SameName(name, "Key")) return button.Key();
    if (SameName(name, "Caption")) return button.Caption();
    if (SameName(name, "ToolTipText")) return button.ToolTipText();
    if (SameName(name, "Visible")) return button.Visible();
    if (SameName(name, "Enabled")) return button.Enabled();
    if (SameName(name, "Value")) return std::int32_t{button.Value() ? -1 : 0};
    return Object::Get(name);
  }
  void Put(std::string_view name, const Variant& value) override {
    Target();
    // Asking an object of the host's for its value may end the button.
    const Variant plain = value.Plain();
    ToolButton& button = Target();
    if (SameName(name, "Visible")) return button.Visible(plain.ToBoolean());
    if (SameName(name, "Enabled")) return button.Enabled(plain.ToBoolean());
    if (SameName(name, "Value")) return button.Value(plain.ToBoolean());
    Object::Put(name, value);
  }

 private:
  ToolButton& Target() const {
    if (ToolButton* button = button_.Get()) return *button;
    throw Error(Error::ObjectNotSet);
  }

  Weak<ToolButton> button_;
};

}  // namespace

ToolButton::ToolButton(ToolBar& bar, const ToolButtonDesign& design)
    : bar_(bar),
      key_(design.key),
      caption_(design.caption),
      toolTipText_(design.toolTip),
      picture_(design.picture),
      style_(design.style) {}

void ToolButton::Visible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  bar_.ButtonChanged(*this);
}

void ToolButton::Enabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  bar_.ButtonChanged(*this);
}

void ToolButton::Value(bool pressed) {
  if (pressed && style_ == ToolButtonStyle::Group) bar_.UnpressTheOthers(*this);
  if (pressed == pressed_) return;
  pressed_ = pressed;
  bar_.ButtonChanged(*this);
}

void ToolButton::Click() { bar_.ClickButton(*this); }

ObjectRef ToolButton::Handle() { return std::make_shared<ToolButtonHandle>(*this); }

}  // namespace tactix
