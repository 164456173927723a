#pragma once

#include <QString>

#include "tactix-qt/ControlWidget.h"
#include "tactix-qt/Export.h"
#include "tactix/counting/StrategyDataPanel.h"

namespace tactix::qt {

/// The strategy data panel as a widget: tactix::StrategyDataPanel with its signal and slots. ShadowBoxStatus takes a
/// colour, see CardCountDisplayBox::ShadowBoxingConstants.
class TACTIX_QT_EXPORT StrategyDataPanel : public ControlWidget {
  Q_OBJECT

 public:
  explicit StrategyDataPanel(QWidget* parent = nullptr);
  ~StrategyDataPanel() override;

  tactix::StrategyDataPanel& control() const { return *panel_; }

  QString GetClumpStuff(int clumpType) const;

 public Q_SLOTS:
  void HereIsYourStrategyData(const tactix::ObjectRef& thisSDB);
  void HereIsSomeStrategyDataBlockData(const tactix::ObjectRef& aStrategyDataBlock);
  void StrategyDataBlockData(const tactix::ObjectRef& block);
  void ShadowBoxStatus(int status);
  void Refresh();
  void TheKelvoEditionIs(const tactix::ObjectRef& theKelvoEdition);

 Q_SIGNALS:
  void PanelClick();

 private:
  tactix::StrategyDataPanel* panel_;
};

}  // namespace tactix::qt
