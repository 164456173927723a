#include "tactix-qt/CardCountDisplayBox.h"

#include <memory>
#include <utility>

#include "tactix-qt/Convert.h"

namespace tactix::qt {

CardCountDisplayBox::CardCountDisplayBox(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::CardCountDisplayBox>(ItsSite());
  box_ = control.get();
  Own(std::move(control));
}

CardCountDisplayBox::~CardCountDisplayBox() { EndControl(); }

CardCountDisplayBox::TypeOfCountBox CardCountDisplayBox::CountBoxType() const {
  return static_cast<TypeOfCountBox>(box_->CountBoxType().Value());
}
void CardCountDisplayBox::CountBoxType(TypeOfCountBox type) { box_->CountBoxType(static_cast<std::int32_t>(type)); }
void CardCountDisplayBox::CountValue(int value) { box_->CountValue(value); }
void CardCountDisplayBox::ShadowBoxStatus(int status) { box_->ShadowBoxStatus(status); }
QColor CardCountDisplayBox::BackColor() const { return OwnColor(box_->BackColor()); }
void CardCountDisplayBox::BackColor(const QColor& color) { box_->BackColor(ColorOr(color, WindowColor)); }
QColor CardCountDisplayBox::ForeColor() const { return OwnColor(box_->ForeColor()); }
void CardCountDisplayBox::ForeColor(const QColor& color) { box_->ForeColor(ColorOr(color, WindowTextColor)); }

}  // namespace tactix::qt
