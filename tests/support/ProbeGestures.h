#pragma once

#include <cstdint>
#include <functional>

#include "tests/support/ProbeWindow.h"

namespace tactix::tests {

// What a user does to a probe's window, for the rows of table tests.

using Child = OuterProbe::ChildWidgets;

/// Puts the focus on a button, then presses a key there.
inline std::function<void(ProbeWindow&)> Key(PushButton Child::*button, std::int32_t code, std::int16_t shift = 0) {
  return [=](ProbeWindow& w) {
    (w.Children().*button).SetFocus();
    w.robot->PressKey(code, shift);
  };
}

inline void Pick(ProbeWindow& w, std::int32_t row, Robot::PickBy by) {
  w.robot->PickRow(w.Children().RowList, row, by);
}

/// Opens the menu and chooses an entry.
inline std::function<void(ProbeWindow&)> Choose(MenuEntry Child::*entry) {
  return [=](ProbeWindow& w) {
    w.robot->OnNextMenu([&w, entry](Menu& menu) { w.robot->Choose(menu, w.Children().*entry); });
    w.robot->Click(w.Children().MenuButton);
  };
}

}  // namespace tactix::tests
