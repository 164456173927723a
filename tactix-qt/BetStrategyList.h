#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/BetStrategyList.h"

namespace tactix::qt {

/// The betting strategy list as a widget, see tactix::BetStrategyList.
class TACTIX_QT_EXPORT BetStrategyList : public WidgetOf<tactix::BetStrategyList, NumberedStrategyList> {
  Q_OBJECT

 public:
  explicit BetStrategyList(QWidget* parent = nullptr);
  ~BetStrategyList() override;

 public Q_SLOTS:
  /// Refills the box from the catalogue. Fails as the catalogue fails.
  void InputBettingStrategyDescriptions();
};

}  // namespace tactix::qt
