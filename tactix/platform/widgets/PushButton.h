#pragma once

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

class TACTIX_EXPORT PushButton final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::PushButton; }

  /// The default-button flag, false by default. At most one button of a window has it: setting it takes it from every
  /// other one, across nested controls. Enter presses that button if it is shown and enabled.
  bool DEFAULT() const { return default_; }
  void DEFAULT(bool isDefault);

  /// The user clicks it, or presses its access key: it takes the focus and, if it still can be used then, reports.
  void Click();

  Event<> Clicked{0, "Click"};

  bool ReadMember(std::string_view name, Variant& value) const override;
  bool WriteMember(std::string_view name, const Variant& value) override;

 private:
  bool TakesKey(const KeyPress& key) override;

  bool default_ = false;
};

}  // namespace tactix
