#pragma once

#include "tactix-qt/DecisionRegisterControl.h"
#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/scoring/DecisionRegister.h"

namespace tactix::qt {

/// The decision register as a widget, see tactix::DecisionRegister.
class TACTIX_QT_EXPORT DecisionRegister : public WidgetOf<tactix::DecisionRegister, DecisionRegisterControl> {
  Q_OBJECT

 public:
  explicit DecisionRegister(QWidget* parent = nullptr);
  ~DecisionRegister() override;
};

}  // namespace tactix::qt
