#include "tactix/companion/Edition.h"

#include <utility>

namespace tactix::companion {

// The old function is destroyed last: what it holds may be the last owner of this edition.
void Edition::WhenShown(ShowFunction show) { std::swap(show_, show); }

void Edition::Show(std::int16_t& modalFlag) {
  const ShowFunction show = show_;  // a copy: it may set another one while it runs
  if (show) show(modalFlag);
}

const ObjectProperties& Edition::Properties() const {
  static const ObjectProperties table =
      ObjectProperties().Property("thisKelvoEdition", &Edition::thisKelvoEdition, &Edition::thisKelvoEdition);
  return table;
}

const ObjectMethods& Edition::Methods() const {
  static const ObjectMethods table = ObjectMethods().Method("Show", &Edition::Show);
  return table;
}

}  // namespace tactix::companion
