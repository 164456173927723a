#include "tactix-qt/HitStandLegend.h"

namespace tactix::qt {

HitStandLegend::HitStandLegend(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::HitStandLegend>(ItsSite());
  legend_ = control.get();
  Own(std::move(control));
  tactix::HitStandLegend::EventSet& events = legend_->Events;
  events.HitWasSelected.Connect([this] { Q_EMIT HitWasSelected(); });
  events.StandWasSelected.Connect([this] { Q_EMIT StandWasSelected(); });
  events.SplitWasSelected.Connect([this] { Q_EMIT SplitWasSelected(); });
  events.DoubleWasSelected.Connect([this] { Q_EMIT DoubleWasSelected(); });
  events.SurrenderWasSelected.Connect([this] { Q_EMIT SurrenderWasSelected(); });
}

HitStandLegend::~HitStandLegend() { EndControl(); }

}  // namespace tactix::qt
