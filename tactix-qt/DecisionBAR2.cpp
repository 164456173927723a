#include "tactix-qt/DecisionBAR2.h"

namespace tactix::qt {

namespace {

std::unique_ptr<tactix::DecisionToolBarControl> Make(Site& site) {
  return std::make_unique<tactix::DecisionBAR2>(site);
}

}  // namespace

DecisionBAR2::DecisionBAR2(QWidget* parent) : DecisionToolBarControl(Make, parent) {}

DecisionBAR2::~DecisionBAR2() = default;

void DecisionBAR2::ResetTheHitcardPredictionButtons() { control().ResetTheHitcardPredictionButtons(); }
void DecisionBAR2::ResetTheHoleCardPredictionButtons() { control().ResetTheHoleCardPredictionButtons(); }

}  // namespace tactix::qt
