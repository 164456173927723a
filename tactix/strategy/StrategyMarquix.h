#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "tactix/platform/Control.h"
#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/NestedSite.h"
#include "tactix/platform/widgets/Label.h"
#include "tactix/platform/widgets/OptionButton.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"
#include "tactix/strategy/StrategyListLITE.h"

namespace tactix {

/// A marquee's type compares with rows of either enumeration, as it can be set to them.
constexpr bool operator==(Coded<TypeOfStrategyMarquixControl> type, TypeOfStrategyControl row) {
  return type.Value() == static_cast<std::int32_t>(row);
}

/// A captioned strategy chooser: a banner over a compact list of playing strategies, with a mark that the host can set
/// to show that this strategy is the one in use. Errors of the list reach the caller.
class TACTIX_EXPORT StrategyMarquix : public Control {
 public:
  explicit StrategyMarquix(Site& site);
  ~StrategyMarquix() override;

  /// The banner's caption, "Strategy Un-defined" by default. Saved and notified under its own name.
  const std::string& Caption() const { return Children.labelStrategyBanner.Caption(); }
  void Caption(std::string_view caption);
  static constexpr std::string_view DefaultCaption = "Strategy Un-defined";

  /// What the marquee chooses, IsNotYetAssigned by default; a row of either enumeration. Setting it shows the mark for
  /// IsAPlayingMarquix and hides it for the other rows; a number without a row leaves it as it is. Read from a saved
  /// form as "Control Type", but never saved.
  Coded<TypeOfStrategyMarquixControl> ControlType() const { return controlType_; }
  void ControlType(Coded<TypeOfStrategyMarquixControl> type);
  void ControlType(TypeOfStrategyControl type) { ControlType(static_cast<std::int32_t>(type)); }

  /// Kept for the host, ShowAllStrategies by default; the marquee never looks at it.
  Coded<StrategyListFormats> ourStrategyListFormats;

  /// Whether the list can be used, true by default.
  bool Enabled() const { return Children.StrategyListBox.Enabled(); }
  void Enabled(bool enabled) { Children.StrategyListBox.Enabled(enabled); }
  /// The list's selected row - 1, -2 when no row is selected; setting it selects a row, like the list's own ListIndex.
  std::int16_t ListIndex() const { return Children.StrategyListBox.ListIndex(); }
  void ListIndex(std::int16_t strategy) { Children.StrategyListBox.ListIndex(strategy); }

  /// Adds a row of the host's own at the list's end.
  void AddItem(std::string_view thisItem) { Children.StrategyListBox.AddItem(thisItem); }
  /// A strategy numbered 1 or higher is selected: the seat and strategy 0 count as none.
  bool aStrategyExists() const { return ListIndex() > 0; }
  void InputPlayingStrategyDescriptions() { Children.StrategyListBox.InputPlayingStrategyDescriptions(); }
  /// Loads and fills the list, twice in a row: meant, since catalogues may count their calls.
  void LoadStrategiesFromIniFile();
  /// Sets the mark; the list stays as it is, and nothing is raised.
  void SelectThisStrategy(bool Selection) { Children.optStrategySelected.Value(Selection); }
  /// Gives the focus to the list.
  void SetFocus() { Children.StrategyListBox.Children.StrategyListBox.SetFocus(); }
  /// Hands the host's collection to the list.
  void UseThisStrategyList(const ObjectRef& thisStrategyList) {
    Children.StrategyListBox.UseThisStrategyList(thisStrategyList);
  }

  /// Reads the caption, "Control Type" and the mark, the mark under the name of its present value, "True" or "False".
  /// Saving writes the caption only. A property that fails ends the load or the save.
  void ReadProperties(PropertyBag& bag) override;
  void Resized() override { Arrange(); }
  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    /// Declared for hosts; not raised by the marquee.
    Event<std::int16_t> BettingStrategySelected{1, "BettingStrategySelected"};
    /// Declared for hosts; not raised by the marquee.
    Event<std::int16_t> PlayingStrategySelected{2, "PlayingStrategySelected"};
    /// A row of the list was accepted; carries the row - 1.
    Event<std::int32_t&> StrategySelectionChanged{3, "StrategySelectionChanged"};

    auto All() { return std::tie(BettingStrategySelected, PlayingStrategySelected, StrategySelectionChanged); }
  } Events;

 private:
  NestedSite innerSite_;

 public:
  struct ChildWidgets {
    explicit ChildWidgets(Site& innerSite) : StrategyListBox(innerSite) {}

    Label labelStrategyBanner;
    StrategyListLITE StrategyListBox;
    OptionButton optStrategySelected;
  } Children;

 private:
  void Arrange();

  Coded<TypeOfStrategyMarquixControl> controlType_;
};

}  // namespace tactix
