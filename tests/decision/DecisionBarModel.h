#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "tests/decision/DecisionToolBarFixture.h"
#include "tests/support/ForeignBlock.h"

namespace tactix::tests {

/// What a decision toolbar should look like after everything that was done to it, worked out without it.
class DecisionBarModel {
 public:
  static constexpr std::size_t ButtonCount = 24;
  static constexpr std::size_t GroupCount = 5;  // hit card, hole card, tens ratio, dealer's hand, status
  static constexpr std::size_t Advice = 5;

  /// The first button of a group and the values of its buttons; the status button predicts nothing.
  struct Group {
    std::size_t first;
    std::vector<std::int32_t> values;
    const char* notice;
  };
  static const Group& GroupAt(std::size_t group) {
    static const Group groups[GroupCount] = {
        {7, {1, 2, 3, 4}, "HitcardButtonsVisibility"}, {12, {1, 2, 3, 4}, "HoleCardButtonsVisibility"},
        {17, {1, 3}, "TensRatioButtonsVisibility"},    {20, {-1, 1}, "DealerStrengthButtonsVisibility"},
        {23, {0}, "StatusButtonVisibility"},
    };
    return groups[group];
  }

  std::array<bool, ButtonCount> shown = Filled(true);
  std::array<bool, ButtonCount> enabled = Filled(true);
  std::array<bool, ButtonCount> pressed = Filled(false);
  std::array<std::int32_t, GroupCount> visibility{};
  std::array<bool, GroupCount> checked = {};
  PredictionRecord record{};
  std::int32_t alignment = 2;
  std::int16_t edition = 0;
  std::int16_t advice = 0;
  std::int16_t copiedTotal = 0;
  bool resets = false;
  bool stripShown = true;
  /// Events and notices, in order.
  std::vector<std::string> expected;
  std::vector<std::string> heard;

  /// A play's enabled state changes with time while it flashes.
  int flashes = 0;

  void Expect(std::string what) { expected.push_back(std::move(what)); }

  void ShowGroup(std::size_t group, std::int32_t value) {
    const Group& g = GroupAt(group);
    for (std::size_t i = 0; i < g.values.size(); ++i) shown[g.first + i] = value != 0;
  }
  void SetVisibility(std::size_t group, std::int32_t value) {
    visibility[group] = value;
    ShowGroup(group, value);
    Expect(GroupAt(group).notice);
  }
  void ReadStatus() { SetVisibility(3, visibility[3]); }
  void Choose(std::size_t group) {
    checked[group] = !checked[group];
    visibility[group] = checked[group] ? -1 : 0;
  }

  /// A click on a button that the player can reach.
  void Click(std::size_t button) {
    static const char* const events[] = {"HitButtonWasPressed#1", "StandButtonWasPressed#2", "SplitButtonWasPressed#3",
                                         "DoubleButtonWasPressed#4", "SurrenderButtonWasPressed#7"};
    if (button < std::size(events)) return Expect(events[button]);
    if (button == GroupAt(4).first) return Expect("StatsButtonWasPressed#5");
    for (std::size_t group = 0; group < 4; ++group) {
      const Group& g = GroupAt(group);
      if (button < g.first || button >= g.first + g.values.size()) continue;
      std::fill_n(pressed.begin() + static_cast<std::ptrdiff_t>(g.first), g.values.size(), false);
      pressed[button] = true;
      record[group] = g.values[button - g.first];
    }
  }

  /// The two "? ?" buttons stay as they are.
  void Unpress(std::size_t group) {
    const Group& g = GroupAt(group);
    for (std::size_t i = 0; i < g.values.size(); ++i) {
      if (g.values[i] != 4) pressed[g.first + i] = false;
    }
  }
  void Reset() {
    record = {};
    for (std::size_t group = 0; group < 4; ++group) Unpress(group);
  }

  void SetUpPlays(ForeignBlock& block) {
    const bool restricted = block.Get("ManualPlayerRestrictions").CountsAsTrue();
    const auto legal = [&](const char* name) { return !restricted || block.Get(name).ToBoolean(); };
    enabled[2] = legal("SplitIsValid");
    enabled[4] = legal("SurrenderIsValid");
    const bool hard = legal("HardDoubleIsValid");
    const bool soft = legal("SoftDoubleIsValid");
    enabled[3] = hard || soft;
  }
  /// Fails where the toolbar should fail, with what comes before it done.
  void SetUp(ForeignBlock& block) {
    SetUpPlays(block);
    advice = block.Get("StrategyAdvice").ToInteger();
    const Variant hard = block.Get("HardTotal").Plain();
    std::string totals = WithSignPlace(hard);
    const Variant soft = block.Get("SoftTotal");
    if (soft.CountsAsTrue() && soft.ToDouble() < 11) {
      totals += " OR " + WithSignPlace(hard.IsNull() ? hard : hard.ToDouble() + 10);
    }
    Expect("HereIsThePlayersPromptMessage#8(" + block.Get("PlayerName").ToText() + " - You have " + totals +
           "  - Make your Selection)");
  }

  void ReadEdition(const Variant& value) { edition = value.ToInteger(); }

 private:
  static constexpr std::array<bool, ButtonCount> Filled(bool value) {
    std::array<bool, ButtonCount> flags{};
    flags.fill(value);
    return flags;
  }
  static std::string WithSignPlace(const Variant& number) {
    if (number.IsNull()) return "Null";
    if (number.Type() == VariantType::Boolean) return number.ToText();
    const double value = number.ToDouble();
    std::string text = (value < 0 ? "" : " ") + Variant(value).ToText();
    if (value != 0 && text[1] == '0') text.erase(1, 1);
    return text;
  }
};

}  // namespace tactix::tests
