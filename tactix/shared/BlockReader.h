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
/// has them. A DecisionBlock must outlive the reader; any other object is kept alive by it.
///
/// Each read may run host code, which may destroy the control that reads. Once that control is gone, a reader made for
/// it reads Empty and no longer asks the block, since a DecisionBlock may be gone, too.
class TACTIX_EXPORT BlockReader {
 public:
  explicit BlockReader(const DecisionBlock& block) : block_(&block) {}
  BlockReader(const DecisionBlock& block, const Trackable& control) : block_(&block), control_(Tracker(&control)) {}
  /// Fails with 424 where the variant holds no object. A null object fails with 91 when it is read.
  explicit BlockReader(const Variant& thisDCB) : object_(thisDCB.ToObject()) {}
  BlockReader(const Variant& thisDCB, const Trackable& control)
      : object_(thisDCB.ToObject()), control_(Tracker(&control)) {}

  /// Fails with 438 where the object lacks the property, and with the error of the object's own getter.
  Variant Value(BlockField field) const;
  /// Appends the value as text to `out`, which stays as it was on a failure. Reading a DecisionBlock allocates nothing
  /// where the capacity of `out` suffices.
  void AppendText(BlockField field, std::string& out) const;

 private:
  friend TACTIX_EXPORT void DecodeBlock(const BlockReader& from, DecisionBlock& into);

  bool IsOver() const { return control_ && !control_->Alive(); }

  const DecisionBlock* block_ = nullptr;
  ObjectRef object_;
  std::optional<Tracker> control_;
};

/// Copies the thirteen properties in the order of BlockField. A failure ends it at that property: those before it are
/// copied, the others keep their values. Copying a DecisionBlock allocates only where a text is longer than the one it
/// replaces.
TACTIX_EXPORT void DecodeBlock(const BlockReader& from, DecisionBlock& into);

/// Appends the prompt of a hand to `out`: "Ann - You have  12  - Make your Selection". Where SoftTotal is not 0 and
/// below 11, " OR " and the hard total plus 10 follow the hard total. Reads HardTotal, SoftTotal and PlayerName in this
/// order. `out` stays as it was on a failure.
TACTIX_EXPORT void AppendDecisionPrompt(const BlockReader& block, std::string& out);

}  // namespace tactix
