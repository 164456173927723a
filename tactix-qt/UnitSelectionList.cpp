#include "tactix-qt/UnitSelectionList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

UnitSelectionList::UnitSelectionList(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Relay(&Core::EventSet::UnitSizeSelected, &UnitSelectionList::UnitSizeSelected);
  control().Events.UnitSizeSelected.Connect([this](std::int16_t row) {
    if (row >= 0) Q_EMIT unitSizePicked(row + 1);
  });
}

UnitSelectionList::~UnitSelectionList() { EndControl(); }

}  // namespace tactix::qt
