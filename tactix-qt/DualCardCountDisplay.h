#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/DualCardCountDisplay.h"

namespace tactix::qt {

/// The dual count display as a widget, see WidgetOf and tactix::DualCardCountDisplay.
class TACTIX_QT_EXPORT DualCardCountDisplay : public WidgetOf<tactix::DualCardCountDisplay> {
  Q_OBJECT

 public:
  explicit DualCardCountDisplay(QWidget* parent = nullptr);
  ~DualCardCountDisplay() override;

 public Q_SLOTS:
  /// Show a value in one of the boxes.
  void TrueCountValue(int value);
  void RunningCountValue(int value);
  /// The colour behind both values, 0x00BBGGRR, see CardCountDisplayBox::ShadowBoxingConstants.
  void ShadowBoxStatus(int status);
};

}  // namespace tactix::qt
