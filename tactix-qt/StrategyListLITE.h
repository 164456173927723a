#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"

namespace tactix::qt {

/// The compact list of playing strategies as a widget: tactix::StrategyListLITE with its properties, signals and slots.
class TACTIX_QT_EXPORT StrategyListLITE : public NumberedStrategyList {
  Q_OBJECT

 public:
  explicit StrategyListLITE(QWidget* parent = nullptr);

  tactix::StrategyListLITE& control() const { return *list_; }

 public Q_SLOTS:
  void InputPlayingStrategyDescriptions();

 private:
  tactix::StrategyListLITE* list_;
};

}  // namespace tactix::qt
