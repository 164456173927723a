#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tactix/platform/Error.h"

namespace tactix {

/// The names of a toolbar's pictures, numbered from 1. The front end has the picture for each name.
class ImageList {
 public:
  ImageList() = default;
  explicit ImageList(std::span<const std::string_view> names) : names_(names.begin(), names.end()) {}

  std::int16_t Count() const { return static_cast<std::int16_t>(names_.size()); }
  /// Fails with 9 for a number outside 1 ... count.
  const std::string& Name(std::int16_t picture) const {
    if (picture < 1 || picture > Count()) throw Error(Error::SubscriptOutOfRange);
    return names_[static_cast<std::size_t>(picture - 1)];
  }

 private:
  std::vector<std::string> names_;
};

}  // namespace tactix
