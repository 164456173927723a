#include "tactix/platform/widgets/Widget.h"

#include <algorithm>
#include <cmath>

#include "tactix/platform/Error.h"
#include "tactix/platform/Site.h"
#include "tactix/platform/widgets/Extender.h"

namespace tactix {

namespace {

/// Late-bound access to a widget that may be gone.
class WidgetHandle final : public Object {
 public:
  explicit WidgetHandle(Widget& widget) : widget_(widget) {}

  Variant Get(std::string_view name) override {
    Variant value;
    if (!Target().ReadMember(name, value)) throw Error(Error::NoSuchMember);
    return value;
  }
  void Put(std::string_view name, const Variant& value) override {
    // Asking an object of the host's for its value may end the widget. A control converts by itself: it may have
    // properties that are objects.
    const bool isControl = Target().Kind() == WidgetKind::Extender;
    const Variant taken = isControl ? value : value.Plain();
    if (!Target().WriteMember(name, taken)) throw Error(Error::NoSuchMember);
  }
  Variant Call(std::string_view name, std::span<Variant> arguments) override {
    Variant result;
    if (!Target().CallMember(name, arguments, result)) return Object::Call(name, arguments);
    return result;
  }

 private:
  Widget& Target() const {
    if (Widget* widget = widget_.Get()) return *widget;
    throw Error(Error::ObjectNotSet);
  }

  Weak<Widget> widget_;
};

struct GeometryMember {
  std::string_view name;
  float (Widget::*get)() const;
  void (Widget::*set)(float);
};

constexpr GeometryMember GeometryMembers[] = {
    {"Left", &Widget::Left, &Widget::Left},
    {"Top", &Widget::Top, &Widget::Top},
    {"Width", &Widget::Width, &Widget::Width},
    {"Height", &Widget::Height, &Widget::Height},
};

}  // namespace

char KeyPress::Letter() const {
  if (code >= 'a' && code <= 'z') return static_cast<char>(code - 'a' + 'A');
  return code >= 'A' && code <= 'Z' ? static_cast<char>(code) : '\0';
}

Widget::Widget() : foreColor_(WindowTextColor), backColor_(WindowColor) {}

Widget::~Widget() {
  if (observer_) observer_->Gone(*this);
  if (parent_) std::erase(parent_->children_, this);
  for (Widget* child : children_) child->parent_ = nullptr;
}

void Widget::Place(float left, float top, float width, float height) {
  for (const float length : {left, top, width, height}) {
    if (!std::isfinite(length)) throw Error(Error::InvalidPropertyValue);
  }
  if (left == left_ && top == top_ && width == width_ && height == height_) return;
  const bool sizeChanged = width != width_ || height != height_;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  const Weak<Widget> self(this);
  Notify(Aspect::Geometry);
  if (self) PlaceChanged(sizeChanged);
}

void Widget::Visible(bool visible) {
  if (visible == visible_) return;
  const Weak<Widget> self(this);
  if (!visible) YieldFocus();
  if (!self) return;
  visible_ = visible;
  Notify(Aspect::Visible);
}

void Widget::Enabled(bool enabled) {
  if (enabled == enabled_) return;
  const Weak<Widget> self(this);
  if (!enabled) YieldFocus();
  if (!self) return;
  enabled_ = enabled;
  Notify(Aspect::Enabled);
}

void Widget::YieldFocus() {
  Site* const site = OwnerSite();
  if (!site || !Contains(site->Focus())) return;
  Extender* owner = Owner();
  while (owner && !owner->Usable()) owner = owner->Owner();
  site->SetFocus(owner);
}

void Widget::ToolTipText(std::string_view text) {
  if (text == toolTipText_) return;
  toolTipText_.assign(text);
  Notify(Aspect::ToolTip);
}

void Widget::Font(const tactix::Font& font) {
  if (font == font_) return;
  font_ = font;
  Notify(Aspect::Font);
}

void Widget::ForeColor(Color color) {
  if (color == foreColor_) return;
  foreColor_ = color;
  Notify(Aspect::Colors);
}

void Widget::BackColor(Color color) {
  if (color == backColor_) return;
  backColor_ = color;
  Notify(Aspect::Colors);
}

void Widget::BringToFront() {
  if (!parent_ || parent_->children_.back() == this) return;
  auto& siblings = parent_->children_;
  const auto here = std::find(siblings.begin(), siblings.end(), this);
  std::rotate(here, here + 1, siblings.end());
  Notify(Aspect::Order);
}

void Widget::SendToBack() {
  if (!parent_ || parent_->children_.front() == this) return;
  auto& siblings = parent_->children_;
  const auto here = std::find(siblings.begin(), siblings.end(), this);
  std::rotate(siblings.begin(), here, here + 1);
  Notify(Aspect::Order);
}

void Widget::SetFocus() {
  Site* const site = Usable() ? OwnerSite() : nullptr;
  if (site && site->Focus() != this) site->SetFocus(this);
}

bool Widget::HasFocus() const {
  const Site* const site = OwnerSite();
  return site && site->Focus() == this;
}

void Widget::Add(Widget& child, std::string_view name) {
  child.parent_ = this;
  child.name_.assign(name);
  children_.push_back(&child);
}

bool Widget::Shown() const {
  for (const Widget* widget = this; widget; widget = widget->parent_) {
    if (!widget->visible_) return false;
  }
  return true;
}

bool Widget::Usable() const {
  for (const Widget* widget = this; widget; widget = widget->parent_) {
    if (!widget->visible_ || !widget->enabled_) return false;
  }
  return true;
}

bool Widget::Contains(const Widget* other) const {
  while (other && other != this) other = other->parent_;
  return other != nullptr;
}

Extender* Widget::Owner() const {
  for (Widget* widget = parent_; widget; widget = widget->parent_) {
    if (widget->Kind() == WidgetKind::Extender) return static_cast<Extender*>(widget);
  }
  return nullptr;
}

Site* Widget::OwnerSite() const {
  const Extender* const owner = Owner();
  return owner ? owner->OwnerSite() : nullptr;
}

float Widget::TwipsPerUnit() const {
  const Extender* const owner = Owner();
  return owner ? owner->TwipsPerInnerUnit() : 1.0F;
}

ObjectRef Widget::Handle() { return std::make_shared<WidgetHandle>(*this); }

bool Widget::ReadMember(std::string_view name, Variant& value) const {
  for (const GeometryMember& member : GeometryMembers) {
    if (!SameName(name, member.name)) continue;
    value = (this->*member.get)();
    return true;
  }
  if (SameName(name, "Visible")) {
    value = visible_;
  } else if (SameName(name, "Enabled")) {
    value = enabled_;
  } else if (SameName(name, "ToolTipText")) {
    value = toolTipText_;
  } else if (SameName(name, "Font")) {
    value = font_;
  } else if (SameName(name, "ForeColor")) {
    value = foreColor_;
  } else if (SameName(name, "BackColor")) {
    value = backColor_;
  } else {
    return false;
  }
  return true;
}

bool Widget::WriteMember(std::string_view name, const Variant& value) {
  for (const GeometryMember& member : GeometryMembers) {
    if (!SameName(name, member.name)) continue;
    (this->*member.set)(value.ToSingle());
    return true;
  }
  if (SameName(name, "Visible")) {
    Visible(value.ToBoolean());
  } else if (SameName(name, "Enabled")) {
    Enabled(value.ToBoolean());
  } else if (SameName(name, "ToolTipText")) {
    ToolTipText(value.ToText());
  } else if (SameName(name, "Font")) {
    Font(value.ToFont());
  } else if (SameName(name, "ForeColor")) {
    ForeColor(value.ToLong());
  } else if (SameName(name, "BackColor")) {
    BackColor(value.ToLong());
  } else {
    return false;
  }
  return true;
}

void Widget::MouseDown(const MouseState& state) {
  Perform([this, &state] { MousePressed.Raise(state); });
}

void Widget::MouseMove(const MouseState& state) {
  Perform([this, &state] { MouseMoved.Raise(state); });
}

bool Widget::KeyDown(const KeyPress& key) {
  if (!Usable()) return false;
  for (Widget* widget = this; widget; widget = widget->parent_) {
    if (widget == this && TakesKey(key)) return true;
    if (!widget->keyMap_) continue;
    // A copy, because the map may destroy its widget.
    Perform([map = widget->keyMap_, &key] { map(key); });
    return true;
  }
  return false;
}

}  // namespace tactix
