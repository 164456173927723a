#pragma once

#include "tactix/shared/DecisionBlock.h"
#include "trainer/engine/Session.h"

namespace trainer::screens {

/// Fills a decision block for the hand that the session waits for: its totals, its legal plays and the advice. The
/// session must have a hand to decide.
void FillBlock(const engine::Session& session, tactix::DecisionBlock& block);

}  // namespace trainer::screens
