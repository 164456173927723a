#include "tactix-qt/DualCardCountDisplay.h"

#include <memory>
#include <utility>

namespace tactix::qt {

DualCardCountDisplay::DualCardCountDisplay(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::DualCardCountDisplay>(ItsSite());
  display_ = control.get();
  Own(std::move(control));
}

DualCardCountDisplay::~DualCardCountDisplay() { EndControl(); }

void DualCardCountDisplay::TrueCountValue(int value) { display_->TrueCountValue(value); }
void DualCardCountDisplay::RunningCountValue(int value) { display_->RunningCountValue(value); }
void DualCardCountDisplay::ShadowBoxStatus(int status) { display_->ShadowBoxStatus(status); }

}  // namespace tactix::qt
