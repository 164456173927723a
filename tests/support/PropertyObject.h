#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"

namespace tactix::tests {

/// A host's object with the properties that a test gives it, and a log of what was done to it.
class PropertyObject final : public Object {
 public:
  /// "Get Name", "Put Name=value", "Call Name(value)", in order.
  std::vector<std::string> Log;
  /// Runs after a use was logged; may throw.
  std::function<void(const std::string& use)> OnUse;
  /// What a call does to its arguments; without it the object has no methods.
  std::function<void(std::string_view name, std::span<Variant>)> OnCall;

  PropertyObject() = default;
  PropertyObject(std::string name, Variant value) { Set(std::move(name), std::move(value)); }
  void Set(std::string name, Variant value) { members_[std::move(name)] = std::move(value); }

  Variant Get(std::string_view name) override {
    const auto found = members_.find(std::string(name));
    const Variant value = found == members_.end() ? Object::Get(name) : found->second;
    Note("Get " + std::string(name));
    return value;
  }
  void Put(std::string_view name, const Variant& value) override {
    const auto found = members_.find(std::string(name));
    if (found == members_.end()) return Object::Put(name, value);
    found->second = value;
    Note("Put " + std::string(name) + "=" + value.ToText());
  }
  Variant Call(std::string_view name, std::span<Variant> arguments) override {
    if (!OnCall) return Object::Call(name, arguments);
    std::string text = "Call " + std::string(name) + "(";
    for (const Variant& argument : arguments) text += argument.ToText();
    Note(text + ")");
    OnCall(name, arguments);
    return {};
  }

 private:
  void Note(const std::string& use) {
    Log.push_back(use);
    if (const auto onUse = OnUse) onUse(use);
  }

  std::map<std::string, Variant> members_;
};

}  // namespace tactix::tests
