#include "tactix/shared/DecisionBlock.h"

#include <cstddef>
#include <iterator>
#include <utility>

#include "tactix/platform/Error.h"
#include "tactix/platform/Variant.h"

namespace tactix {

namespace {

struct FieldAccess {
  BlockField field;
  Variant (*get)(const DecisionBlock& block);
  void (*put)(DecisionBlock& block, const Variant& value);
};

template <std::int16_t (DecisionBlock::*Getter)() const, void (DecisionBlock::*Setter)(std::int16_t)>
constexpr FieldAccess Number(BlockField field) {
  return {field, [](const DecisionBlock& block) -> Variant { return (block.*Getter)(); },
          [](DecisionBlock& block, const Variant& value) { (block.*Setter)(value.ToInteger()); }};
}

template <bool (DecisionBlock::*Getter)() const, void (DecisionBlock::*Setter)(bool)>
constexpr FieldAccess Flag(BlockField field) {
  return {field, [](const DecisionBlock& block) -> Variant { return (block.*Getter)(); },
          [](DecisionBlock& block, const Variant& value) { (block.*Setter)(value.ToBoolean()); }};
}

template <const std::string& (DecisionBlock::*Getter)() const, void (DecisionBlock::*Setter)(std::string_view)>
constexpr FieldAccess Text(BlockField field) {
  return {field, [](const DecisionBlock& block) -> Variant { return (block.*Getter)(); },
          [](DecisionBlock& block, const Variant& value) { (block.*Setter)(value.ToText()); }};
}

using Block = DecisionBlock;

constexpr FieldAccess Accesses[] = {
    Number<&Block::SoftTotal, &Block::SoftTotal>(BlockField::SoftTotal),
    Number<&Block::HardTotal, &Block::HardTotal>(BlockField::HardTotal),
    Text<&Block::PlayerName, &Block::PlayerName>(BlockField::PlayerName),
    Text<&Block::MidCardsAre, &Block::MidCardsAre>(BlockField::MidCardsAre),
    Flag<&Block::ManualPlayerRestrictions, &Block::ManualPlayerRestrictions>(BlockField::ManualPlayerRestrictions),
    Flag<&Block::PlayingLogEnabled, &Block::PlayingLogEnabled>(BlockField::PlayingLogEnabled),
    Flag<&Block::PromptPlayButtons, &Block::PromptPlayButtons>(BlockField::PromptPlayButtons),
    Flag<&Block::HardDoubleIsValid, &Block::HardDoubleIsValid>(BlockField::HardDoubleIsValid),
    Flag<&Block::SoftDoubleIsValid, &Block::SoftDoubleIsValid>(BlockField::SoftDoubleIsValid),
    Flag<&Block::SurrenderIsValid, &Block::SurrenderIsValid>(BlockField::SurrenderIsValid),
    Number<&Block::StrategyAdvice, &Block::StrategyAdvice>(BlockField::StrategyAdvice),
    Flag<&Block::SplitIsValid, &Block::SplitIsValid>(BlockField::SplitIsValid),
    Flag<&Block::HitIsValid, &Block::HitIsValid>(BlockField::HitIsValid),
};

constexpr bool InOrder() {
  for (std::size_t i = 0; i < std::size(Accesses); ++i) {
    if (Accesses[i].field != static_cast<BlockField>(i)) return false;
  }
  return std::size(Accesses) == BlockFieldNames.size();
}
static_assert(InOrder());

const FieldAccess& AccessTo(BlockField field) { return Accesses[static_cast<std::size_t>(field)]; }

const FieldAccess* FindAccess(std::string_view name) {
  for (const auto& access : Accesses) {
    if (SameName(NameOf(access.field), name)) return &access;
  }
  return nullptr;
}

}  // namespace

Variant DecisionBlock::Get(std::string_view name) { return std::as_const(*this).Get(name); }

Variant DecisionBlock::Get(std::string_view name) const {
  if (const FieldAccess* access = FindAccess(name)) return access->get(*this);
  throw Error(Error::NoSuchMember);
}

void DecisionBlock::Put(std::string_view name, const Variant& value) {
  const FieldAccess* access = FindAccess(name);
  return access ? access->put(*this, value) : Object::Put(name, value);
}

Variant DecisionBlock::Field(BlockField field) const { return AccessTo(field).get(*this); }

void DecisionBlock::Field(BlockField field, const Variant& value) { AccessTo(field).put(*this, value); }

}  // namespace tactix
