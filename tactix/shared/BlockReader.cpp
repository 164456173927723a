#include "tactix/shared/BlockReader.h"

#include <cstddef>
#include <cstdint>

#include "tactix/platform/Error.h"
#include "tactix/platform/NumberText.h"

namespace tactix {

namespace {

constexpr std::int16_t AceCountedHigh = 10;  // what an ace counted as 11 adds to the hard total
constexpr double FirstTotalWithoutAlternative = 11;

bool HasSecondTotal(const Variant& softTotal) {
  return softTotal.CountsAsTrue() && softTotal.ToDouble() < FirstTotalWithoutAlternative;
}

}  // namespace

Variant BlockReader::Value(BlockField field) const {
  if (IsOver()) return {};
  if (block_) return block_->Field(field);
  if (!object_) throw Error(Error::ObjectNotSet);
  return object_->Get(NameOf(field));
}

void BlockReader::AppendText(BlockField field, std::string& out) const {
  if (IsOver()) return;
  if (block_ && field == BlockField::PlayerName) {
    out += block_->PlayerName();
  } else if (block_ && field == BlockField::MidCardsAre) {
    out += block_->MidCardsAre();
  } else {
    out += Value(field).ToText();
  }
}

void DecodeBlock(const BlockReader& from, DecisionBlock& into) {
  if (from.block_) {
    into = *from.block_;
    return;
  }
  for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
    const auto field = static_cast<BlockField>(i);
    const Variant value = from.Value(field);
    if (from.IsOver()) return;
    into.Field(field, value);
  }
}

void AppendDecisionPrompt(const BlockReader& block, std::string& out) {
  // An object's default property is asked once: both totals come of the same answer.
  const Variant hardTotal = block.Value(BlockField::HardTotal).Plain();
  std::string total = Str(hardTotal);
  if (HasSecondTotal(block.Value(BlockField::SoftTotal).Plain())) {
    total += " OR ";
    AppendStr(total, Add(hardTotal, AceCountedHigh));
  }
  block.AppendText(BlockField::PlayerName, out);
  out += " - You have ";
  out += total;
  out += "  - Make your Selection";
}

}  // namespace tactix
