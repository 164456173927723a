#include "tactix/platform/PropertyBag.h"

#include <algorithm>

namespace tactix {

PropertyBag::~PropertyBag() = default;

Variant MemoryPropertyBag::Read(std::string_view name, const Variant& defaultValue) {
  for (const auto& entry : entries_) {
    if (SameName(entry.name, name)) return entry.value;
  }
  return defaultValue;
}

void MemoryPropertyBag::Write(std::string_view name, const Variant& value) {
  Entry entry{std::string(name), value};
  Remove(name);
  entries_.push_back(std::move(entry));
}

void MemoryPropertyBag::Write(std::string_view name, const Variant& value, const Variant& defaultValue) {
  if (value == defaultValue) {
    Remove(name);
  } else {
    Write(name, value);
  }
}

bool MemoryPropertyBag::Contains(std::string_view name) const {
  return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) { return SameName(entry.name, name); });
}

void MemoryPropertyBag::Remove(std::string_view name) {
  std::erase_if(entries_, [&](const Entry& entry) { return SameName(entry.name, name); });
}

std::vector<std::string> MemoryPropertyBag::Names() const {
  std::vector<std::string> names;
  names.reserve(entries_.size());
  for (const auto& entry : entries_) names.push_back(entry.name);
  return names;
}

}  // namespace tactix
