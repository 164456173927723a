#pragma once

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/UnitSelectionList.h"

namespace tactix::qt {

/// The list of betting units as a widget: tactix::UnitSelectionList with its signal.
class TACTIX_QT_EXPORT UnitSelectionList : public ControlWidget {
  Q_OBJECT

 public:
  explicit UnitSelectionList(QWidget* parent = nullptr);
  ~UnitSelectionList() override;

  tactix::UnitSelectionList& control() const { return *list_; }

 Q_SIGNALS:
  /// Carries the row: 0 for one unit.
  void UnitSizeSelected(int unitsSelected);

 private:
  tactix::UnitSelectionList* list_;
};

}  // namespace tactix::qt
