#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/Variant.h"

namespace tactix::tests {

/// Notes what a control reads and writes, and fails where a test says so.
class LoggingBag final : public PropertyBag {
 public:
  std::vector<std::string> log;
  /// Defaults that values were written with, as "Enabled=True".
  std::vector<std::string> defaults;
  /// The name that fails, with 1234.
  std::string failing;
  /// Runs at every access, after it was logged.
  std::function<void(std::string_view name)> onAccess;
  MemoryPropertyBag stored;

  Variant Read(std::string_view name, const Variant& defaultValue) override {
    const Variant value = stored.Read(name, defaultValue);
    Note("read ", name);
    return value;
  }
  void Write(std::string_view name, const Variant& value) override {
    Note("write ", name);
    stored.Write(name, value);
  }
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override {
    Note("write ", name);
    defaults.push_back(std::string(name) + "=" +
                       (defaultValue.Type() == VariantType::Font ? "font" : defaultValue.ToText()));
    stored.Write(name, value, defaultValue);
  }

 private:
  void Note(const char* what, std::string_view name) {
    log.push_back(what + std::string(name));
    if (onAccess) onAccess(name);
    if (name == failing) throw Error(1234);
  }
};

}  // namespace tactix::tests
