#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix/strategy/BetStrategyList.h"

namespace tactix::qt {

/// The betting strategy list as a widget: tactix::BetStrategyList with its properties, signals and slots.
class TACTIX_QT_EXPORT BetStrategyList : public NumberedStrategyList {
  Q_OBJECT

 public:
  explicit BetStrategyList(QWidget* parent = nullptr);

  tactix::BetStrategyList& control() const { return *list_; }

 public Q_SLOTS:
  void InputBettingStrategyDescriptions();

 private:
  tactix::BetStrategyList* list_;
};

}  // namespace tactix::qt
