#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyBag.h"

namespace tactix::tests {

/// A property bag that notes what a control reads and writes, with the default it gives, as "read Height=360", and
/// fails where a test says so. A font is noted by its name.
class NotingBag final : public PropertyBag {
 public:
  std::vector<std::string> Log;
  /// The name that fails, when read and when written.
  std::string Failing;
  MemoryPropertyBag Stored;

  Variant Read(std::string_view name, const Variant& defaultValue) override {
    Note("read ", name, defaultValue);
    return Stored.Read(name, defaultValue);
  }
  void Write(std::string_view name, const Variant& value) override {
    Note("write ", name, {});
    Stored.Write(name, value);
  }
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override {
    Note("write ", name, defaultValue);
    Stored.Write(name, value, defaultValue);
  }

 private:
  void Note(const char* what, std::string_view name, const Variant& defaultValue) {
    const bool isFont = defaultValue.Type() == VariantType::Font;
    Log.push_back(what + std::string(name) + "=" + (isFont ? defaultValue.ToFont().Name : defaultValue.ToText()));
    if (name == Failing) throw Error(1234);
  }
};

}  // namespace tactix::tests
