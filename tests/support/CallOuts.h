#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tactix::tests {

/// The kinds of code of a host's that a control calls.
enum class CallOut {
  Event,
  Notice,
  Wait,
  PopUp,
  Beep,
  Focus,
  Unhandled,
  BagRead,
  BagWrite,
  Catalogue,
  Collection,
  Edition,
  CounterValue,
  DataBlock,
  DecisionBlock,
  FlashedObject,
  Factory,
  /// The destructor of something of the host's: an object that a control lets go of, or what a handler holds.
  ObjectEnds,
};

inline constexpr std::array<std::string_view, 18> CallOutNames = {
    "Event",        "Notice",    "Wait",          "PopUp",         "Beep",       "Focus",
    "Unhandled",    "BagRead",   "BagWrite",      "Catalogue",     "Collection", "Edition",
    "CounterValue", "DataBlock", "DecisionBlock", "FlashedObject", "Factory",    "ObjectEnds",
};

constexpr std::string_view NameOf(CallOut kind) { return CallOutNames[static_cast<std::size_t>(kind)]; }

/// Named by its name in reports.
inline void PrintTo(CallOut kind, std::ostream* out) { *out << NameOf(kind); }

/// Counts the calls of a control to what is its host's, and does something in the middle of one of them.
class CallOuts {
 public:
  using Counts = std::map<CallOut, int>;

  /// Everything of the host's says so at each call of it. May destroy whoever calls, and throw.
  void Happen(CallOut kind) {
    ++counts_[kind];
    if (controlIsGone_ && kind != CallOut::ObjectEnds && kind != CallOut::Unhandled) late_.emplace_back(NameOf(kind));
    for (std::size_t i = 0; i < armed_.size(); ++i) {
      if (armed_[i].kind != kind || --armed_[i].callsLeft != 0) continue;
      const auto action = std::move(armed_[i].action);
      armed_.erase(armed_.begin() + static_cast<std::ptrdiff_t>(i));
      ++actions_;
      return action();
    }
  }

  /// Runs the action in the middle of that call of the kind, the next one being 1.
  void Arm(CallOut kind, int call, std::function<void()> action) { armed_.push_back({kind, call, std::move(action)}); }
  void Disarm() { armed_.clear(); }
  /// How many actions have run.
  int Actions() const { return actions_; }

  /// From now on every call but the end of an object is a late one.
  void ControlIsGone() { controlIsGone_ = true; }
  const std::vector<std::string>& Late() const { return late_; }

  /// The calls since the last time.
  Counts Take() { return std::exchange(counts_, {}); }

 private:
  struct Armed {
    CallOut kind;
    int callsLeft;
    std::function<void()> action;
  };

  Counts counts_;
  std::vector<Armed> armed_;
  std::vector<std::string> late_;
  int actions_ = 0;
  bool controlIsGone_ = false;
};

}  // namespace tactix::tests
