#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/strategy/StrategyListLITE.h"

namespace tactix::qt {

/// The compact list of playing strategies as a widget, see tactix::StrategyListLITE.
class TACTIX_QT_EXPORT StrategyListLITE : public WidgetOf<tactix::StrategyListLITE, NumberedStrategyList> {
  Q_OBJECT

 public:
  explicit StrategyListLITE(QWidget* parent = nullptr);
  ~StrategyListLITE() override;

 public Q_SLOTS:
  /// Refills the box from the catalogue, and ends quietly where that fails.
  void InputPlayingStrategyDescriptions();
};

}  // namespace tactix::qt
