#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "tactix/platform/Event.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/widgets/Widget.h"

namespace tactix::tests {

/// One list of everything that happened, in order: events of the controls and widgets it watches, and whatever a test
/// notes besides. An event reads "PlayerHits#2", with arguments "StrategySelectionChanged#1(5)"; one that has no number
/// "Click". Events of a widget or of one control among several get a name in front: "HitButton.Click".
class EventRecorder {
 public:
  /// Watches all events of a control: `recorder.Watch(control.Events.All())`.
  template <class... Events>
  void Watch(const std::tuple<Events&...>& events, std::string_view who = {}) {
    std::apply([&](Events&... each) { (Watch(each, who), ...); }, events);
  }
  template <class... Args>
  void Watch(Event<Args...>& event, std::string_view who = {}) {
    std::string text = who.empty() ? std::string() : std::string(who) + ".";
    text += event.Name();
    if (event.Number() != 0) text += "#" + std::to_string(event.Number());
    connections_.emplace_back(event.Connect([this, text](Args... args) { entries_.push_back(text + List(args...)); }));
  }

  void Note(std::string text) { entries_.push_back(std::move(text)); }

  const std::vector<std::string>& Entries() const { return entries_; }
  std::size_t Count(std::string_view entry) const {
    std::size_t count = 0;
    for (const std::string& each : entries_) {
      if (each == entry) ++count;
    }
    return count;
  }
  void Forget() { entries_.clear(); }
  /// What happened since the last time.
  std::vector<std::string> Take() { return std::exchange(entries_, {}); }

 private:
  static std::string List() { return {}; }
  template <class First, class... Rest>
  static std::string List(const First& first, const Rest&... rest) {
    std::string list = "(" + Text(first);
    ((list += ", " + Text(rest)), ...);
    return list + ")";
  }

  template <class T>
  static std::string Text(const T& value) {
    if constexpr (std::is_same_v<T, bool>) {
      return value ? "true" : "false";
    } else if constexpr (std::is_enum_v<T>) {
      return std::to_string(static_cast<long long>(value));
    } else if constexpr (std::is_integral_v<T>) {
      return std::to_string(value);
    } else if constexpr (std::is_same_v<T, MouseState>) {
      return "button " + Text(value.button) + " shift " + Text(value.shift);
    } else if constexpr (std::is_convertible_v<T, std::string_view>) {
      return std::string(std::string_view(value));
    } else if constexpr (std::is_constructible_v<Variant, const T&>) {
      return Variant(value).ToText();
    } else if constexpr (requires { value.Value(); }) {
      return std::to_string(value.Value());  // a coded enumeration
    } else {
      return "a record";
    }
  }

  std::vector<std::string> entries_;
  std::vector<ScopedConnection> connections_;
};

}  // namespace tactix::tests
