#include "tactix/companion/Edition.h"

#include <utility>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"

namespace tactix::companion {

// The old one ends last: what it holds may be the edition's last owner.
void Edition::WhenShown(ShowFunction show) { std::swap(show_, show); }

void Edition::Show(std::int16_t& modalFlag) {
  const ShowFunction show = show_;  // a copy: it may set another one while it runs
  if (show) show(modalFlag);
}

Variant Edition::Get(std::string_view name) {
  if (SameName(name, "thisKelvoEdition")) return thisKelvoEdition_;
  return Object::Get(name);
}

void Edition::Put(std::string_view name, const Variant& value) {
  if (!SameName(name, "thisKelvoEdition")) return Object::Put(name, value);
  thisKelvoEdition_ = value.ToInteger();
}

Variant Edition::Call(std::string_view name, std::span<Variant> arguments) {
  if (!SameName(name, "Show")) return Object::Call(name, arguments);
  if (arguments.size() != 1) throw Error(Error::InvalidProcedureCall);
  std::int16_t modalFlag = arguments[0].ToInteger();
  Show(modalFlag);
  arguments[0] = modalFlag;
  return {};
}

}  // namespace tactix::companion
