#pragma once

#include <optional>
#include <string>

#include "tactix/platform/Export.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/platform/Weak.h"
#include "tactix/shared/BlockField.h"
#include "tactix/shared/DecisionBlock.h"

namespace tactix {

/// Reads a decision block's properties one at a time: straight from a DecisionBlock, or by name from any object that
/// has them. A DecisionBlock must outlive the reader; an object is kept.
///
/// Any read may run code of the host's, which may destroy the control that reads. A reader for a control asks the block
/// for nothing more once the control is gone: what it then reads is Empty, and a DecisionBlock may be gone, too.
class TACTIX_EXPORT BlockReader {
 public:
  explicit BlockReader(const DecisionBlock& block) : block_(&block) {}
  BlockReader(const DecisionBlock& block, const Trackable& control) : block_(&block), control_(Tracker(&control)) {}
  /// Fails with 424 where the variant holds no object. A null object fails with 91 when it is read.
  explicit BlockReader(const Variant& thisDCB) : object_(thisDCB.ToObject()) {}
  BlockReader(const Variant& thisDCB, const Trackable& control)
      : object_(thisDCB.ToObject()), control_(Tracker(&control)) {}

  /// Fails with 438 where the object lacks the property, or as its getter fails.
  Variant Value(BlockField field) const;
  /// The value as text, behind what `out` holds; a failure leaves `out` as it was. From a DecisionBlock it allocates
  /// nothing where the capacity of `out` suffices.
  void AppendText(BlockField field, std::string& out) const;

 private:
  friend TACTIX_EXPORT void DecodeBlock(const BlockReader& from, DecisionBlock& into);

  bool IsOver() const { return control_ && !control_->Alive(); }

  const DecisionBlock* block_ = nullptr;
  ObjectRef object_;
  std::optional<Tracker> control_;
};

/// Copies the thirteen properties in the order of BlockField. A failure ends it at that property: those before it are
/// copied, the others keep their values. From a DecisionBlock it allocates only where a text outgrows its predecessor.
TACTIX_EXPORT void DecodeBlock(const BlockReader& from, DecisionBlock& into);

/// The prompt of a hand, behind what `out` holds: "Ann - You have  12  - Make your Selection", with " OR " and the soft
/// total after the hard one when the hand is soft. Reads HardTotal, SoftTotal and PlayerName in this order. A failure
/// leaves `out` as it was.
TACTIX_EXPORT void AppendDecisionPrompt(const BlockReader& block, std::string& out);

}  // namespace tactix
