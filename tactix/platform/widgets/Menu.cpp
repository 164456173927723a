#include "tactix/platform/widgets/Menu.h"

#include "tactix/platform/Site.h"
#include "tactix/platform/UserAction.h"

namespace tactix {

void MenuEntry::Add(MenuEntry& entry) {
  entry.parent_ = this;
  entries_.push_back(&entry);
}

void MenuEntry::Choose() {
  if (IsSeparator() || !entries_.empty()) return;
  MenuEntry* top = this;
  for (;; top = top->parent_) {
    if (!top->enabled_ || !top->visible_) return;
    if (!top->parent_) break;
  }
  Site* const site = top->OpenOn();
  if (!site) return;
  top->Close();
  RunUserAction(*site, [this] { Chosen.Raise(); });
}

}  // namespace tactix
