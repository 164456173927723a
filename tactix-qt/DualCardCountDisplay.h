#pragma once

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/DualCardCountDisplay.h"

namespace tactix::qt {

/// The dual count display as a widget: tactix::DualCardCountDisplay with its slots. ShadowBoxStatus takes a colour, see
/// CardCountDisplayBox::ShadowBoxingConstants.
class TACTIX_QT_EXPORT DualCardCountDisplay : public ControlWidget {
  Q_OBJECT

 public:
  explicit DualCardCountDisplay(QWidget* parent = nullptr);
  ~DualCardCountDisplay() override;

  tactix::DualCardCountDisplay& control() const { return *display_; }

 public Q_SLOTS:
  void TrueCountValue(int value);
  void RunningCountValue(int value);
  void ShadowBoxStatus(int status);

 private:
  tactix::DualCardCountDisplay* display_;
};

}  // namespace tactix::qt
