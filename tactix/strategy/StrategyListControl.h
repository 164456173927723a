#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tactix/platform/Control.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/PropertyTable.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"
#include "tactix/strategy/StrategyCatalogue.h"

namespace tactix {

struct StrategyListRules;

/// What the drop-down lists of strategies have in common. Each fills itself from the strategy catalogue. A selection,
/// by a user or from code, is reported; a "Not Present" row is refused with a beep instead. Rows past the highest
/// reported one are only shown.
class TACTIX_EXPORT StrategyListControl : public Control {
 public:
  /// Adds a row of the host's own, at the end or before row `index`; an index outside 0 ... count fails with 5.
  void AddItem(std::string_view item, std::optional<std::int32_t> index = std::nullopt);

  /// The box's look. Each is saved and notified under its own name. A new list has the system's window colours, is
  /// enabled and has its designed text, font and tool tip. A saved form that lacks them gives it the ambient font and
  /// an empty tool tip; the text stays.
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
  void ControlType(Coded<TypeOfStrategyControl> type) {
    controlType_ = type;
    Touched();
  }

  /// The selected row - 1, so -2 when no row is selected. Setting it selects its row and reports that; a row that the
  /// box does not have fails with 380, 32767 in a count list with 6. Reading a row past 32768 fails with 6.
  std::int16_t ListIndex() const;
  void ListIndex(std::int16_t strategy);

  std::int16_t Style() const;
  /// Whether the box is shown; not saved.
  bool Visible() const;
  void Visible(bool visible);

  /// Loads the catalogue's range, then fills. Fails with 91 without a catalogue, and with the catalogue's error where
  /// it gives no range.
  void LoadStrategiesFromIniFile();
  /// Keeps the host's collection and its Count, no more: rows come from the catalogue alone. Fails with 91 for null,
  /// and with the error of reading or converting the Count; even then the collection is kept.
  void UseThisStrategyList(const ObjectRef& thisStrategyList);
  /// The Count of the collection last handed over, 0 by default.
  std::int16_t StrategyCount() const { return strategyCount_; }
  /// The row of the last accepted selection, 0 by default.
  std::int32_t LastGoodListIndex() const { return lastGoodListIndex_; }

  void Resized() override;
  void Terminated() override;

 protected:
  /// The rules must outlive the list.
  StrategyListControl(Site& site, const StrategyListRules& rules);

  virtual ListBox& Box() = 0;
  virtual const ListBox& Box() const = 0;
  /// Fills the box: the list's public fill method, whose name differs from list to list.
  virtual void InputDescriptions() = 0;
  /// Called when the box has been cleared and nothing added yet.
  virtual void FillBegins() {}
  /// Describes one number and adds its row, if it gets one. The catalogue may destroy the list.
  virtual void FillRow(std::int16_t number) = 0;
  /// Called for each accepted row, to raise the list's event.
  virtual void Report(std::int32_t row) = 0;

  /// To be called in the constructor of each list.
  void SetUpBox();
  /// Clears the box, fills the rows of the numbers first ... last, and sets the text. An error ends it; the rows added
  /// so far stay.
  void Fill(std::int32_t first, std::int32_t last);
  /// The catalogue; null where making one has destroyed the list.
  std::shared_ptr<StrategyCatalogue> Catalogue() const;
  const StrategyRange& Range() const { return range_; }
  /// The number being filled; after a fill, the last one visited.
  std::int16_t FilledNumber() const { return filledNumber_; }

  /// The rows of the properties that all lists save: each list adds them in the order in which it saves them.
  struct TACTIX_EXPORT SavedRow {
    static void BackColor(PropertyTable& table);
    static void ForeColor(PropertyTable& table);
    static void Enabled(PropertyTable& table);
    static void Font(PropertyTable& table);
    static void Text(PropertyTable& table);
    static void ToolTipText(PropertyTable& table);
    static void DefaultContent(PropertyTable& table);
  };
  /// Adds the properties that no list saves.
  static void AddTheOtherProperties(PropertyTable& table);
  static MethodTable CommonMethods();

 private:
  using List = StrategyListControl;

  void SetText(std::string_view text, std::string_view propertyName);
  void ReportTheStrategySelection();
  void GoBackToTheLastGoodRow();
  void LoadTheStrategyRange();

  const StrategyListRules& rules_;
  ObjectRef heldCollection_;
  StrategyRange range_;
  Coded<TypeOfStrategyControl> controlType_;
  std::int32_t lastGoodListIndex_ = 0;
  std::int16_t strategyCount_ = 0;
  std::int16_t filledNumber_ = 0;
  bool refusing_ = false;
};

}  // namespace tactix
