#include "tactix-qt/UnitSelectionList.h"

#include "tactix-qt/Forwarding.h"

namespace tactix::qt {

UnitSelectionList::UnitSelectionList(QWidget* parent) : WidgetOf(parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Relay(&Core::EventSet::UnitSizeSelected, &UnitSelectionList::UnitSizeSelected);
}

UnitSelectionList::~UnitSelectionList() { EndControl(); }

}  // namespace tactix::qt
