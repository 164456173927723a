#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <tuple>

#include "tactix/platform/Event.h"
#include "tactix/platform/Export.h"
#include "tactix/platform/widgets/ListBox.h"
#include "tactix/shared/Coded.h"
#include "tactix/shared/Enumerations.h"
#include "tactix/strategy/CountStrategyRecord.h"
#include "tactix/strategy/StrategyListControl.h"

namespace tactix {

/// A drop-down list from which the player picks a card-counting system. Until its first fill it shows the names of the
/// systems as designed; the first write of CountStrategy, and so the first load, fills it.
class TACTIX_EXPORT CountStrategyList : public StrategyListControl {
 public:
  explicit CountStrategyList(Site& site);
  ~CountStrategyList() override;

  /// Setting it fills the list unless a fill has been completed and then, for 11 to 38 only, selects row value - 11;
  /// fails with 380 where there is no such row. Reading it gives the selected row - 1, which is not the inverse: hosts
  /// rely on both. Saved under its own name, 16 by default, and notified when a row was selected.
  Coded<CountStrategyPossibilities> CountStrategy() const { return std::int32_t{ListIndex()}; }
  void CountStrategy(Coded<CountStrategyPossibilities> system);
  /// Kept for hosts that ask: always 0 for cards 1 to 4 of systems 11 to 38, since no fill keeps point values (see
  /// CountDescription::ReadNumbers). Fails with 9 for other systems and cards.
  std::int16_t CountValue(Coded<CountStrategyPossibilities> forThisCount, std::int16_t andThisCard) const;
  /// What fills have last read of a system, 11 to 38; fails with 9 for others. A system that a fill passes over keeps
  /// what it had.
  const CountStrategyRecord& Record(Coded<CountStrategyPossibilities> system) const;

  /// Refills the box from the catalogue, systems 11 to 38. A system without a description gets no row. An "object not
  /// set" (91) of the catalogue is ignored; any other error ends the fill without a failure, and the rows added so far
  /// and the old text stay.
  void InputCountStrategyDescriptions();
  /// Whether a fill has been completed; false by default.
  bool IsFilled() const { return isFilled_; }
  /// The system being filled; after a fill, the last one visited.
  std::int16_t CurrentIndex() const { return FilledNumber(); }

  const PropertyTable& Properties() const override;
  const MethodTable& Methods() const override;

  struct EventSet {
    /// A row was accepted; carries the row + 10, deliberately, and the list's text. What the handler writes to them is
    /// ignored.
    Event<std::int16_t&, std::string&> StrategySelectionChanged{1, "StrategySelectionChanged"};

    auto All() { return std::tie(StrategySelectionChanged); }
  } Events;

  struct ChildWidgets {
    ListBox StrategyListBox;
  } Children;

  /// Rows past this one are shown, but never reported.
  static constexpr std::int32_t HighestReportedRow = 50;

 protected:
  ListBox& Box() override { return Children.StrategyListBox; }
  const ListBox& Box() const override { return Children.StrategyListBox; }
  void InputDescriptions() override { InputCountStrategyDescriptions(); }
  void FillBegins() override;
  void FillRow(std::int16_t system) override;
  void Report(std::int32_t row) override;

 private:
  static constexpr std::int32_t Lowest = static_cast<std::int32_t>(CountStrategyPossibilities::LowestCardCountIndex);
  static constexpr std::int32_t Highest = static_cast<std::int32_t>(CountStrategyPossibilities::HighestCardCountIndex);

  /// The catalogue's description of a system; empty if the call has destroyed the list.
  std::string Describe(std::int16_t system) const;
  /// Selects the system's row; false where there is no such system.
  bool Select(std::int32_t system);

  std::array<CountStrategyRecord, Highest - Lowest + 1> records_;
  ObjectRef store_;
  std::string description_;  // keeps the last description where the next one cannot be read
  bool isFilled_ = false;
};

}  // namespace tactix
