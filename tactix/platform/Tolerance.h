#pragma once

#include "tactix/platform/Error.h"

namespace tactix {

/// Runs one step and passes over its error, so that the next step runs: a saved property that cannot be read stays as
/// it is, one that cannot be written is left out, a quiet fill ends where it stands.
template <class Step>
void IgnoringErrors(Step&& step) {
  try {
    step();
  } catch (const Error&) {
  }
}

/// What becomes of a step's error.
enum class OnFailure { PassOver, Report };

template <class Step>
void Run(OnFailure onFailure, Step&& step) {
  if (onFailure == OnFailure::PassOver) {
    IgnoringErrors(step);
  } else {
    step();
  }
}

/// Runs one statement and passes over "object not set", so that the next statement runs. Every other error goes on. A
/// routine that resumes after 91 wraps each of its statements, not itself.
template <class Statement>
void PassingOverObjectNotSet(Statement&& statement) {
  try {
    statement();
  } catch (const Error& error) {
    if (error.Code() != Error::ObjectNotSet) throw;
  }
}

}  // namespace tactix
