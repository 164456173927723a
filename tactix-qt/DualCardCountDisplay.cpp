#include "tactix-qt/DualCardCountDisplay.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

DualCardCountDisplay::DualCardCountDisplay(QWidget* parent) : WidgetOf(parent) {}

DualCardCountDisplay::~DualCardCountDisplay() { EndControl(); }

void DualCardCountDisplay::TrueCountValue(int value) { Call(&Core::TrueCountValue, value); }
void DualCardCountDisplay::RunningCountValue(int value) { Call(&Core::RunningCountValue, value); }
void DualCardCountDisplay::ShadowBoxStatus(int status) { Call(&Core::ShadowBoxStatus, status); }

}  // namespace tactix::qt
