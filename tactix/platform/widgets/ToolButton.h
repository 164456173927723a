#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"

namespace tactix {

class ToolBar;

/// Push: an ordinary button. Group: one of adjacent group buttons of which at most one is pressed. Separator: a gap.
enum class ToolButtonStyle { Push, Group, Separator };

/// What a toolbar's button is made from.
struct ToolButtonDesign {
  std::string_view key;
  std::string_view caption;
  std::string_view toolTip;
  std::int16_t picture;  ///< its number in the image list; 0 for none
  ToolButtonStyle style;
};

/// A button of a toolbar.
class TACTIX_EXPORT ToolButton final : public Trackable {
 public:
  ToolButton(ToolBar& bar, const ToolButtonDesign& design);

  /// The toolbar it is on.
  ToolBar& Bar() const { return bar_; }
  /// Its identity: compared with case.
  const std::string& Key() const { return key_; }
  const std::string& Caption() const { return caption_; }
  const std::string& ToolTipText() const { return toolTipText_; }
  std::int16_t Picture() const { return picture_; }
  ToolButtonStyle Style() const { return style_; }

  /// True by default.
  bool Visible() const { return visible_; }
  void Visible(bool visible);
  bool Enabled() const { return enabled_; }
  void Enabled(bool enabled);
  /// Pressed; false by default. Pressing a group button unpresses the others of its group.
  bool Value() const { return pressed_; }
  void Value(bool pressed);

  /// The user clicks it. A group button stays pressed; a click on the pressed one is a click, too.
  void Click();

  /// A late-bound object with "Key", "Caption", "ToolTipText", "Visible", "Enabled" and "Value" (-1 or 0); fails with
  /// 91 once the button is gone.
  ObjectRef Handle();

 private:
  ToolBar& bar_;
  std::string key_;
  std::string caption_;
  std::string toolTipText_;
  std::int16_t picture_;
  ToolButtonStyle style_;
  bool visible_ = true;
  bool enabled_ = true;
  bool pressed_ = false;
};

}  // namespace tactix
