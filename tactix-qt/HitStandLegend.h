#pragma once

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/HitStandLegend.h"

namespace tactix::qt {

/// The legend of the five decisions as a widget: tactix::HitStandLegend with its signals.
class TACTIX_QT_EXPORT HitStandLegend : public ControlWidget {
  Q_OBJECT

 public:
  explicit HitStandLegend(QWidget* parent = nullptr);
  ~HitStandLegend() override;

  tactix::HitStandLegend& control() const { return *legend_; }

 Q_SIGNALS:
  void HitWasSelected();
  void StandWasSelected();
  void SplitWasSelected();
  void DoubleWasSelected();
  void SurrenderWasSelected();

 private:
  tactix::HitStandLegend* legend_;
};

}  // namespace tactix::qt
