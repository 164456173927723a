#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/UnitSelectionList.h"

namespace tactix::qt {

/// The list of betting units as a widget, see WidgetOf and tactix::UnitSelectionList.
class TACTIX_QT_EXPORT UnitSelectionList : public WidgetOf<tactix::UnitSelectionList> {
  Q_OBJECT

 public:
  explicit UnitSelectionList(QWidget* parent = nullptr);
  ~UnitSelectionList() override;

 Q_SIGNALS:
  /// Carries the row: 0 for one unit.
  void UnitSizeSelected(int unitsSelected);
  /// The same as a number of units, from 1 up.
  void unitSizePicked(int units);
};

}  // namespace tactix::qt
