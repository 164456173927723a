#include "tactix-qt/CardCountDisplayBox.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

CardCountDisplayBox::CardCountDisplayBox(QWidget* parent) : WidgetOf(parent) {}

CardCountDisplayBox::~CardCountDisplayBox() { EndControl(); }

CardCountDisplayBox::TypeOfCountBox CardCountDisplayBox::CountBoxType() const {
  return Get<TypeOfCountBox>(&Core::CountBoxType);
}
QColor CardCountDisplayBox::BackColor() const { return Get<QColor>(&Core::BackColor); }
QColor CardCountDisplayBox::ForeColor() const { return Get<QColor>(&Core::ForeColor); }

void CardCountDisplayBox::setCountBoxType(TypeOfCountBox type) { Call(&Core::CountBoxType, type); }
void CardCountDisplayBox::setBackColor(const QColor& color) { Call(&Core::BackColor, ColorOr(color, WindowColor)); }
void CardCountDisplayBox::setForeColor(const QColor& color) { Call(&Core::ForeColor, ColorOr(color, WindowTextColor)); }
void CardCountDisplayBox::CountValue(int value) { Call(&Core::CountValue, value); }
void CardCountDisplayBox::ShadowBoxStatus(int status) { Call(&Core::ShadowBoxStatus, status); }

void CardCountDisplayBox::resetCountBoxType() { Reset("CountBoxType"); }

}  // namespace tactix::qt
