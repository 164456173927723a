#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/MethodTable.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/PropertyRows.h"

namespace tactix {

/// The properties of a class of late-bound objects.
class ObjectProperties : public PropertyRows<ObjectProperties, Object> {};

/// The methods of a class of late-bound objects.
using ObjectMethods = MethodRows<Object>;

/// A late-bound object whose members stand in tables: the easy way for a host to write an edition, a collection or a
/// block of its own.
///
///   class Seats : public tactix::TableObject {
///    public:
///     std::int16_t Count = 7;
///
///    protected:
///     const tactix::ObjectProperties& Properties() const override {
///       static const auto table = tactix::ObjectProperties().Field("Count", &Seats::Count);
///       return table;
///     }
///   };
class TACTIX_EXPORT TableObject : public Object {
 public:
  Variant Get(std::string_view name) override;
  Variant Call(std::string_view name, std::span<Variant> arguments) override;
  void Put(std::string_view name, const Variant& value) override;

 protected:
  virtual const ObjectProperties& Properties() const;
  /// A call with a number of arguments that the method does not take fails with 5.
  virtual const ObjectMethods& Methods() const;
};

}  // namespace tactix
