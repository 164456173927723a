#include "tactix/platform/widgets/ToolBar.h"

#include <algorithm>

#include "tactix/platform/Error.h"

namespace tactix {

void ToolBar::AddButtons(std::span<const ToolButtonDesign> designs) {
  for (const ToolButtonDesign& design : designs) buttons_.push_back(std::make_unique<ToolButton>(*this, design));
}

ToolButton& ToolBar::Button(std::string_view key) const {
  for (const auto& button : buttons_) {
    if (button->Key() == key) return *button;
  }
  throw Error(Error::SubscriptOutOfRange);
}

void ToolBar::Align(std::int32_t align) {
  if (align == align_) return;
  align_ = align;
  Notify(Aspect::Align);
}

void ToolBar::ButtonChanged(ToolButton& button) {
  if (Observer()) Observer()->ButtonChanged(*this, button);
}

void ToolBar::UnpressTheOthers(const ToolButton& button) {
  const auto self =
      std::find_if(buttons_.begin(), buttons_.end(), [&](const auto& each) { return each.get() == &button; });
  const auto isGroup = [](const auto& each) { return each->Style() == ToolButtonStyle::Group; };
  auto first = self;
  while (first != buttons_.begin() && isGroup(*(first - 1))) --first;
  for (auto each = first; each != buttons_.end() && isGroup(*each); ++each) {
    if (each != self) (*each)->Value(false);
  }
}

void ToolBar::ClickButton(ToolButton& button) {
  if (!button.Visible() || !button.Enabled() || button.Style() == ToolButtonStyle::Separator) return;
  Perform([this, &button] {
    const Weak<ToolBar> self(this);
    if (button.Style() == ToolButtonStyle::Group) button.Value(true);
    if (self) ButtonClicked.Raise(button);
  });
}

}  // namespace tactix
