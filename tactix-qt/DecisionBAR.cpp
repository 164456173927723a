#include "tactix-qt/DecisionBAR.h"

namespace tactix::qt {

DecisionBAR::DecisionBAR(QWidget* parent) : WidgetOf(parent) {}

DecisionBAR::~DecisionBAR() { EndControl(); }

}  // namespace tactix::qt
