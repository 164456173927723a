#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ImageList.h"
#include "tactix/platform/widgets/ToolButton.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix {

/// A strip of buttons with pictures, found by their keys, docked to an edge of its control.
class TACTIX_EXPORT ToolBar final : public Widget {
 public:
  WidgetKind Kind() const override { return WidgetKind::ToolBar; }

  /// Adds buttons after those that are there.
  void AddButtons(std::span<const ToolButtonDesign> designs);
  std::span<const std::unique_ptr<ToolButton>> Buttons() const { return buttons_; }
  /// The button with that key, compared with case; fails with 9 when there is none.
  ToolButton& Button(std::string_view key) const;

  /// The list that the buttons' picture numbers refer to; null until it is set.
  const ImageList* Pictures() const { return pictures_; }
  void Pictures(const ImageList& pictures) { pictures_ = &pictures; }

  /// The docking: 0 none, 1 top, 2 bottom, 3 left, 4 right; 0 by default. Any other number is kept and docks nowhere.
  std::int32_t Align() const { return align_; }
  void Align(std::int32_t align);
  bool IsVertical() const { return align_ == 3 || align_ == 4; }

  Event<ToolButton&> ButtonClicked{0, "ButtonClick"};

 private:
  friend class ToolButton;
  void ButtonChanged(ToolButton& button);
  void UnpressTheOthers(const ToolButton& button);
  void ClickButton(ToolButton& button);

  std::vector<std::unique_ptr<ToolButton>> buttons_;
  const ImageList* pictures_ = nullptr;
  std::int32_t align_ = 0;
};

}  // namespace tactix
