#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Export.h"
#include "tactix/platform/Variant.h"

namespace tactix {

/// Where a control's container keeps the control's saved properties. Any of the three may fail with an Error, throw
/// something else, call back into the control, and destroy the control, its window and the bag: a control that is gone
/// asks its bag for nothing more.
class TACTIX_EXPORT PropertyBag {
 public:
  virtual ~PropertyBag();

  /// The stored value, or the default where nothing is stored under the name.
  virtual Variant Read(std::string_view name, const Variant& defaultValue = {}) = 0;
  virtual void Write(std::string_view name, const Variant& value) = 0;
  /// As above, but a value that equals its default need not be stored.
  virtual void Write(std::string_view name, const Variant& value, const Variant& defaultValue) = 0;

 protected:
  PropertyBag() = default;
  PropertyBag(const PropertyBag&) = default;
  PropertyBag& operator=(const PropertyBag&) = default;
};

/// A property bag in memory. Names compare without case. A value that equals its default is not stored, and takes an
/// older one of its name away. Never fails.
class TACTIX_EXPORT MemoryPropertyBag : public PropertyBag {
 public:
  Variant Read(std::string_view name, const Variant& defaultValue = {}) override;
  void Write(std::string_view name, const Variant& value) override;
  void Write(std::string_view name, const Variant& value, const Variant& defaultValue) override;

  bool Contains(std::string_view name) const;
  void Remove(std::string_view name);
  void Clear() { entries_.clear(); }
  /// The names of what is stored, as last spelled, in the order in which the values were written.
  std::vector<std::string> Names() const;

 private:
  struct Entry {
    std::string name;
    Variant value;
  };
  std::vector<Entry> entries_;
};

}  // namespace tactix
