#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "tactix/platform/Export.h"

namespace tactix {

class Variant;

/// An object whose members are looked up by name while the program runs. Names compare without case (ASCII letters
/// only). A class overrides what it has and passes every other name on to this base, which fails with 438.
///
/// Any of the three may fail with an Error, throw something else, call back into the control that asks, and destroy the
/// control or its window; the control keeps the object until its answer is there. The destructor may do the same but
/// throw: a control may let go of the last reference to an object of the host's.
class TACTIX_EXPORT Object {
 public:
  virtual ~Object();

  /// The value of a property. Fails with 438 where there is none of that name.
  virtual Variant Get(std::string_view name);
  /// Sets a property. Fails with 438 where there is none of that name, or none that can be set; a value that does not
  /// convert fails with its own code and leaves the old one.
  virtual void Put(std::string_view name, const Variant& value);
  /// Calls a method. It may write to its arguments. The result is Empty where the method has none.
  virtual Variant Call(std::string_view name, std::span<Variant> arguments);

 protected:
  Object() = default;
  Object(const Object&) = default;
  Object& operator=(const Object&) = default;
};

/// A reference to an object of the host's or the library's; may be null, which fails with 91 when it is used.
using ObjectRef = std::shared_ptr<Object>;

/// The name of an object's default property: the one that is meant when a value is assigned to the object itself, or
/// the object is taken as a value.
inline constexpr std::string_view DefaultPropertyName = "";

/// Whether two names are the same member: equal but for the case of ASCII letters.
TACTIX_EXPORT bool SameName(std::string_view a, std::string_view b);

}  // namespace tactix
