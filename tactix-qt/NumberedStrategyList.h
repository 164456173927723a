#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/StrategyListControl.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix::qt {

/// What the lists of playing and betting strategies have in common as widgets, see tactix::NumberedStrategyList.
class TACTIX_QT_EXPORT NumberedStrategyList : public WidgetOf<tactix::NumberedStrategyList, StrategyListControl> {
  Q_OBJECT
  Q_PROPERTY(int SelectThisStrategy READ SelectThisStrategy WRITE setSelectThisStrategy NOTIFY SelectThisStrategyChanged
                 STORED false DESIGNABLE false)

 public:
  ~NumberedStrategyList() override;

  /// The selected row's strategy, as ListIndex. Writing a number above the row count does nothing; another one without
  /// a row fails with 380.
  int SelectThisStrategy() const;

 public Q_SLOTS:
  void setSelectThisStrategy(int strategy);
  void SelectThisStrategy(int strategy) { setSelectThisStrategy(strategy); }

 Q_SIGNALS:
  /// Carries the number of the strategy, the row - 1.
  void StrategySelectionChanged(int newStrategySelected);

  /// A property has another value now, see WidgetOf.
  void SelectThisStrategyChanged(int value);

 protected:
  NumberedStrategyList(Maker make, QWidget* parent);
};

}  // namespace tactix::qt
