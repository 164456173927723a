#include "tactix-qt/UnitSelectionList.h"

#include <memory>
#include <utility>

namespace tactix::qt {

UnitSelectionList::UnitSelectionList(QWidget* parent) : ControlWidget(parent) {
  auto control = std::make_unique<tactix::UnitSelectionList>(ItsSite());
  list_ = control.get();
  Own(std::move(control));
  list_->Events.UnitSizeSelected.Connect([this](const std::int16_t& row) { Q_EMIT UnitSizeSelected(row); });
}

UnitSelectionList::~UnitSelectionList() { EndControl(); }

}  // namespace tactix::qt
