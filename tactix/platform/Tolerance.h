#pragma once

#include "tactix/platform/Error.h"

namespace tactix {

/// Runs one step and passes over its error, so that the next step runs: a saved property that cannot be read keeps its
/// default, one that cannot be written is left out.
template <class Step>
void IgnoringErrors(Step&& step) {
  try {
    step();
  } catch (const Error&) {
  }
}

}  // namespace tactix
