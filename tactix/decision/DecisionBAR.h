#pragma once

#include "tactix/decision/DecisionToolBar.h"
#include "tactix/platform/Export.h"

namespace tactix {

/// The first form of the decision toolbar, kept so that host screens built for it go on working. It has no settings
/// menu, although its tool tip promises one, and cannot unpress a single prediction group.
class TACTIX_EXPORT DecisionBAR : public DecisionToolBarControl {
 public:
  explicit DecisionBAR(Site& site);
  ~DecisionBAR() override;

  struct ChildWidgets : CommonWidgets {
    using CommonWidgets::CommonWidgets;
  } Children;
};

}  // namespace tactix
