#pragma once

#include "tactix-qt/Export.h"
#include "tactix-qt/NumberedStrategyList.h"
#include "tactix/strategy/StrategyList.h"

namespace tactix::qt {

/// The playing strategy list as a widget: tactix::StrategyList with its properties, signals and slots.
class TACTIX_QT_EXPORT StrategyList : public NumberedStrategyList {
  Q_OBJECT

 public:
  explicit StrategyList(QWidget* parent = nullptr);

  tactix::StrategyList& control() const { return *list_; }

 public Q_SLOTS:
  void InputPlayingStrategyDescriptions();

 private:
  tactix::StrategyList* list_;
};

}  // namespace tactix::qt
