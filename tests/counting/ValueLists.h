#pragma once

#include <string>
#include <type_traits>

#include "tactix/counting/UnitSelectionList.h"
#include "tests/counting/CardValueSelectors.h"

namespace tactix::tests {

/// The three controls that are a list under common names, for tests of all.
template <class C>
struct ListOf : Selector<C> {};

template <>
struct ListOf<UnitSelectionList> {
  static constexpr const char* Name = "UnitSelectionList";
  static constexpr const char* EventName = "UnitSizeSelected#1";
  static ListBox& TheList(UnitSelectionList& control) { return control.Children.comboBettingUnits; }
  static Event<std::int16_t&>& TheEvent(UnitSelectionList& control) { return control.Events.UnitSizeSelected; }
};

template <class C>
constexpr bool IsUnitList = std::is_same_v<C, UnitSelectionList>;

/// Names the cases of typed tests by their controls.
struct ListName {
  template <class C>
  static std::string GetName(int) {
    return ListOf<C>::Name;
  }
};

}  // namespace tactix::tests
