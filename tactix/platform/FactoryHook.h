#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "tactix/platform/Error.h"

namespace tactix {

/// How a kind of object that hosts supply is made on first use. A host sets the factory; until then, and where the
/// factory makes nothing, making one fails with 91 and a text that says what to call.
template <class Pointer>
class FactoryHook {
 public:
  using Factory = std::function<Pointer()>;

  /// What is made, and by which function its factory is set, for the error's text.
  constexpr FactoryHook(std::string_view what, std::string_view setter) : what_(what), setter_(setter) {}

  /// The old factory is destroyed after the new one is in place, because destroying it may run host code.
  void CreateWith(Factory factory) { std::swap(factory_, factory); }

  Pointer Create() const {
    const Factory create = factory_;  // a copy: it may set another factory while it runs
    Pointer made = create ? create() : nullptr;
    if (!made) {
      throw Error(Error::ObjectNotSet, "Nothing makes " + std::string(what_) +
                                           ". Call tactix::companion::Install() before the first control is used, or " +
                                           std::string(setter_) + " with a factory of your own.");
    }
    return made;
  }

 private:
  std::string_view what_;
  std::string_view setter_;
  Factory factory_;
};

}  // namespace tactix
