#pragma once

#include "trainer/engine/Session.h"
#include "trainer/screens/TableModel.h"

namespace trainer::screens {

/// What the table shows of a session, without message and verdict.
[[nodiscard]] TableModel TableOf(const engine::Session& session);

}  // namespace trainer::screens
