#pragma once

#include "tactix-qt/DecisionToolBar.h"
#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/DecisionBAR2.h"

namespace tactix::qt {

/// The decision toolbar as a widget, see tactix::DecisionBAR2.
class TACTIX_QT_EXPORT DecisionBAR2 : public WidgetOf<tactix::DecisionBAR2, DecisionToolBarControl> {
  Q_OBJECT

 public:
  explicit DecisionBAR2(QWidget* parent = nullptr);
  ~DecisionBAR2() override;

 public Q_SLOTS:
  /// Unpress the three buttons of a group that name a value.
  void ResetTheHitcardPredictionButtons();
  void ResetTheHoleCardPredictionButtons();
};

}  // namespace tactix::qt
