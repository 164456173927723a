#pragma once

#include <string>
#include <vector>

#include "tactix/decision/Decision.h"
#include "tactix/decision/private/DecisionPlays.h"

namespace tactix::tests {

/// The siblings of a widget, the topmost first.
inline std::vector<std::string> FromTheTop(const Widget& parent) {
  std::vector<std::string> names;
  for (const Widget* child : parent.Children()) names.emplace(names.begin(), child->Name());
  return names;
}

/// The names of the play buttons that are shown, in their order.
inline std::vector<std::string> ShownPlays(const Decision& box) {
  std::vector<std::string> names;
  for (const DecisionPlay& play : DecisionPlays) {
    if ((box.Children.*play.button).Visible()) names.emplace_back(play.name);
  }
  return names;
}

/// The name of the play button that is the default one; empty when it is none of them.
inline std::string DefaultPlay(const Decision& box) {
  std::string names;
  for (const DecisionPlay& play : DecisionPlays) {
    if ((box.Children.*play.button).DEFAULT()) names += play.name;
  }
  return names;
}

inline bool PromptOnIsChecked(const Decision& box) {
  return box.Children.mnuPromptOn.Checked() && !box.Children.mnuPromptOff.Checked();
}
inline bool PromptOffIsChecked(const Decision& box) {
  return box.Children.mnuPromptOff.Checked() && !box.Children.mnuPromptOn.Checked();
}

/// A block with a value in every property.
inline DecisionBlock FullBlock() {
  DecisionBlock block;
  block.PlayerName("Ann");
  block.HardTotal(7);
  block.SoftTotal(5);
  block.MidCardsAre("7, 8 or 9");
  block.HitIsValid(true);
  block.SplitIsValid(true);
  block.HardDoubleIsValid(true);
  block.SoftDoubleIsValid(true);
  block.SurrenderIsValid(true);
  block.ManualPlayerRestrictions(true);
  block.StrategyAdvice(2);
  block.PromptPlayButtons(true);
  block.PlayingLogEnabled(true);
  return block;
}

}  // namespace tactix::tests
