#include "tactix-qt/StrategyDataPanel.h"

#include <memory>
#include <utility>

#include "tactix-qt/Convert.h"
#include "tactix-qt/Integers.h"

namespace tactix::qt {

StrategyDataPanel::StrategyDataPanel(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::StrategyDataPanel>(ItsSite());
  panel_ = control.get();
  Own(std::move(control));
  panel_->Events.PanelClick.Connect([this] { Q_EMIT PanelClick(); });
}

StrategyDataPanel::~StrategyDataPanel() { EndControl(); }

QString StrategyDataPanel::GetClumpStuff(int clumpType) const {
  return ToQt(panel_->GetClumpStuff(ToInt16(clumpType)));
}
void StrategyDataPanel::HereIsYourStrategyData(const ObjectRef& thisSDB) { panel_->HereIsYourStrategyData(thisSDB); }
void StrategyDataPanel::HereIsSomeStrategyDataBlockData(const ObjectRef& aStrategyDataBlock) {
  panel_->HereIsSomeStrategyDataBlockData(aStrategyDataBlock);
}
void StrategyDataPanel::StrategyDataBlockData(const ObjectRef& block) { panel_->StrategyDataBlockData(block); }
void StrategyDataPanel::ShadowBoxStatus(int status) { panel_->ShadowBoxStatus(status); }
void StrategyDataPanel::Refresh() { panel_->Refresh(); }
void StrategyDataPanel::TheKelvoEditionIs(const ObjectRef& theKelvoEdition) {
  panel_->TheKelvoEditionIs(theKelvoEdition);
}

}  // namespace tactix::qt
