#pragma once

#include "tactix/platform/Error.h"

namespace tactix {

/// Runs one step and ignores its error, so that the caller goes on with its next step.
template <class Step>
void IgnoringErrors(Step&& step) {
  try {
    step();
  } catch (const Error&) {
  }
}

/// What becomes of a step's error: it is ignored, or it reaches the caller.
enum class OnFailure { PassOver, Report };

template <class Step>
void Run(OnFailure onFailure, Step&& step) {
  if (onFailure == OnFailure::PassOver) {
    IgnoringErrors(step);
  } else {
    step();
  }
}

/// Runs one statement and ignores the error "object not set" (91); every other error reaches the caller. Wrap each
/// statement of a routine that must go on after 91, not the routine as a whole.
template <class Statement>
void PassingOverObjectNotSet(Statement&& statement) {
  try {
    statement();
  } catch (const Error& error) {
    if (error.Code() != Error::ObjectNotSet) throw;
  }
}

}  // namespace tactix
