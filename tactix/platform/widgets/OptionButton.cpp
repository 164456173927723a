#include "tactix/platform/widgets/OptionButton.h"

namespace tactix {

void OptionButton::Value(bool marked) {
  if (marked == marked_) return;
  marked_ = marked;
  Notify(Aspect::Value);
}

void OptionButton::Click() {
  Perform([this] {
    const Weak<OptionButton> self(this);
    SetFocus();
    if (!self || !Usable()) return;
    Value(true);
    if (self) Clicked.Raise();
  });
}

bool OptionButton::TakesKey(const KeyPress& key) {
  if (key.code != ' ' || (key.shift & (CtrlKey | AltKey)) != 0) return false;
  Click();
  return true;
}

bool OptionButton::ReadMember(std::string_view name, Variant& value) const {
  if (!SameName(name, "Value")) return Captioned::ReadMember(name, value);
  value = marked_;
  return true;
}

bool OptionButton::WriteMember(std::string_view name, const Variant& value) {
  if (!SameName(name, "Value")) return Captioned::WriteMember(name, value);
  Value(value.ToBoolean());
  return true;
}

}  // namespace tactix
