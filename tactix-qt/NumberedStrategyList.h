#pragma once

#include <memory>

#include "tactix-qt/Export.h"
#include "tactix-qt/StrategyListControl.h"
#include "tactix/strategy/NumberedStrategyList.h"

namespace tactix::qt {

/// What the lists of playing and betting strategies have in common as widgets.
class TACTIX_QT_EXPORT NumberedStrategyList : public StrategyListControl {
  Q_OBJECT
  Q_PROPERTY(int SelectThisStrategy READ SelectThisStrategy WRITE SelectThisStrategy STORED false DESIGNABLE false)

 public:
  ~NumberedStrategyList() override;

  int SelectThisStrategy() const;

 public Q_SLOTS:
  void SelectThisStrategy(int strategy);

 Q_SIGNALS:
  void StrategySelectionChanged(int newStrategySelected);

 protected:
  using StrategyListControl::StrategyListControl;

  void Take(std::unique_ptr<tactix::NumberedStrategyList> list);

 private:
  tactix::NumberedStrategyList* list_ = nullptr;
};

}  // namespace tactix::qt
