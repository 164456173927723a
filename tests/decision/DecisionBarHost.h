#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "tests/decision/DecisionBarModel.h"
#include "tests/decision/DecisionStates.h"
#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/RandomHost.h"

namespace tactix::tests {

/// A host and a user of a decision toolbar, and the model that says what it should look like.
template <class Bar>
class BarHost final : public RandomHost<Bar> {
 public:
  using RandomHost<Bar>::RandomHost;

  DecisionBarModel model;
  EventRecorder recorder;
  /// Grows with every operation and every new control: whether anything came between.
  std::uint32_t turns = 0;
  std::uint32_t controls = 0;
};

template <class Bar>
BarHost<Bar>& HostOf(RandomHost<Bar>& host) {
  return static_cast<BarHost<Bar>&>(host);
}

template <class Bar>
ToolBar& StripOf(Bar& bar) {
  return bar.Children.DecisionToolBar;
}

inline ToolButton& ButtonAt(ToolBar& strip, std::size_t index) { return *strip.Buttons()[index]; }

inline std::vector<MenuEntry*> SettingsOf(DecisionBAR2& bar) {
  DecisionBAR2::ChildWidgets& w = bar.Children;
  return {&w.menuHitCardButtonsVisible, &w.menuHoleCardButtonsVisible, &w.menuTensRatioButtonsVisible,
          &w.menuStrongHandButtonsVisible, &w.menuStatsButtonVisible};
}
inline std::vector<MenuEntry*> SettingsOf(DecisionBAR&) { return {}; }

inline std::int32_t AnyStatus(SequenceRandom& random) {
  return random.OneIn(2) ? random.Between(-1, 0) : random.Between(-9, 9);
}

inline std::shared_ptr<ForeignBlock> AnyBarBlock(SequenceRandom& random) {
  DecisionBlock block = FullBlock();
  block.HardTotal(static_cast<std::int16_t>(random.Between(-5, 30)));
  block.SoftTotal(static_cast<std::int16_t>(random.Between(-5, 30)));
  block.StrategyAdvice(static_cast<std::int16_t>(random.Between(-1, 6)));
  block.ManualPlayerRestrictions(random.OneIn(2));
  block.SplitIsValid(random.OneIn(2));
  block.SurrenderIsValid(random.OneIn(2));
  block.HardDoubleIsValid(random.OneIn(2));
  block.SoftDoubleIsValid(random.OneIn(2));
  const auto foreign = std::make_shared<ForeignBlock>(block);
  for (std::uint32_t changes = random.Below(4) / 2; changes > 0; --changes) {
    const auto field = static_cast<BlockField>(random.Below(BlockFieldNames.size()));
    random.OneIn(3) ? foreign->Remove(field) : foreign->Set(field, AnyValue(random));
  }
  return foreign;
}

template <class Action>
void PassingErrors(Action&& action) {
  try {
    action();
  } catch (const Error&) {
  }
}

/// After operations that something may have come between: takes from the toolbar what the model cannot know then.
template <class Bar>
void TakeEnabledStates(BarHost<Bar>& host) {
  if (!host.Control()) return;
  for (std::size_t i = 0; i < DecisionBarModel::ButtonCount; ++i) {
    host.model.enabled[i] = ButtonAt(StripOf(*host.Control()), i).Enabled();
  }
}

/// Flashes a button, or the one whose advice is clicked, and brings the model along.
template <class Bar, class Action>
void Flash(BarHost<Bar>& host, std::size_t button, Action&& action) {
  const std::uint32_t turns = host.turns;
  const std::uint32_t controls = host.controls;
  ++host.model.flashes;
  action();
  if (!host.Control() || host.controls != controls) return;
  --host.model.flashes;
  if (host.turns == turns) {
    host.model.enabled[button] = true;
  } else {
    TakeEnabledStates(host);
  }
}

template <class Bar>
bool CanReach(BarHost<Bar>& host, std::size_t button) {
  Bar& bar = *host.Control();
  const bool usable = bar.Extender().Visible() && bar.Extender().Enabled() && host.model.stripShown;
  if (!usable || ButtonAt(StripOf(bar), button).Style() == ToolButtonStyle::Separator) return false;
  const bool enabled =
      host.model.flashes > 0 ? ButtonAt(StripOf(bar), button).Enabled() : static_cast<bool>(host.model.enabled[button]);
  return host.model.shown[button] && enabled;
}

}  // namespace tactix::tests
