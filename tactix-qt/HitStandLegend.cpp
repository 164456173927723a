#include "tactix-qt/HitStandLegend.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

HitStandLegend::HitStandLegend(QWidget* parent) : WidgetOf(parent) {
  using Events = Core::EventSet;
  Relay(&Events::HitWasSelected, &HitStandLegend::HitWasSelected);
  Relay(&Events::StandWasSelected, &HitStandLegend::StandWasSelected);
  Relay(&Events::SplitWasSelected, &HitStandLegend::SplitWasSelected);
  Relay(&Events::DoubleWasSelected, &HitStandLegend::DoubleWasSelected);
  Relay(&Events::SurrenderWasSelected, &HitStandLegend::SurrenderWasSelected);
}

HitStandLegend::~HitStandLegend() { EndControl(); }

}  // namespace tactix::qt
