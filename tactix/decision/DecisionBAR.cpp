#include "tactix/decision/DecisionBAR.h"

namespace tactix {

DecisionBAR::DecisionBAR(Site& site) : DecisionToolBarControl(site), Children(site) {
  Build(Children, "Decision BAR");
  Children.DecisionToolBar.ToolTipText("Right-Click to bring up DecisionBAR Settings Menu");
}

DecisionBAR::~DecisionBAR() { MarkAsGone(); }

}  // namespace tactix
