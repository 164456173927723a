#include "tactix-qt/DecisionRegiLOG.h"

namespace tactix::qt {

DecisionRegiLOG::DecisionRegiLOG(QWidget* parent) : WidgetOf(parent) {}

DecisionRegiLOG::~DecisionRegiLOG() { EndControl(); }

}  // namespace tactix::qt
