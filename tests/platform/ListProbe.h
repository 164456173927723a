#pragma once

#include "tests/support/HeadlessProbe.h"

namespace tactix::tests {

/// The probe's list (apple, banana, cherry, avocado, "") with its notifications alone.
struct ListProbe : HeadlessProbe {
  ListBox& list = Children().RowList;
  EventRecorder notes;

  ListProbe() {
    notes.Watch(list.Clicked);
    notes.Watch(list.Changed);
  }
  void Select(std::int32_t row) {
    list.ListIndex(row);
    notes.Forget();
  }
  void Press(std::int32_t code, std::int16_t shift = 0) {
    list.SetFocus();
    site->PressKey({code, shift});
  }
};

}  // namespace tactix::tests
