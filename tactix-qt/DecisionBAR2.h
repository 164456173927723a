#pragma once

#include "tactix-qt/DecisionToolBar.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/DecisionBAR2.h"

namespace tactix::qt {

/// The decision toolbar as a widget: tactix::DecisionBAR2 with its properties, signals and slots.
class TACTIX_QT_EXPORT DecisionBAR2 : public DecisionToolBarControl {
  Q_OBJECT

 public:
  explicit DecisionBAR2(QWidget* parent = nullptr);
  ~DecisionBAR2() override;

  tactix::DecisionBAR2& control() const { return static_cast<tactix::DecisionBAR2&>(*Hosted()); }

 public Q_SLOTS:
  void ResetTheHitcardPredictionButtons();
  void ResetTheHoleCardPredictionButtons();
};

}  // namespace tactix::qt
