#pragma once

#include "tactix-qt/DecisionToolBar.h"
#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/DecisionBAR.h"

namespace tactix::qt {

/// The first form of the decision toolbar as a widget, see tactix::DecisionBAR.
class TACTIX_QT_EXPORT DecisionBAR : public WidgetOf<tactix::DecisionBAR, DecisionToolBarControl> {
  Q_OBJECT

 public:
  explicit DecisionBAR(QWidget* parent = nullptr);
  ~DecisionBAR() override;
};

}  // namespace tactix::qt
