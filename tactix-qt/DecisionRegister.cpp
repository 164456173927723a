#include "tactix-qt/DecisionRegister.h"

namespace tactix::qt {

DecisionRegister::DecisionRegister(QWidget* parent) : WidgetOf(parent) {}

DecisionRegister::~DecisionRegister() { EndControl(); }

}  // namespace tactix::qt
