#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/decision/HitStandLegend.h"

namespace tactix::qt {

/// The legend of the five decisions as a widget, see WidgetOf and tactix::HitStandLegend.
class TACTIX_QT_EXPORT HitStandLegend : public WidgetOf<tactix::HitStandLegend> {
  Q_OBJECT

 public:
  explicit HitStandLegend(QWidget* parent = nullptr);
  ~HitStandLegend() override;

 Q_SIGNALS:
  void HitWasSelected();
  void StandWasSelected();
  void SplitWasSelected();
  void DoubleWasSelected();
  void SurrenderWasSelected();
};

}  // namespace tactix::qt
