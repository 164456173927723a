#pragma once

#include "tactix/companion/StrategyDataBlock.h"
#include "trainer/engine/CountSystems.h"
#include "trainer/engine/Session.h"

namespace trainer::screens {

/// Fills the block with what the player could know of the shoe, counted by that system; docs/trainer.md says what each
/// figure means. A system without a true count has its running count in its place.
void FillStatistics(const engine::Session& session, const engine::CountSystem& system,
                    tactix::companion::StrategyDataBlock& block);

}  // namespace trainer::screens
