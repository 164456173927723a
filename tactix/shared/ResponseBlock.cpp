#include "tactix/shared/ResponseBlock.h"

#include "tactix/shared/EnumerationNames.h"

namespace tactix {

namespace {

template <auto field>
void AddField(ObjectProperties& table, const char* name) {
  using T = std::remove_cvref_t<decltype(DecisionBARResponseObject().*field)>;
  table.Add({name,
             LateBound<T>::Type,
             ObjectProperties::GetBy([](ResponseBlock& block) { return block.Predictions.*field; }),
             ObjectProperties::SetBy([](ResponseBlock& block, const T& value) { block.Predictions.*field = value; }),
             {}});
}

}  // namespace

const ObjectProperties& ResponseBlock::Properties() const {
  static const ObjectProperties table = [] {
    ObjectProperties fields;
    AddField<&DecisionBARResponseObject::HitCardIs>(fields, "HitCardIs");
    AddField<&DecisionBARResponseObject::HoleCardIs>(fields, "HoleCardIs");
    AddField<&DecisionBARResponseObject::TensRatioIs>(fields, "TensRatioIs");
    AddField<&DecisionBARResponseObject::DealerHandIs>(fields, "DealerHandIs");
    return fields;
  }();
  return table;
}

}  // namespace tactix
