#include "tactix-qt/DecisionBAR.h"

namespace tactix::qt {

namespace {

std::unique_ptr<tactix::DecisionToolBarControl> Make(Site& site) { return std::make_unique<tactix::DecisionBAR>(site); }

}  // namespace

DecisionBAR::DecisionBAR(QWidget* parent) : DecisionToolBarControl(Make, parent) {}

DecisionBAR::~DecisionBAR() = default;

}  // namespace tactix::qt
