#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"
#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix {

/// A drop-down list from which the player picks a playing strategy. Row r stands for strategy r - 1: row 0 is the empty
/// seat. A "Not Present" row is refused with a beep.
class TACTIX_EXPORT StrategyList : public Control {
 public:
  explicit StrategyList(Site& site);
  ~StrategyList() override;

  /// Adds a row of the host's own, at the end or before row `index`; an index outside 0 ... count fails with 5.
  void AddItem(std::string_view item, std::optional<std::int32_t> index = std::nullopt);

  /// The box's look. Each is saved and notified under its own name. Defaults: system window colours, enabled, the
  /// ambient font, and the empty text and tool tip (a stored empty text leaves the design text).
  Color BackColor() const;
  void BackColor(Color color);
  Color ForeColor() const;
  void ForeColor(Color color);
  bool Enabled() const;
  void Enabled(bool enabled);
  const tactix::Font& Font() const;
  void Font(const tactix::Font& font);
  const std::string& Text() const;
  void Text(std::string_view text);
  const std::string& ToolTipText() const;
  void ToolTipText(std::string_view text);
  /// The same text under another name: saved, but not read back.
  const std::string& DefaultContent() const;
  void DefaultContent(std::string_view text);

  /// A tag for the host, IsNotYetAssigned by default; neither saved nor used here.
  Coded<TypeOfStrategyControl> ControlType() const { return controlType_; }
  void ControlType(Coded<TypeOfStrategyControl> type) { controlType_ = type; }

  /// The number of the selected strategy, -2 when no row is selected. Setting it selects its row and raises the event;
  /// a row that the box does not have fails with 380.
  std::int16_t ListIndex() const;
  void ListIndex(std::int16_t strategy);
  /// The same; but setting a number above the row count does nothing. One equal to it fails with 380.
  std::int16_t SelectThisStrategy() const { return ListIndex(); }
  void SelectThisStrategy(std::int16_t strategy);

  std::int16_t Style() const;
  /// Whether the box is shown; not saved.
  bool Visible() const;
  void Visible(bool visible);

  /// Refills the box from the catalogue, strategies -1 to the highest loaded. Fails as the catalogue fails, and with 13
  /// for a field that is no flag; rows already added stay.
  void InputPlayingStrategyDescriptions();
  /// Loads the catalogue's range, then fills.
  void LoadStrategiesFromIniFile();
  /// Keeps the host's collection and its Count.
  void UseThisStrategyList(const ObjectRef& thisStrategyList);
  /// The Count of the collection last handed over, 0 by default.
  std::int16_t StrategyCount() const { return strategyCount_; }
  /// The strategy being filled; after a fill, the last one visited.
  std::int16_t CurrentStrategy() const { return currentStrategy_; }
  /// The last row that a selection has accepted, 0 by default.
  std::int32_t LastGoodListIndex() const { return lastGoodListIndex_; }

  void ReadProperties(PropertyBag& bag) override;
  void WriteProperties(PropertyBag& bag) override;
  void Resized() override;
  void Terminated() override;
  const PropertyTable& Properties() const override;

  struct EventSet {
    /// A row was accepted; carries the strategy's number. What the handler writes to it is ignored.
    Event<std::int32_t&> StrategySelectionChanged{1, "StrategySelectionChanged"};

    auto All() { return std::tie(StrategySelectionChanged); }
  } Events;

  struct ChildWidgets {
    ListBox StrategyListBox;
  } Children;

  /// Rows past this one are shown, but never reported.
  static constexpr std::int32_t HighestReportedRow = 55;

 private:
  void ReportTheStrategySelection();
  void LoadTheStrategyRange();

  ObjectRef heldCollection_;
  StrategyRange range_;
  Coded<TypeOfStrategyControl> controlType_;
  std::int32_t lastGoodListIndex_ = 0;
  std::int16_t strategyCount_ = 0;
  std::int16_t currentStrategy_ = 0;
  bool refusing_ = false;
};

}  // namespace tactix
