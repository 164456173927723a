#include "tactix/companion/StrategyDataBlock.h"

#include "tactix/platform/Error.h"
#include "tactix/platform/PropertyTable.h"

namespace tactix::companion {

namespace {

struct FieldAccess {
  std::string_view name;
  Variant (*get)(const StrategyDataBlock& block);
  void (*put)(StrategyDataBlock& block, const Variant& value);
};

template <class T>
T TypeOf(T StrategyDataBlock::*);

template <auto field>
constexpr FieldAccess Access(std::string_view name) {
  using Value = decltype(TypeOf(field));
  return {name, [](const StrategyDataBlock& block) { return Variant(block.*field); },
          [](StrategyDataBlock& block, const Variant& value) { block.*field = FromVariant<Value>(value); }};
}

using Block = StrategyDataBlock;
constexpr FieldAccess Fields[] = {
    Access<&Block::RunningCount>("RunningCount"),
    Access<&Block::TrueCount>("TrueCount"),
    Access<&Block::AcesDealt>("AcesDealt"),
    Access<&Block::FivesDealt>("FivesDealt"),
    Access<&Block::TensDealt>("TensDealt"),
    Access<&Block::BiasRating>("BiasRating"),
    Access<&Block::ClumpType>("ClumpType"),
    Access<&Block::CoreCardsDealt>("CoreCardsDealt"),
    Access<&Block::TargetRating>("TargetRating"),
    Access<&Block::DealerBreakPercent>("DealerBreakPercent"),
    Access<&Block::AdjustedCount>("AdjustedCount"),
    Access<&Block::DealerStiffHands>("DealerStiffHands"),
    Access<&Block::DealerStrongHands>("DealerStrongHands"),
    Access<&Block::DealerEndingTotal>("DealerEndingTotal"),
};

const FieldAccess* Find(std::string_view name) {
  for (const FieldAccess& field : Fields) {
    if (SameName(field.name, name)) return &field;
  }
  return nullptr;
}

}  // namespace

Variant StrategyDataBlock::Get(std::string_view name) {
  const FieldAccess* const field = Find(name);
  return field ? field->get(*this) : Object::Get(name);
}

void StrategyDataBlock::Put(std::string_view name, const Variant& value) {
  if (name == DefaultPropertyName) {
    const ObjectRef source = value.ToObject();
    if (!source) throw Error(Error::ObjectNotSet);
    StrategyDataBlock copy;
    for (const FieldAccess& field : Fields) field.put(copy, source->Get(field.name));
    *this = copy;
    return;
  }
  const FieldAccess* const field = Find(name);
  return field ? field->put(*this, value) : Object::Put(name, value);
}

}  // namespace tactix::companion
