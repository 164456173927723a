#pragma once

#include "tactix-qt/DecisionRegisterControl.h"
#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/scoring/DecisionRegiLOG.h"

namespace tactix::qt {

/// The decision register with a log as a widget, see tactix::DecisionRegiLOG.
class TACTIX_QT_EXPORT DecisionRegiLOG : public WidgetOf<tactix::DecisionRegiLOG, DecisionRegisterControl> {
  Q_OBJECT

 public:
  explicit DecisionRegiLOG(QWidget* parent = nullptr);
  ~DecisionRegiLOG() override;
};

}  // namespace tactix::qt
