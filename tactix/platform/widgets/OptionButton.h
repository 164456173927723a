#pragma once

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/Captioned.h"

namespace tactix {

/// A captioned radio mark. It knows no group: a control that has several unmarks the others itself.
class TACTIX_EXPORT OptionButton final : public Captioned {
 public:
  WidgetKind Kind() const override { return WidgetKind::OptionButton; }

  /// Marked; false by default. Setting it reports nothing.
  bool Value() const { return marked_; }
  void Value(bool marked);

  /// The user clicks it, or presses its access key: it takes the focus and, if it still can be used then, is marked and
  /// reports, also when it was marked before.
  void Click();

  Event<> Clicked{0, "Click"};

  bool ReadMember(std::string_view name, Variant& value) const override;
  bool WriteMember(std::string_view name, const Variant& value) override;

 private:
  bool TakesKey(const KeyPress& key) override;

  bool marked_ = false;
};

}  // namespace tactix
