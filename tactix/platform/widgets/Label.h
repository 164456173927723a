#pragma once

#include <string>
#include <string_view>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

enum class TextAlignment { Left, Center, Right };

/// A caption, or a value, as text.
class TACTIX_EXPORT Label final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::Label; }

  /// Where the caption stands across the label, left by default.
  TextAlignment Alignment() const { return alignment_; }
  void Alignment(TextAlignment alignment) {
    if (alignment == alignment_) return;
    alignment_ = alignment;
    Notify(Aspect::Align);
  }

  /// What a screen reader says before the caption, for a label that shows a bare value; empty by default.
  const std::string& Heading() const { return heading_; }
  void Heading(std::string_view heading) {
    if (heading == heading_) return;
    heading_.assign(heading);
    Notify(Aspect::Caption);
  }

  /// The user clicks it. A label whose click has no handlers lets the mouse through to its parent.
  void Click() {
    Perform([this] { Clicked.Raise(); });
  }
  bool TakesClicks() const { return Clicked.HasHandlers(); }

  Event<> Clicked{0, "Click"};

 private:
  std::string heading_;
  TextAlignment alignment_ = TextAlignment::Left;
};

}  // namespace tactix
