#pragma once

#include <cstdint>
#include <string>
#include <tuple>

#include "tactix/counting/DualCardCountDisplay.h"
#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/Line.h"
#include "tactix/platform/widgets/Panel.h"

namespace tactix {

/// The statistics of the current shoe, read from a strategy data block of the host's. Saves nothing.
///
/// Showing a block reads each of its fields once, by name and in the panel's order. A field that is missing fails with
/// 438, one that does not convert with its own code; what was shown up to there stays.
class TACTIX_EXPORT StrategyDataPanel : public Control {
 public:
  explicit StrategyDataPanel(Site& site);
  ~StrategyDataPanel() override;

  /// Shows a block and forgets it. Null fails with 91.
  void HereIsYourStrategyData(const ObjectRef& thisSDB);
  /// Keeps a block as the panel's own, a new empty one for null, and shows it.
  void HereIsSomeStrategyDataBlockData(const ObjectRef& aStrategyDataBlock);
  /// Assigns a block to the default property of the panel's own block, which is created on first use and fails with 91
  /// where nothing creates it (see DefaultStrategyData); then shows the own block.
  void StrategyDataBlockData(const ObjectRef& block);

  /// How a clump type favours player or dealer, in words.
  std::string GetClumpStuff(std::int16_t clumpType) const;
  /// Passed on to the count display.
  void ShadowBoxStatus(Coded<ShadowBoxingConstants> status);
  /// Draws the panel anew.
  void Refresh();

  /// Reads the edition's code from its `thisKelvoEdition`. Null fails with 91. The display does not depend on it.
  void TheKelvoEditionIs(const ObjectRef& theKelvoEdition);
  /// The code last read, 0 by default.
  std::int32_t EditionCode() const { return editionCode_; }

  void Resized() override;
  void Terminated() override;
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    /// A mouse button was pressed anywhere on the panel.
    Event<> PanelClick{1, "PanelClick"};

    auto All() { return std::tie(PanelClick); }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    explicit ChildWidgets(Site& innerSite) : CountDisplay(innerSite) {}

    Panel panelStrategyInformation;
    DualCardCountDisplay CountDisplay;
    Label Label1;
    Label labelClumpPlay;
    Label labelDealer;
    Label labelCount;
    Label datDealerStrength;
    Label labelStrength;
    Label datEndingTotal;
    Label labelEndTotal;
    Label datClumpType;
    Label labelCardFlow;
    Label datDealerBreaks;
    Label labelBreakPercent;
    Label datCoreCards;
    Label dat10Count;
    Label datFives;
    Label datAces;
    Label labelAces;
    Label labelFives;
    Label labelTens;
    Label labelCoreCards;
    Label labelBias;
    Label datTargetRating;
    Label datBiasRating;
    Label labelTarget;
    Label datAdjustedCount;
    Label labelAdjustedCount;
    Line Line1;
    Line Line2;
    Line Line3;
    Line Line4;
    Line lineDealerDataSeparator;
    Line lineStrategy;
  } Children;

 private:
  struct Field;
  static const Field Fields[];

  void BuildWidgets();
  void ReportPressesOn(Widget& widget);
  void Display(const ObjectRef& block);

  ObjectRef ownBlock_;
  std::int32_t editionCode_ = 0;
};

}  // namespace tactix
