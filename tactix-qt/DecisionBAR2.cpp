#include "tactix-qt/DecisionBAR2.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

DecisionBAR2::DecisionBAR2(QWidget* parent) : WidgetOf(parent) {}

DecisionBAR2::~DecisionBAR2() { EndControl(); }

void DecisionBAR2::ResetTheHitcardPredictionButtons() { Call(&Core::ResetTheHitcardPredictionButtons); }
void DecisionBAR2::ResetTheHoleCardPredictionButtons() { Call(&Core::ResetTheHoleCardPredictionButtons); }

}  // namespace tactix::qt
