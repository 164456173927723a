#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/shared/BlockField.h"
#include "tactix/shared/DecisionBlock.h"

namespace tactix::tests {

/// A decision block of a host's own making: any value under each name, or none, and a log of what was read.
class ForeignBlock final : public Object {
 public:
  /// The names that were read, in order.
  std::vector<std::string> Reads;
  /// Runs after a read was logged and before it is answered; may throw, and set other values.
  std::function<void(std::string_view name)> OnRead;

  /// Has what the block has.
  explicit ForeignBlock(const DecisionBlock& block = {}) {
    for (std::size_t i = 0; i < BlockFieldNames.size(); ++i) {
      members_.push_back({std::string(BlockFieldNames[i]), block.Field(static_cast<BlockField>(i))});
    }
  }

  void Set(BlockField field, Variant value) {
    Remove(field);
    members_.push_back({std::string(NameOf(field)), std::move(value)});
  }
  void Remove(BlockField field) {
    std::erase_if(members_, [&](const Member& member) { return member.name == NameOf(field); });
  }

  Variant Get(std::string_view name) override {
    Reads.emplace_back(name);
    if (const auto onRead = OnRead) onRead(name);
    for (const Member& member : members_) {
      if (SameName(member.name, name)) return member.value;
    }
    return Object::Get(name);
  }

 private:
  struct Member {
    std::string name;
    Variant value;
  };
  std::vector<Member> members_;
};

}  // namespace tactix::tests
