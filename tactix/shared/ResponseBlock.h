#pragma once

#include "tactix/platform/Export.h"
#include "tactix/platform/TableObject.h"
#include "tactix/shared/Enumerations.h"

namespace tactix {

/// The player's predictions as a late-bound object: what a late-bound GiveMeYourResponseData returns. A copy.
class TACTIX_EXPORT ResponseBlock final : public TableObject {
 public:
  explicit ResponseBlock(const DecisionBARResponseObject& predictions) : Predictions(predictions) {}

  DecisionBARResponseObject Predictions;

 protected:
  const ObjectProperties& Properties() const override;
};

template <>
struct LateBound<DecisionBARResponseObject> {
  static constexpr ValueType Type{ValueKind::Object};
  static Variant To(const DecisionBARResponseObject& predictions) {
    return std::make_shared<ResponseBlock>(predictions);
  }
};

}  // namespace tactix
