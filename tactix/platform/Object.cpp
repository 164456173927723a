#include "tactix/platform/Object.h"

#include <string>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"

namespace tactix {

namespace {

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

[[noreturn]] void FailAsMissing(std::string_view name) {
  throw Error(Error::NoSuchMember, "No such member: " + std::string(name));
}

}  // namespace

Object::~Object() = default;

Variant Object::Get(std::string_view name) { FailAsMissing(name); }

void Object::Put(std::string_view name, const Variant&) { FailAsMissing(name); }

Variant Object::Call(std::string_view name, std::span<Variant>) { FailAsMissing(name); }

bool SameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (Lower(a[i]) != Lower(b[i])) return false;
  }
  return true;
}

}  // namespace tactix
