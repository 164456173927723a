#pragma once

#include "tactix-qt/DecisionToolBar.h"
#include "tactix-qt/Export.h"
#include "tactix/decision/DecisionBAR.h"

namespace tactix::qt {

/// The first form of the decision toolbar as a widget: tactix::DecisionBAR with its properties, signals and slots.
class TACTIX_QT_EXPORT DecisionBAR : public DecisionToolBarControl {
  Q_OBJECT

 public:
  explicit DecisionBAR(QWidget* parent = nullptr);
  ~DecisionBAR() override;

  tactix::DecisionBAR& control() const { return static_cast<tactix::DecisionBAR&>(*Hosted()); }
};

}  // namespace tactix::qt
