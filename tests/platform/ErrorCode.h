#pragma once

#include <cstdint>

#include "tactix/platform/Error.h"

namespace tactix::tests {

/// The code of the error that an action ends in; 0 when it ends well.
template <class Action>
std::int32_t ErrorCodeOf(Action&& action) {
  try {
    static_cast<void>(action());
  } catch (const Error& error) {
    return error.Code();
  }
  return 0;
}

}  // namespace tactix::tests
