#include "tactix/platform/FocusKeeper.h"

#include <vector>

#include "tactix/platform/Control.h"

namespace tactix {

void FocusKeeper::MoveTo(Widget* widget) {
  const Widget* const before = focus_.Get();
  if (widget == before) return;
  focus_ = widget ? Weak<Widget>(widget) : Weak<Widget>();
  std::vector<Weak<Extender>> entered;
  for (Widget* at = widget; at; at = at->Parent()) {
    if (at->Kind() == WidgetKind::Extender && !at->Contains(before)) entered.emplace_back(static_cast<Extender*>(at));
  }
  const Weak<FocusKeeper> self(this);
  for (auto extender = entered.rbegin(); extender != entered.rend(); ++extender) {
    if (!self || focus_.Get() != widget) return;
    if (*extender) extender->Get()->ItsControl().GotFocus();
  }
}

}  // namespace tactix
