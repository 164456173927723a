#pragma once

#include "tactix/counting/ClumpCardList.h"
#include "tactix/counting/CountValueSelector.h"

namespace tactix::tests {

/// The two selectors of a card's value under common names, for tests of both.
template <class C>
struct Selector;

template <>
struct Selector<CountValueSelector> {
  using ValueRows = CardPointValuePossibilities;
  static constexpr const char* Name = "CountValueSelector";
  static constexpr const char* ValueName = "PointValue";
  static constexpr const char* EventName = "CountValueSelected#1";
  static constexpr const char* PanelName = "panelPointValue";
  static constexpr const char* FrameName = "fraPointValue";
  static constexpr const char* FrameCaption = " Point-Value";
  static constexpr const char* ListName = "cmbPointValue";
  static Panel& ThePanel(CountValueSelector& control) { return control.Children.panelPointValue; }
  static Frame& TheFrame(CountValueSelector& control) { return control.Children.fraPointValue; }
  static ListBox& TheList(CountValueSelector& control) { return control.Children.cmbPointValue; }
  static Event<std::int32_t&>& TheEvent(CountValueSelector& control) { return control.Events.CountValueSelected; }
  static Coded<ValueRows> Value(const CountValueSelector& control) { return control.PointValue(); }
  static void Value(CountValueSelector& control, Coded<ValueRows> value) { control.PointValue(value); }
};

template <>
struct Selector<ClumpCardList> {
  using ValueRows = CardClumpValuePossibilities;
  static constexpr const char* Name = "ClumpCardList";
  static constexpr const char* ValueName = "ClumpValue";
  static constexpr const char* EventName = "ClumpValueSelected#1";
  static constexpr const char* PanelName = "panelClumpValue";
  static constexpr const char* FrameName = "fraClumpValue";
  static constexpr const char* FrameCaption = " Clump-Value";
  static constexpr const char* ListName = "cmbClumpValue";
  static Panel& ThePanel(ClumpCardList& control) { return control.Children.panelClumpValue; }
  static Frame& TheFrame(ClumpCardList& control) { return control.Children.fraClumpValue; }
  static ListBox& TheList(ClumpCardList& control) { return control.Children.cmbClumpValue; }
  static Event<std::int32_t&>& TheEvent(ClumpCardList& control) { return control.Events.ClumpValueSelected; }
  static Coded<ValueRows> Value(const ClumpCardList& control) { return control.ClumpValue(); }
  static void Value(ClumpCardList& control, Coded<ValueRows> value) { control.ClumpValue(value); }
};

}  // namespace tactix::tests
