#include "tactix-qt/ClumpCardList.h"

#include <memory>
#include <utility>

namespace tactix::qt {

ClumpCardList::ClumpCardList(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::ClumpCardList>(ItsSite());
  list_ = control.get();
  Own(std::move(control));
  list_->Events.ClumpValueSelected.Connect([this](const std::int32_t& value) { Q_EMIT ClumpValueSelected(value); });
}

ClumpCardList::~ClumpCardList() { EndControl(); }

ClumpCardList::theClumpCardValuePossibilities ClumpCardList::CardValue() const {
  return static_cast<theClumpCardValuePossibilities>(list_->CardValue().Value());
}
void ClumpCardList::CardValue(theClumpCardValuePossibilities card) {
  list_->CardValue(static_cast<std::int32_t>(card));
}
ClumpCardList::CardClumpValuePossibilities ClumpCardList::ClumpValue() const {
  return static_cast<CardClumpValuePossibilities>(list_->ClumpValue().Value());
}
void ClumpCardList::ClumpValue(CardClumpValuePossibilities value) {
  list_->ClumpValue(static_cast<std::int32_t>(value));
}

}  // namespace tactix::qt
