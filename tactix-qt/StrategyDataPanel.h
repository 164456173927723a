#pragma once

#include <QString>

#include "tactix-qt/Export.h"
#include "tactix-qt/WidgetOf.h"
#include "tactix/counting/StrategyDataPanel.h"

namespace tactix::qt {

/// The strategy data panel as a widget, see WidgetOf and tactix::StrategyDataPanel.
class TACTIX_QT_EXPORT StrategyDataPanel : public WidgetOf<tactix::StrategyDataPanel> {
  Q_OBJECT

 public:
  explicit StrategyDataPanel(QWidget* parent = nullptr);
  ~StrategyDataPanel() override;

  /// How a clump type favours player or dealer, in words. Numbers beyond 16 bits fail with 6.
  Q_INVOKABLE QString GetClumpStuff(int clumpType) const;

 public Q_SLOTS:
  /// Shows a block and forgets it. Null fails with 91.
  void HereIsYourStrategyData(const tactix::ObjectRef& thisSDB);
  /// Keeps a block as the panel's own, a new empty one for null, and shows it.
  void HereIsSomeStrategyDataBlockData(const tactix::ObjectRef& aStrategyDataBlock);
  /// Copies a block into the panel's own one, and shows that. Fails with 91 where nothing creates an own block, see
  /// tactix::DefaultStrategyData.
  void StrategyDataBlockData(const tactix::ObjectRef& block);
  /// The colour behind both counts, 0x00BBGGRR, see CardCountDisplayBox::ShadowBoxingConstants.
  void ShadowBoxStatus(int status);
  /// Draws the panel anew.
  void Refresh();
  /// Reads the edition's code. Null fails with 91.
  void TheKelvoEditionIs(const tactix::ObjectRef& theKelvoEdition);

 Q_SIGNALS:
  /// A mouse button was pressed anywhere on the panel.
  void PanelClick();
};

}  // namespace tactix::qt
