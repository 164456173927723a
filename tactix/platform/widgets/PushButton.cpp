#include "tactix/platform/widgets/PushButton.h"

#include "tactix/platform/Site.h"

namespace tactix {

void PushButton::DEFAULT(bool isDefault) {
  if (isDefault == default_) return;
  default_ = isDefault;
  const Weak<PushButton> self(this);
  Notify(Aspect::Default);
  if (default_ && self) {
    if (Site* site = OwnerSite()) site->MadeDefault(*this);
  }
}

void PushButton::Click() {
  Perform([this] {
    const Weak<PushButton> self(this);
    SetFocus();
    if (self && Usable()) Clicked.Raise();
  });
}

bool PushButton::TakesKey(const KeyPress& key) {
  if (key.code != ' ' || (key.shift & (CtrlKey | AltKey)) != 0) return false;
  Click();
  return true;
}

bool PushButton::ReadMember(std::string_view name, Variant& value) const {
  if (!SameName(name, "DEFAULT")) return Captioned::ReadMember(name, value);
  value = default_;
  return true;
}

bool PushButton::WriteMember(std::string_view name, const Variant& value) {
  if (!SameName(name, "DEFAULT")) return Captioned::WriteMember(name, value);
  DEFAULT(value.ToBoolean());
  return true;
}

}  // namespace tactix
