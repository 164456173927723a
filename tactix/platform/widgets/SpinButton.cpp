#include "tactix/platform/widgets/SpinButton.h"

namespace tactix {

void SpinButton::Spin(Event<>& direction) {
  Perform([this, &direction] {
    const Weak<SpinButton> self(this);
    SetFocus();
    if (self && Usable()) direction.Raise();
  });
}

bool SpinButton::TakesKey(const KeyPress& key) {
  if ((key.shift & (CtrlKey | AltKey)) != 0) return false;
  if (key.code != UpArrowKey && key.code != DownArrowKey) return false;
  key.code == UpArrowKey ? SpinUp() : SpinDown();
  return true;
}

}  // namespace tactix
