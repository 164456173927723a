#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/StrategyList.h"

namespace tactix::qt {

/// The playing strategy list as a widget, see tactix::StrategyList.
class TACTIX_QT_EXPORT StrategyList : public WidgetOf<tactix::StrategyList, NumberedStrategyList> {
  Q_OBJECT

 public:
  explicit StrategyList(QWidget* parent = nullptr);
  ~StrategyList() override;

 public Q_SLOTS:
  /// Refills the box from the catalogue. Fails as the catalogue fails.
  void InputPlayingStrategyDescriptions();
};

}  // namespace tactix::qt
