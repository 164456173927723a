#include "tactix-qt/StrategyDataPanel.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

StrategyDataPanel::StrategyDataPanel(QWidget* parent) : WidgetOf(parent) {
  Relay(&Core::EventSet::PanelClick, &StrategyDataPanel::PanelClick);
}

StrategyDataPanel::~StrategyDataPanel() { EndControl(); }

QString StrategyDataPanel::GetClumpStuff(int clumpType) const { return Get<QString>(&Core::GetClumpStuff, clumpType); }

void StrategyDataPanel::HereIsYourStrategyData(const ObjectRef& thisSDB) {
  Call(&Core::HereIsYourStrategyData, thisSDB);
}
void StrategyDataPanel::HereIsSomeStrategyDataBlockData(const ObjectRef& aStrategyDataBlock) {
  Call(&Core::HereIsSomeStrategyDataBlockData, aStrategyDataBlock);
}
void StrategyDataPanel::StrategyDataBlockData(const ObjectRef& block) { Call(&Core::StrategyDataBlockData, block); }
void StrategyDataPanel::ShadowBoxStatus(int status) { Call(&Core::ShadowBoxStatus, status); }
void StrategyDataPanel::Refresh() { Call(&Core::Refresh); }
void StrategyDataPanel::TheKelvoEditionIs(const ObjectRef& theKelvoEdition) {
  Call(&Core::TheKelvoEditionIs, theKelvoEdition);
}

}  // namespace tactix::qt
