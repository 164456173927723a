#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Color.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/Font.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/UserAction.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class Extender;
class ListBox;
class Site;
class ToolBar;
class ToolButton;
class Widget;

enum class WidgetKind {
  Extender,
  Panel,
  Frame,
  Picture,
  Line,
  Label,
  PushButton,
  OptionButton,
  SpinButton,
  ListBox,
  ToolBar
};

/// Bits of the mouse buttons, by addition.
enum MouseButton : std::int16_t { LeftButton = 1, RightButton = 2, MiddleButton = 4 };

/// Bits of the shift state, by addition.
enum ShiftState : std::int16_t { ShiftKey = 1, CtrlKey = 2, AltKey = 4 };

/// Codes of keys that are no letters. A letter key's code is its letter, in either case.
enum Key : std::int32_t {
  ReturnKey = 0x01000004,
  EscapeKey = 0x01000000,
  HomeKey = 0x01000010,
  EndKey = 0x01000011,
  UpArrowKey = 0x01000013,
  DownArrowKey = 0x01000015,
  FunctionKey1 = 0x01000030,
};

/// A mouse press or move: buttons down, shift state, place in the widget's own units.
struct MouseState {
  std::int16_t button = 0;
  std::int16_t shift = 0;
  float x = 0;
  float y = 0;
};

struct KeyPress {
  std::int32_t code = 0;
  std::int16_t shift = 0;

  /// The upper-case letter A to Z that the key stands for, or 0 when it is no letter key.
  char Letter() const;
};

/// What about a widget has changed.
enum class Aspect {
  Geometry,
  Visible,
  Enabled,
  ToolTip,
  Font,
  Colors,
  Order,
  Caption,
  Default,
  Value,
  Row,
  Text,
  Align,
  Refresh
};

/// How a front end hears what has changed about a widget that it draws.
class TACTIX_EXPORT WidgetObserver {
 public:
  virtual ~WidgetObserver() = default;
  virtual void Changed(Widget& widget, Aspect aspect) = 0;
  virtual void RowInserted(ListBox&, std::int32_t) {}
  /// `count` rows were added at the end; `first` is the first of them.
  virtual void RowsAppended(ListBox& list, std::int32_t first, std::int32_t count) {
    for (std::int32_t row = first; row < first + count; ++row) RowInserted(list, row);
  }
  virtual void RowsCleared(ListBox&) {}
  virtual void ButtonChanged(ToolBar&, ToolButton&) {}
  /// The widget is being destroyed; the observer forgets it.
  virtual void Gone(Widget& widget) = 0;
};

/// A child widget as a control sees it: a plain value with notifications, which a front end draws. The upper half is
/// the control's side; the user's side does what a user can do to it and nothing a user can't: a widget that is hidden,
/// disabled, or inside one that is, does not react. Errors of a user's action end at the site.
class TACTIX_EXPORT Widget : public Trackable {
 public:
  Widget();
  virtual ~Widget();

  virtual WidgetKind Kind() const = 0;

  /// The name under which its control knows it.
  std::string_view Name() const { return name_; }

  /// Place inside the parent, in the control's scale units. A number that is not finite fails with 380.
  float Left() const { return left_; }
  void Left(float left) { Place(left, top_, width_, height_); }
  float Top() const { return top_; }
  void Top(float top) { Place(left_, top, width_, height_); }
  float Width() const { return width_; }
  void Width(float width) { Place(left_, top_, width, height_); }
  float Height() const { return height_; }
  void Height(float height) { Place(left_, top_, width_, height); }
  void Place(float left, float top, float width, float height);

  /// True by default. Hiding the widget that has the focus, or a parent of it, gives the focus to the control.
  bool Visible() const { return visible_; }
  void Visible(bool visible);
  /// True by default; disabling moves the focus as hiding does.
  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled);

  const std::string& ToolTipText() const { return toolTipText_; }
  void ToolTipText(std::string_view text);
  const tactix::Font& Font() const { return font_; }
  void Font(const tactix::Font& font);
  /// System window colours by default: the front end then uses its palette.
  Color ForeColor() const { return foreColor_; }
  void ForeColor(Color color);
  Color BackColor() const { return backColor_; }
  void BackColor(Color color);

  /// Above, or below, all its siblings.
  void BringToFront();
  void SendToBack();

  /// Draws it anew, with all that lies in it, before the call returns; without a front end nothing happens.
  void Refresh() { Notify(Aspect::Refresh); }

  /// Asks the site for the keyboard focus; a widget that is hidden or disabled does not take it.
  void SetFocus();
  bool HasFocus() const;

  /// Adds a child in front of the others. The parent does not own it.
  void Add(Widget& child, std::string_view name);
  Widget* Parent() const { return parent_; }
  /// Bottom of the z-order first.
  std::span<Widget* const> Children() const { return children_; }

  /// Visible, with all its parents.
  bool Shown() const;
  /// Shown and enabled, with all its parents.
  bool Usable() const;
  bool Contains(const Widget* other) const;

  /// The extender of the control that this widget belongs to (an extender belongs to the control around it), or null.
  Extender* Owner() const;
  /// The site of the control it belongs to, or null.
  virtual Site* OwnerSite() const;
  /// How many twips one unit of Left, Top, Width and Height is.
  virtual float TwipsPerUnit() const;

  /// A late-bound object with the widget's members; fails with 91 once the widget is gone.
  ObjectRef Handle();
  /// Late-bound access: false when it has no such property.
  virtual bool ReadMember(std::string_view name, Variant& value) const;
  virtual bool WriteMember(std::string_view name, const Variant& value);
  /// The same for a method. Only controls have methods.
  virtual bool CallMember(std::string_view, std::span<Variant>, Variant&) { return false; }

  void Observe(WidgetObserver* observer) { observer_ = observer; }
  WidgetObserver* Observer() const { return observer_; }

  // The user's side.
  void MouseDown(const MouseState& state);
  void MouseMove(const MouseState& state);
  /// A key pressed while this widget has the focus: runs its key map, or the nearest one around it, and only that.
  /// False when nothing took the key.
  bool KeyDown(const KeyPress& key);

  // What the control hears.
  Event<const MouseState&> MousePressed{0, "MouseDown"};
  Event<const MouseState&> MouseMoved{0, "MouseMove"};

  /// The key map: every key that reaches it counts as taken, even if it does nothing with it.
  using KeyMap = std::function<void(const KeyPress&)>;
  void OnKeyDown(KeyMap map) { keyMap_ = std::move(map); }
  bool HasKeyMap() const { return static_cast<bool>(keyMap_); }

 protected:
  void Notify(Aspect aspect) {
    if (observer_) observer_->Changed(*this, aspect);
  }
  /// A key that the widget itself understands, before any key map.
  virtual bool TakesKey(const KeyPress&) { return false; }
  virtual void PlaceChanged(bool /*sizeChanged*/) {}
  /// Runs an action of the user if the widget can be used.
  template <class Action>
  void Perform(Action&& action) {
    Site* const site = Usable() ? OwnerSite() : nullptr;
    if (site) RunUserAction(*site, std::forward<Action>(action));
  }

 private:
  friend class Extender;
  void YieldFocus();

  Widget* parent_ = nullptr;
  std::vector<Widget*> children_;
  WidgetObserver* observer_ = nullptr;
  KeyMap keyMap_;
  std::string name_;
  std::string toolTipText_;
  tactix::Font font_;
  float left_ = 0;
  float top_ = 0;
  float width_ = 0;
  float height_ = 0;
  Color foreColor_;
  Color backColor_;
  bool visible_ = true;
  bool enabled_ = true;
};

}  // namespace tactix
